// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Modules/ModuleManager.h"

#include "Misc/Paths.h"

#include <windows.h>

DEFINE_LOG_CATEGORY_STATIC(LogModuleManager, Log, All);

FModuleManager& FModuleManager::Get()
{
	// Never destroyed: modules unregister from static destructors of other images.
	static FModuleManager* const Manager = new FModuleManager();
	return *Manager;
}

IModuleInterface* FModuleManager::GetModule(const FName InModuleName) const
{
	const FModuleInfo* Info = Modules.Find(InModuleName);
	return Info ? Info->Module.get() : nullptr;
}

FString FModuleManager::FindInitializer(const FName InModuleName, FModuleInfo& Info) const
{
	if (Info.Initializer)
	{
		return FString();
	}
	if (!FPaths::FileExists(Info.Filename))
	{
		return TEXT("the library file is missing");
	}
	HMODULE Library = LoadLibraryExW(*Info.Filename, nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
	if (!Library)
	{
		return TEXT("the operating system could not load the library or one that it needs");
	}
	HostTrace::Line(TEXT("load library %s"), *InModuleName.ToString());
	Info.Initializer =
		reinterpret_cast<FInitializer>(reinterpret_cast<void*>(GetProcAddress(Library, "InitializeModule")));
	if (!Info.Initializer)
	{
		return TEXT("the library does not export InitializeModule");
	}
	ProcessLoadedObjectsCallback.Broadcast();
	return FString();
}

IModuleInterface* FModuleManager::TryLoadModule(const FName InModuleName, FString& OutReason) noexcept
{
	FModuleInfo& Info = Modules.FindOrAdd(InModuleName);
	if (Info.Module)
	{
		return Info.Module.get();
	}
	checkf(!Info.bWasUnloadedAtShutdown, TEXT("Attempted to load module '%s' that was already unloaded at shutdown."),
		*InModuleName.ToString());
	OutReason = FindInitializer(InModuleName, Info);
	if (OutReason.IsEmpty())
	{
		Info.Module.reset(Info.Initializer());
		OutReason = Info.Module ? TEXT("") : TEXT("InitializeModule gave no module");
	}
	if (!OutReason.IsEmpty())
	{
		OutReason = Info.Filename + TEXT(": ") + OutReason;
		UE_LOG(LogModuleManager, Warning, TEXT("ModuleManager: Unable to load module '%s': %s."),
			*InModuleName.ToString(), *OutReason);
		return nullptr;
	}
	HostTrace::Line(TEXT("start module %s"), *InModuleName.ToString());
	Info.Module->StartupModule();
	Started.Add(InModuleName);
	return Info.Module.get();
}

IModuleInterface& FModuleManager::LoadModuleChecked(const FName InModuleName)
{
	FString Reason;
	IModuleInterface* Module = TryLoadModule(InModuleName, Reason);
	checkf(Module, TEXT("ModuleName=%s, Failure=%s, IsInGameThread=Yes"), *InModuleName.ToString(), *Reason);
	return *Module;
}

bool FModuleManager::UnloadModule(const FName InModuleName, bool bIsShutdown) noexcept
{
	if (!IsModuleLoaded(InModuleName))
	{
		return false;
	}
	FModuleInfo& Info = Modules.FindOrAdd(InModuleName);
	HostTrace::Line(TEXT("shut down module %s"), *InModuleName.ToString());
	Started.Remove(InModuleName);
	Info.Module->ShutdownModule();
	Info.Module.reset();
	Info.bWasUnloadedAtShutdown = bIsShutdown;
	return true;
}

void FModuleManager::UnloadModulesAtShutdown() noexcept
{
	const TArray<FName> Order = Started;
	for (int32 Index = Order.Num(); Index-- > 0;)
	{
		GetModule(Order[Index])->PreUnloadCallback();
	}
	for (int32 Index = Order.Num(); Index-- > 0;)
	{
		UnloadModule(Order[Index], true);
	}
}
