// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Modules/ModuleManager.h"

#include "Host/Trace.h"
#include "Misc/Paths.h"

#include <algorithm>
#include <vector>
#include <windows.h>

DEFINE_LOG_CATEGORY_STATIC(LogModuleManager, Log, All);

namespace
{
using FInitializeModule = IModuleInterface* (*)();

} // namespace

const TCHAR* LexToString(EModuleLoadResult Result)
{
	switch (Result)
	{
	case EModuleLoadResult::Success:
		return TEXT("loaded");
	case EModuleLoadResult::FileNotFound:
		return TEXT("the library file is missing");
	case EModuleLoadResult::FileIncompatible:
		return TEXT("the library does not export InitializeModule");
	case EModuleLoadResult::CouldNotBeLoadedByOS:
		return TEXT("the operating system could not load the library or one that it needs");
	case EModuleLoadResult::FailedToInitialize:
		return TEXT("InitializeModule gave no module");
	}
	return TEXT("");
}

FModuleManager& FModuleManager::Get()
{
	// Never destroyed: modules unregister from static destructors of other images.
	static FModuleManager* const Manager = new FModuleManager();
	return *Manager;
}

const FModuleManager::FModuleInfo* FModuleManager::FindInfo(const FName InModuleName) const
{
	const TSharedPtr<FModuleInfo>* Found = Modules.Find(InModuleName);
	return Found ? Found->Get() : nullptr;
}

FModuleManager::FModuleInfo& FModuleManager::FindOrAddInfo(const FName InModuleName)
{
	TSharedPtr<FModuleInfo>& Info = Modules.FindOrAdd(InModuleName);
	if (!Info.IsValid())
	{
		Info = MakeShared<FModuleInfo>();
	}
	return *Info;
}

void FModuleManager::SetModuleFilename(const FName InModuleName, const FString& Filename)
{
	FindOrAddInfo(InModuleName).Filename = Filename;
}

void FModuleManager::RegisterStaticallyLinkedModule(
	const FName InModuleName, const FInitializeStaticallyLinkedModule& InInitializer)
{
	FindOrAddInfo(InModuleName).Initializer = InInitializer;
}

FString FModuleManager::GetModuleFilename(FName InModuleName) const
{
	const FModuleInfo* Info = FindInfo(InModuleName);
	return Info ? Info->Filename : FString();
}

IModuleInterface* FModuleManager::GetModule(const FName InModuleName)
{
	const FModuleInfo* Info = FindInfo(InModuleName);
	return Info ? Info->Module.Get() : nullptr;
}

bool FModuleManager::IsModuleLoaded(const FName InModuleName) const
{
	const FModuleInfo* Info = FindInfo(InModuleName);
	return Info && Info->Module.IsValid();
}

EModuleLoadResult FModuleManager::MakeModule(const FName InModuleName, FModuleInfo& Info)
{
	if (Info.Initializer.IsBound())
	{
		Info.Module = TUniquePtr<IModuleInterface>(Info.Initializer.Execute());
		return EModuleLoadResult::Success;
	}
	if (Info.Filename.IsEmpty() || !FPaths::FileExists(Info.Filename))
	{
		return EModuleLoadResult::FileNotFound;
	}
	HMODULE Library = LoadLibraryExW(*Info.Filename, nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
	if (!Library)
	{
		return EModuleLoadResult::CouldNotBeLoadedByOS;
	}
	HostTrace::Line(TEXT("load library %s"), *InModuleName.ToString());
	FARPROC Export = GetProcAddress(Library, "InitializeModule");
	if (!Export)
	{
		return EModuleLoadResult::FileIncompatible;
	}
	ProcessLoadedObjectsCallback.Broadcast();
	Info.Module = TUniquePtr<IModuleInterface>(reinterpret_cast<FInitializeModule>(reinterpret_cast<void*>(Export))());
	return Info.Module.IsValid() ? EModuleLoadResult::Success : EModuleLoadResult::FailedToInitialize;
}

IModuleInterface* FModuleManager::LoadModuleWithFailureReason(
	const FName InModuleName, EModuleLoadResult& OutFailureReason) noexcept
{
	OutFailureReason = EModuleLoadResult::Success;
	if (IModuleInterface* Loaded = GetModule(InModuleName))
	{
		return Loaded;
	}
	FModuleInfo& Info = FindOrAddInfo(InModuleName);
	checkf(!Info.bWasUnloadedAtShutdown, TEXT("Attempted to load module '%s' that was already unloaded at shutdown."),
		*InModuleName.ToString());
	OutFailureReason = MakeModule(InModuleName, Info);
	if (OutFailureReason != EModuleLoadResult::Success)
	{
		UE_LOG(LogModuleManager, Warning, TEXT("ModuleManager: Unable to load module '%s' from '%s': %s."),
			*InModuleName.ToString(), *Info.Filename, LexToString(OutFailureReason));
		return nullptr;
	}
	HostTrace::Line(TEXT("start module %s"), *InModuleName.ToString());
	Info.Module->StartupModule();
	Info.LoadOrder = CurrentLoadOrder++;
	ModulesChangedEvent.Broadcast(InModuleName, EModuleChangeReason::ModuleLoaded);
	return Info.Module.Get();
}

IModuleInterface* FModuleManager::LoadModule(const FName InModuleName)
{
	EModuleLoadResult Ignored;
	return LoadModuleWithFailureReason(InModuleName, Ignored);
}

IModuleInterface& FModuleManager::LoadModuleChecked(const FName InModuleName)
{
	EModuleLoadResult Failure;
	IModuleInterface* Module = LoadModuleWithFailureReason(InModuleName, Failure);
	checkf(
		Module, TEXT("ModuleName=%s, Failure=%s, IsInGameThread=Yes"), *InModuleName.ToString(), LexToString(Failure));
	return *Module;
}

bool FModuleManager::UnloadModule(const FName InModuleName, bool bIsShutdown, bool) noexcept
{
	if (!IsModuleLoaded(InModuleName))
	{
		return false;
	}
	FModuleInfo& Info = FindOrAddInfo(InModuleName);
	HostTrace::Line(TEXT("shut down module %s"), *InModuleName.ToString());
	Info.Module->ShutdownModule();
	Info.Module.Reset();
	Info.bWasUnloadedAtShutdown = bIsShutdown;
	if (!bIsShutdown)
	{
		ModulesChangedEvent.Broadcast(InModuleName, EModuleChangeReason::ModuleUnloaded);
	}
	return true;
}

void FModuleManager::UnloadModulesAtShutdown() noexcept
{
	std::vector<std::pair<int32, FName>> Order;
	for (const auto& Entry : Modules)
	{
		if (Entry.Value->Module.IsValid())
		{
			Order.emplace_back(Entry.Value->LoadOrder, Entry.Key);
		}
	}
	std::sort(Order.begin(), Order.end(), [](const auto& A, const auto& B) { return A.first > B.first; });
	for (const auto& [LoadOrder, Name] : Order)
	{
		GetModule(Name)->PreUnloadCallback();
	}
	for (const auto& [LoadOrder, Name] : Order)
	{
		UnloadModule(Name, true);
	}
}
