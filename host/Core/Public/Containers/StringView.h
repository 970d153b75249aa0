// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "HAL/Platform.h"

#include <string_view>

/** Characters that someone else owns; not terminated. */
class FStringView
{
public:
	FStringView() = default;
	FStringView(const TCHAR* InText) : View(InText ? std::wstring_view(InText) : std::wstring_view()) {}
	FStringView(const TCHAR* InData, int32 InSize) : View(InData, static_cast<size_t>(InSize)) {}

	const TCHAR* GetData() const { return View.data(); }

	int32 Len() const { return static_cast<int32>(View.size()); }

	bool IsEmpty() const { return View.empty(); }

	const TCHAR* begin() const { return View.data(); }

	const TCHAR* end() const { return View.data() + View.size(); }

private:
	std::wstring_view View;
};
