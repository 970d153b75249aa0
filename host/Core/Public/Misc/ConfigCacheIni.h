// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Config files: sections of "Key=Value" lines, kept in memory from the first use on.
#pragma once

#include "CoreMinimal.h"

/**
 * Files are UTF-8 with CRLF. Keys and section names are compared without case; a key may stand on several lines. What is
 * not asked for stays in the file as it is, comments included. Game thread.
 */
class FConfigCacheIni
{
public:
	/** The values of all lines of the key, in order. @return their number */
	CORE_API int32 GetArray(
		const TCHAR* Section, const TCHAR* Key, TArray<FString>& OutValues, const FString& Filename);

	/** Replaces all lines of the key, at the place of the first one. */
	CORE_API void SetArray(
		const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Values, const FString& Filename);

	/** Writes the file; a failure is logged. Folders are made. */
	CORE_API void Flush(bool bRemoveFromCache, const FString& Filename);

private:
	/** What stands above the first section is one without a name. */
	struct FSection
	{
		FString Name;
		std::vector<FString> Lines;
	};

	std::vector<FSection>& Open(const FString& Filename);

	TMap<FString, std::vector<FSection>> Files;
};

/** The one cache; never null. */
extern CORE_API FConfigCacheIni* GConfig;
