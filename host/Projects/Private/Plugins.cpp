// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/Plugins.h"

#include "Interfaces/IPluginManager.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"

#include <filesystem>
#include <fstream>
#include <rapidjson/document.h>
#include <set>
#include <stdexcept>

namespace
{
struct FModuleDescriptor
{
	/** Path of the .uplugin file. */
	FString File;
	FString Name;
	FString Type;
	FString LoadingPhase;
};

TArray<FModuleDescriptor> Modules;

void Require(bool bIsTrue, const FString& File, const std::string& Reason)
{
	if (!bIsTrue)
	{
		throw std::runtime_error(TCHAR_TO_UTF8(*File) + (": " + Reason));
	}
}

/** The object that is the whole file; it has an array or object "Modules". */
rapidjson::Document ReadJson(const FString& File, rapidjson::Type ModulesType)
{
	std::ifstream Stream(std::filesystem::path(*File), std::ios::binary);
	Require(Stream.is_open(), File, "cannot be read");
	const std::string Json(std::istreambuf_iterator<char>(Stream), {});
	rapidjson::Document Document;
	Document.Parse<rapidjson::kParseIterativeFlag>(Json.data(), Json.size());
	Require(Document.IsObject() && Document.HasMember("Modules") && Document["Modules"].GetType() == ModulesType, File,
		"no JSON object with \"Modules\"");
	return Document;
}

FString Member(const rapidjson::Value& Object, const char* Name, const FString& File)
{
	Require(Object.HasMember(Name) && Object[Name].IsString(), File, std::string("a module without \"") + Name + "\"");
	return UTF8_TO_TCHAR(Object[Name].GetString());
}

/** Tells the module manager of the libraries in the list that lies beside them. */
void ReadModuleList(const FString& Binaries)
{
	const FString File = FPaths::Combine(Binaries, TEXT("UnrealEditor.modules"));
	const rapidjson::Document Document = ReadJson(File, rapidjson::kObjectType);
	for (const auto& Entry : Document.GetObject())
	{
		const std::string Key = Entry.name.GetString();
		Require(Key == "BuildId" || Key == "Modules", File, "unknown key \"" + Key + "\"");
	}
	for (const auto& Module : Document["Modules"].GetObject())
	{
		FModuleManager::Get().SetModuleFilename(
			Module.name.GetString(), FPaths::Combine(Binaries, FString(UTF8_TO_TCHAR(Module.value.GetString()))));
	}
}

/** The descriptors directly below the folder's sub-folders, in the order of their paths. */
std::set<std::filesystem::path> FindDescriptors(const FString& Folder)
{
	std::set<std::filesystem::path> Found;
	std::error_code Ignored;
	for (const auto& Plugin : std::filesystem::directory_iterator(*Folder, Ignored))
	{
		for (const auto& File : std::filesystem::directory_iterator(Plugin.path(), Ignored))
		{
			if (File.path().extension() == L".uplugin")
			{
				Found.insert(File.path());
			}
		}
	}
	return Found;
}

/** Notes the plug-in's modules. */
void ReadDescriptor(const FString& File)
{
	const rapidjson::Document Document = ReadJson(File, rapidjson::kArrayType);
	for (const rapidjson::Value& Entry : Document["Modules"].GetArray())
	{
		Modules.Add(
			{File, Member(Entry, "Name", File), Member(Entry, "Type", File), Member(Entry, "LoadingPhase", File)});
	}
	ReadModuleList(FPaths::Combine(FPaths::GetPath(File), TEXT("Binaries/Win64")));
}

bool LoadsHere(const FModuleDescriptor& Module, const FString& Phase, bool bIsCommandlet)
{
	static const TArray<FString> Types{TEXT("Runtime"), TEXT("Editor"), TEXT("EditorNoCommandlet"),
		TEXT("RuntimeNoCommandlet"), TEXT("UncookedOnly"), TEXT("Developer"), TEXT("DeveloperTool"),
		TEXT("EditorAndProgram"), TEXT("RuntimeAndProgram")};
	return Module.LoadingPhase == Phase && Types.Contains(Module.Type) &&
		   !(bIsCommandlet && Module.Type.EndsWith(TEXT("NoCommandlet")));
}
} // namespace

void HostPlugins::Discover(const TArray<FString>& Folders)
{
	for (const FString& Folder : Folders)
	{
		for (const std::filesystem::path& File : FindDescriptors(Folder))
		{
			ReadDescriptor(File.generic_wstring().c_str());
		}
	}
}

void HostPlugins::LoadModules(const TArray<FString>& Phases, bool bIsCommandlet)
{
	for (const FString& Phase : Phases)
	{
		for (const FModuleDescriptor& Module : Modules)
		{
			FString Reason;
			const bool bIsFine = !LoadsHere(Module, Phase, bIsCommandlet) ||
								 FModuleManager::Get().TryLoadModule(FName(Module.Name), Reason);
			Require(bIsFine, Module.File, TCHAR_TO_UTF8(*Reason));
		}
	}
}

IPluginManager& IPluginManager::Get()
{
	static IPluginManager Manager;
	return Manager;
}

TSharedPtr<IPlugin> IPluginManager::FindPlugin(const ANSICHAR* Name)
{
	const FString File = FString::Printf(TEXT("/%s.uplugin"), UTF8_TO_TCHAR(Name));
	const FModuleDescriptor* Found =
		Modules.FindByPredicate([&File](const FModuleDescriptor& Module) { return Module.File.EndsWith(File); });
	return Found ? MakeShared<IPlugin>(FPaths::GetPath(Found->File)) : TSharedPtr<IPlugin>();
}
