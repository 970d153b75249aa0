// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "TonalithLookTable.h"

#include "Color/CubeReader.h"
#include "Color/TableBytes.h"

bool FTonalithLookTable::Read(const TArray<uint8>& Text, FString& OutFault)
{
	const auto Result =
		LookColor::ReadCube({reinterpret_cast<const char*>(Text.GetData()), static_cast<size_t>(Text.Num())});
	if (const LookColor::FCubeError* const Error = std::get_if<LookColor::FCubeError>(&Result))
	{
		OutFault = FString::Printf(TEXT("line %llu: expected %s, found %s"), static_cast<uint64>(Error->Line),
			UTF8_TO_TCHAR(Error->Expected.c_str()), UTF8_TO_TCHAR(Error->Found.c_str()));
		return false;
	}
	const LookColor::FLookTable& Table = std::get<LookColor::FLookTable>(Result);
	const std::vector<std::uint8_t> Stored = LookColor::BytesOf(Table);
	Title = UTF8_TO_TCHAR(Table.Title.c_str());
	Bytes.SetNumUninitialized(static_cast<int32>(Stored.size()));
	FMemory::Memcpy(Bytes.GetData(), Stored.data(), Stored.size());
	return true;
}
