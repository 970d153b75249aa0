// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/Assets.h"

#include "Misc/ConfigCacheIni.h"
#include "ObjectConfig.h"

#include <filesystem>
#include <map>

namespace
{
constexpr const TCHAR* Extension = TEXT(".asset");
constexpr const TCHAR* Section = TEXT("Asset");
constexpr const TCHAR* ClassKey = TEXT("Class");
const FString ContentRoot = TEXT("/Game/");

/** By path. */
std::map<FString, FAssetData> Registry;

/** The file of a package such as "/Game/Looks/Warm". */
FString FileOf(const FString& ContentFolder, const FString& Package)
{
	return FPaths::Combine(ContentFolder, Package.Mid(ContentRoot.Len())) + Extension;
}

FString FileOf(const FAssetData& Asset)
{
	return FileOf(FPaths::ProjectContentDir(), Asset.PackageName.ToString());
}

void Register(const FAssetData& Asset)
{
	Registry[Asset.GetObjectPathString()] = Asset;
}

void RegisterFile(const std::filesystem::path& File, const std::filesystem::path& ContentFolder)
{
	TArray<FString> Class;
	const std::filesystem::path Package = File.lexically_relative(ContentFolder).replace_extension();
	if (GConfig->GetArray(Section, ClassKey, Class, File.generic_wstring().c_str()) == 1)
	{
		Register(FAssetData(ContentRoot + Package.generic_wstring().c_str(), Class[0]));
	}
}

UObject* Load(const FAssetData& Asset)
{
	UClass* Class = Asset.GetClass();
	if (!Class)
	{
		return nullptr;
	}
	UPackage* Package = CreatePackage(*Asset.PackageName.ToString());
	UObject* Object =
		StaticConstructObject(Class, Package, Asset.AssetName, RF_Public | RF_Standalone | RF_Transactional);
	HostConfig::Read(*Object, HostConfig::Lasting, Section, FileOf(Asset));
	return Object;
}
} // namespace

void HostAssets::Scan()
{
	const std::filesystem::path Folder(*FPaths::ProjectContentDir());
	std::error_code NoFolder;
	for (const auto& Entry : std::filesystem::recursive_directory_iterator(Folder, NoFolder))
	{
		if (Entry.path().extension() == Extension)
		{
			RegisterFile(Entry.path(), Folder);
		}
	}
}

TArray<FAssetData> HostAssets::GetAll()
{
	TArray<FAssetData> Assets;
	for (const auto& [Path, Asset] : Registry)
	{
		Assets.Add(Asset);
	}
	return Assets;
}

void HostAssets::Add(UObject& Asset)
{
	Register(&Asset);
	Asset.MarkPackageDirty();
}

void HostAssets::Delete(UObject& Asset)
{
	std::error_code Ignored;
	std::filesystem::remove(*FileOf(&Asset), Ignored);
	Registry.erase(Asset.GetPathName());
	Asset.MarkAsGarbage();
}

void HostAssets::SaveDirtyPackages()
{
	for (const auto& [Path, Asset] : Registry)
	{
		UObject* Object = StaticFindObject(UObject::StaticClass(), *Path);
		if (!Object || !Object->GetPackage()->IsDirty())
		{
			continue;
		}
		HostTrace::Line(TEXT("save asset %s"), *Path);
		const FString File = FileOf(Asset);
		GConfig->SetArray(Section, ClassKey, {Asset.AssetClassPath.ToString()}, File);
		HostConfig::Write(*Object, HostConfig::Lasting, Section, File);
		Object->GetPackage()->SetDirtyFlag(false);
	}
}

void HostAssets::Write(const FString& ProjectFolder, const FString& ClassPath, const FString& Path)
{
	const FString File = FileOf(FPaths::Combine(ProjectFolder, TEXT("Content")), Path.Mid(0, Path.Find(TEXT("."))));
	GConfig->SetArray(Section, ClassKey, {ClassPath}, File);
	GConfig->Flush(true, File);
}

UObject* StaticLoadObject(UClass* Class, const TCHAR* Path)
{
	UObject* Found = StaticFindObject(UObject::StaticClass(), Path);
	const auto Asset = Registry.find(Path);
	if (!Found && Asset != Registry.end())
	{
		Found = Load(Asset->second);
	}
	return Found && Found->IsA(Class) ? Found : nullptr;
}
