// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "HAL/Platform.h"

/** A file that is read. */
class FArchive
{
public:
	explicit FArchive(void* InFile) : File(InFile) {}
	CORE_API ~FArchive();
	FArchive(const FArchive&) = delete;
	FArchive& operator=(const FArchive&) = delete;

	/** Reads the next bytes; with fewer left, or none to be had, the archive is in error. */
	CORE_API void Serialize(void* V, int64 Length);

	/** In bytes. */
	CORE_API int64 TotalSize();

	bool IsError() const { return bIsError; }

private:
	void* File;
	bool bIsError = false;
};
