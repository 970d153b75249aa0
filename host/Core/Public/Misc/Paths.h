// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Containers/UnrealString.h"

/** Paths use "/". Folders of the project end with it. */
class FPaths
{
public:
	/** Joins with exactly one "/" between non-empty parts. */
	template <typename... PathTypes>
	[[nodiscard]] static FString Combine(const PathTypes&... Paths)
	{
		FString Combined;
		((Combined /= Paths), ...);
		return Combined;
	}

	/** The assets. */
	CORE_API static FString ProjectContentDir();

	/** What the editor writes. */
	CORE_API static FString ProjectSavedDir();

	/** What stands before the last "/"; empty without one. */
	CORE_API static FString GetPath(const FString& Path);

	/** What stands behind the name's last ".". */
	CORE_API static FString GetExtension(const FString& Path);

	/** The name without that. */
	CORE_API static FString GetBaseFilename(const FString& Path);

	CORE_API static FString ConvertRelativePathToFull(const FString& Path);

	/** False also when it cannot be told. */
	CORE_API static bool FileExists(const FString& Path);
};

namespace HostProject
{
/** Opens a project. Both kinds of slash may stand in the path; it need not exist. Before any other thread runs. */
CORE_API void SetFolder(const FString& Folder);
} // namespace HostProject
