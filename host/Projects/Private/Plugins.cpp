// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/Plugins.h"

#include "Interfaces/IPluginManager.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "PluginDescriptor.h"

#include <algorithm>
#include <filesystem>
#include <vector>

namespace
{
TArray<FPluginDescriptor>& Plugins()
{
	static TArray<FPluginDescriptor> Descriptors;
	return Descriptors;
}

/** The descriptors directly below the folder's sub-folders, in the order of their paths. */
std::vector<std::filesystem::path> FindDescriptors(const FString& Folder)
{
	std::vector<std::filesystem::path> Found;
	std::error_code Ignored;
	for (const auto& Plugin : std::filesystem::directory_iterator(*Folder, Ignored))
	{
		for (const auto& File : std::filesystem::directory_iterator(Plugin.path(), Ignored))
		{
			if (File.path().extension() == L".uplugin")
			{
				Found.push_back(File.path());
			}
		}
	}
	std::sort(Found.begin(), Found.end());
	return Found;
}

bool AddPlugin(const std::filesystem::path& File, FString& OutError)
{
	FPluginDescriptor Descriptor;
	if (!ReadPluginDescriptor(FString(File.generic_wstring().c_str()), Descriptor, OutError))
	{
		return false;
	}
	const FString Binaries = FPaths::Combine(File.parent_path().generic_wstring().c_str(), TEXT("Binaries/Win64"));
	const FString Manifest = FPaths::Combine(Binaries, TEXT("UnrealEditor.modules"));
	TMap<FName, FString> Files;
	if (Descriptor.Modules.Num() > 0 && !ReadModuleManifest(Manifest, Files, OutError))
	{
		return false;
	}
	for (const auto& Entry : Files)
	{
		FModuleManager::Get().SetModuleFilename(Entry.Key, FPaths::Combine(Binaries, Entry.Value));
	}
	Plugins().Add(Descriptor);
	return true;
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

bool HostPlugins::Discover(const FString& PluginsFolder, FString& OutError)
{
	for (const std::filesystem::path& File : FindDescriptors(PluginsFolder))
	{
		if (!AddPlugin(File, OutError))
		{
			return false;
		}
	}
	return true;
}

const TArray<FString>& HostPlugins::LoadingPhases()
{
	static const TArray<FString> Phases{TEXT("EarliestPossible"), TEXT("PostConfigInit"), TEXT("PostSplashScreen"),
		TEXT("PreEarlyLoadingScreen"), TEXT("PreLoadingScreen"), TEXT("PreDefault"), TEXT("Default"),
		TEXT("PostDefault"), TEXT("PostEngineInit")};
	return Phases;
}

bool HostPlugins::LoadModules(const FString& Phase, bool bIsCommandlet, FString& OutError)
{
	for (const FPluginDescriptor& Plugin : Plugins())
	{
		for (const FModuleDescriptor& Module : Plugin.Modules)
		{
			EModuleLoadResult Result = EModuleLoadResult::Success;
			if (LoadsHere(Module, Phase, bIsCommandlet) &&
				!FModuleManager::Get().LoadModuleWithFailureReason(FName(*Module.Name), Result))
			{
				OutError = FString::Printf(TEXT("%s: module \"%s\": %s: %s"), *Plugin.File, *Module.Name,
					*FModuleManager::Get().GetModuleFilename(FName(*Module.Name)), LexToString(Result));
				return false;
			}
		}
	}
	return true;
}

namespace
{
class FPlugin final : public IPlugin
{
public:
	explicit FPlugin(const FPluginDescriptor& InDescriptor) : Descriptor(InDescriptor) {}

	FString GetBaseDir() const override { return FPaths::GetPath(Descriptor.File); }

private:
	FPluginDescriptor Descriptor;
};

class FPluginManager final : public IPluginManager
{
public:
	TSharedPtr<IPlugin> FindPlugin(const FStringView Name) override
	{
		const FString File = TEXT("/") + FString(Name) + TEXT(".uplugin");
		const FPluginDescriptor* Found = Plugins().FindByPredicate(
			[&File](const FPluginDescriptor& Descriptor) { return Descriptor.File.EndsWith(File); });
		return Found ? MakeShared<FPlugin>(*Found) : TSharedPtr<IPlugin>();
	}

	TSharedPtr<IPlugin> FindPlugin(const ANSICHAR* Name) override { return FindPlugin(FString(UTF8_TO_TCHAR(Name))); }
};
} // namespace

IPluginManager& IPluginManager::Get()
{
	static FPluginManager Manager;
	return Manager;
}
