// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "CubeFile.h"

#include "HAL/FileManager.h"
#include "Serialization/Archive.h"
#include "Templates/UniquePtr.h"

namespace
{
/** In bytes. The greatest table in its longest spelling takes half of it. */
constexpr int64 LargestFile = 256 * 1024 * 1024;

/** @return what is wrong, or an empty text */
FString ReadBytes(const FString& Filename, TArray<uint8>& OutBytes)
{
	const TUniquePtr<FArchive> File(IFileManager::Get().CreateFileReader(*Filename));
	if (!File.IsValid())
	{
		return TEXT("it cannot be opened; it is gone, or another program writes it");
	}
	const int64 Size = File->TotalSize();
	if (Size > LargestFile)
	{
		return FString::Printf(TEXT("expected at most 256 MB, found %lld MB"), Size / (1024 * 1024));
	}
	OutBytes.SetNumUninitialized(static_cast<int32>(FMath::Clamp<int64>(Size, 0, LargestFile)));
	File->Serialize(OutBytes.GetData(), OutBytes.Num());
	return File->IsError() ? TEXT("it cannot be read to its end") : TEXT("");
}
} // namespace

bool ReadCubeFile(const FString& Filename, FTonalithLookTable& OutTable, FString& OutFault)
{
	TArray<uint8> Bytes;
	FString Reason = ReadBytes(Filename, Bytes);
	if (!Reason.IsEmpty() || !OutTable.Read(Bytes, Reason))
	{
		OutFault = Filename + TEXT(": ") + Reason;
		return false;
	}
	return true;
}
