// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "HAL/Platform.h"

/** Names one binding. Valid means that it was once bound, not that it still is. */
class FDelegateHandle
{
public:
	enum EGenerateNewHandleType
	{
		GenerateNewHandle
	};

	FDelegateHandle() = default;

	/** Unique in the process. Any thread. */
	CORE_API explicit FDelegateHandle(EGenerateNewHandleType);

	bool IsValid() const { return ID != 0; }

	void Reset() { ID = 0; }

	friend bool operator==(const FDelegateHandle&, const FDelegateHandle&) = default;

private:
	uint64 ID = 0;
};
