// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Misc/Paths.h"

#include "Host/Project.h"

#include <filesystem>

namespace
{
/** Empty, or ends with "/". */
FString& ProjectFolder()
{
	static FString Folder;
	return Folder;
}
} // namespace

void HostProject::SetFolder(const FString& Folder)
{
	const FString Path = Folder.Replace(TEXT("\\"), TEXT("/"));
	ProjectFolder() = Path.EndsWith(TEXT("/")) ? Path : Path + TEXT("/");
}

FString FPaths::ProjectDir()
{
	return ProjectFolder();
}

FString FPaths::ProjectContentDir()
{
	return ProjectDir() + TEXT("Content/");
}

FString FPaths::ProjectSavedDir()
{
	return ProjectDir() + TEXT("Saved/");
}

FString FPaths::ProjectLogDir()
{
	return ProjectSavedDir() + TEXT("Logs/");
}

FString FPaths::GetPath(const FString& Path)
{
	const int32 Slash = Path.Find(TEXT("/"), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
	return Path.Mid(0, Slash == INDEX_NONE ? 0 : Slash);
}

bool FPaths::FileExists(const FString& Path)
{
	std::error_code Ignored;
	return std::filesystem::is_regular_file(*Path, Ignored);
}

bool FPaths::DirectoryExists(const FString& Path)
{
	std::error_code Ignored;
	return std::filesystem::is_directory(*Path, Ignored);
}
