// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "HAL/FileManager.h"

#include <windows.h>

FArchive::~FArchive()
{
	CloseHandle(File);
}

void FArchive::Serialize(void* V, int64 Length)
{
	DWORD Read = 0;
	bIsError = bIsError || !ReadFile(File, V, static_cast<DWORD>(Length), &Read, nullptr) || Read != Length;
}

int64 FArchive::TotalSize()
{
	LARGE_INTEGER Size{};
	GetFileSizeEx(File, &Size);
	return Size.QuadPart;
}

IFileManager& IFileManager::Get()
{
	static IFileManager Manager;
	return Manager;
}

FArchive* IFileManager::CreateFileReader(const TCHAR* Filename)
{
	const HANDLE File = CreateFileW(Filename, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
	return File == INVALID_HANDLE_VALUE ? nullptr : new FArchive(File);
}
