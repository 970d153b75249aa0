// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Platform.h"
#include <memory>
#include <string>

namespace Kiln
{
struct HandleCloser
{
	void operator()(HANDLE handle) const { CloseHandle(handle); }
};

/** Owns a kernel handle; null when there is none. */
using Handle = std::unique_ptr<void, HandleCloser>;

/** Opens what exists, shared with every other user of it unless told otherwise; null when the platform refuses. */
inline Handle openExisting(
	const std::wstring& path, DWORD access, DWORD flags, DWORD share = FILE_SHARE_READ | FILE_SHARE_WRITE)
{
	const HANDLE handle = CreateFileW(path.c_str(), access, share, nullptr, OPEN_EXISTING, flags, nullptr);
	return Handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}
} // namespace Kiln
