// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Misc/Paths.h"

#include "CoreGlobals.h"

#include <filesystem>

/** Empty, or ends with "/". */
static FString ProjectFolder;

void HostProject::SetFolder(const FString& Folder)
{
	const FString Path = std::filesystem::path(*Folder).generic_wstring().c_str();
	ProjectFolder = Path.EndsWith(TEXT("/")) ? Path : Path + TEXT("/");
	GEditorPerProjectIni = FPaths::ProjectSavedDir() + TEXT("Config/WindowsEditor/EditorPerProjectUserSettings.ini");
}

FString FPaths::ProjectContentDir()
{
	return ProjectFolder + TEXT("Content/");
}

FString FPaths::ProjectSavedDir()
{
	return ProjectFolder + TEXT("Saved/");
}

FString FPaths::GetPath(const FString& Path)
{
	const size_t Slash = std::wstring_view(*Path).rfind(TEXT('/'));
	return Path.Mid(0, Slash == std::wstring_view::npos ? 0 : static_cast<int32>(Slash));
}

FString FPaths::GetExtension(const FString& Path)
{
	const FString Extension = std::filesystem::path(*Path).extension().generic_wstring().c_str();
	return Extension.Mid(1);
}

FString FPaths::GetBaseFilename(const FString& Path)
{
	return std::filesystem::path(*Path).stem().generic_wstring().c_str();
}

FString FPaths::ConvertRelativePathToFull(const FString& Path)
{
	return std::filesystem::absolute(*Path).lexically_normal().generic_wstring().c_str();
}

bool FPaths::FileExists(const FString& Path)
{
	std::error_code Ignored;
	return std::filesystem::is_regular_file(*Path, Ignored);
}
