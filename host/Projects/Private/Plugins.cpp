// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/Plugins.h"

#include "Interfaces/IPluginManager.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "PluginDescriptor.h"

#include <filesystem>
#include <set>
#include <stdexcept>

namespace
{
TArray<FPluginDescriptor> Plugins;

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

bool LoadsHere(const FModuleDescriptor& Module, const FString& Phase, bool bIsCommandlet)
{
	static const TArray<FString> Types{TEXT("Runtime"), TEXT("Editor"), TEXT("EditorNoCommandlet"),
		TEXT("RuntimeNoCommandlet"), TEXT("UncookedOnly"), TEXT("Developer"), TEXT("DeveloperTool"),
		TEXT("EditorAndProgram"), TEXT("RuntimeAndProgram")};
	return Module.LoadingPhase == Phase && Types.Contains(Module.Type) &&
		   !(bIsCommandlet && Module.Type.EndsWith(TEXT("NoCommandlet")));
}
} // namespace

void HostPlugins::Discover(const FString& PluginsFolder)
{
	for (const std::filesystem::path& File : FindDescriptors(PluginsFolder))
	{
		const FPluginDescriptor Descriptor = ReadPluginDescriptor(File.generic_wstring().c_str());
		Plugins.Add(Descriptor);
		if (Descriptor.Modules.IsEmpty())
		{
			continue;
		}
		const FString Binaries = FPaths::Combine(FPaths::GetPath(Descriptor.File), TEXT("Binaries/Win64"));
		for (const auto& [Module, Library] :
			ReadModuleManifest(FPaths::Combine(Binaries, TEXT("UnrealEditor.modules"))))
		{
			FModuleManager::Get().SetModuleFilename(Module, FPaths::Combine(Binaries, Library));
		}
	}
}

void HostPlugins::LoadModules(const FString& Phase, bool bIsCommandlet)
{
	for (const FPluginDescriptor& Plugin : Plugins)
	{
		for (const FModuleDescriptor& Module : Plugin.Modules)
		{
			FString Reason;
			if (LoadsHere(Module, Phase, bIsCommandlet) &&
				!FModuleManager::Get().TryLoadModule(FName(Module.Name), Reason))
			{
				const FString Line =
					FString::Printf(TEXT("%s: module \"%s\": %s"), *Plugin.File, *Module.Name, *Reason);
				throw std::runtime_error(TCHAR_TO_UTF8(*Line));
			}
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
	const FPluginDescriptor* Found = Plugins.FindByPredicate(
		[&File](const FPluginDescriptor& Descriptor) { return Descriptor.File.EndsWith(File); });
	return Found ? MakeShared<IPlugin>(FPaths::GetPath(Found->File)) : TSharedPtr<IPlugin>();
}
