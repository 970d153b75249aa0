// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Loads modules out of dynamic libraries by name, starts them, and shuts them down in reverse order of their start.
#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

enum class EModuleChangeReason
{
	ModuleLoaded,
	ModuleUnloaded,
};

enum class EModuleLoadResult
{
	Success,
	FileNotFound,
	FileIncompatible,
	CouldNotBeLoadedByOS,
	FailedToInitialize,
};

/** The result as a clause for people, such as "the library file is missing". */
CORE_API const TCHAR* LexToString(EModuleLoadResult Result);

DECLARE_EVENT_TwoParams(FModuleManager, FModulesChangedEvent, FName, EModuleChangeReason);

/** Makes the one object of a module that is linked into the editor itself; the manager owns it. */
DECLARE_DELEGATE_RetVal(IModuleInterface*, FInitializeStaticallyLinkedModule);

/** The registry of all modules. Game thread only. An exception that leaves a module ends the process. */
class FModuleManager
{
public:
	CORE_API static FModuleManager& Get();

	/** Loads and starts the module, or returns the running one. Not to be had: fatal. */
	CORE_API IModuleInterface& LoadModuleChecked(const FName InModuleName);

	/** As above, but null when the module is not to be had; the reason is logged. */
	CORE_API IModuleInterface* LoadModule(const FName InModuleName);

	CORE_API IModuleInterface* LoadModuleWithFailureReason(
		const FName InModuleName, EModuleLoadResult& OutFailureReason) noexcept;

	/** Null unless the module is loaded; never loads. */
	CORE_API IModuleInterface* GetModule(const FName InModuleName);

	CORE_API bool IsModuleLoaded(const FName InModuleName) const;

	/**
	 * Shuts the module down and destroys its object. The code stays mapped whatever the last argument says: delegates
	 * that the module left bound point into it.
	 * @param bIsShutdown whether this belongs to the editor's exit; the module can then not be loaded again
	 * @return false when the module is not loaded
	 */
	CORE_API bool UnloadModule(
		const FName InModuleName, bool bIsShutdown = false, bool bAllowUnloadCode = true) noexcept;

	/** Tells all modules first, then shuts each down, the last one that finished its start first. */
	CORE_API void UnloadModulesAtShutdown() noexcept;

	/** Names the library file of a module; the plug-in manager calls this for all modules that it finds. */
	CORE_API void SetModuleFilename(const FName InModuleName, const FString& Filename);

	/** Empty for a module without a library file. */
	CORE_API FString GetModuleFilename(FName InModuleName) const;

	CORE_API void RegisterStaticallyLinkedModule(
		const FName InModuleName, const FInitializeStaticallyLinkedModule& InInitializer);

	FModulesChangedEvent& OnModulesChanged() { return ModulesChangedEvent; }

	/** Sent after a library was loaded and before its module starts: its types are made now. */
	FSimpleMulticastDelegate& OnProcessLoadedObjectsCallback() { return ProcessLoadedObjectsCallback; }

	template <class T>
	static T& LoadModuleChecked(const FName InModuleName)
	{
		return static_cast<T&>(Get().LoadModuleChecked(InModuleName));
	}

	template <class T>
	static T* LoadModulePtr(const FName InModuleName)
	{
		return static_cast<T*>(Get().LoadModule(InModuleName));
	}

	template <class T>
	static T* GetModulePtr(const FName InModuleName)
	{
		return static_cast<T*>(Get().GetModule(InModuleName));
	}

	template <class T>
	static T& GetModuleChecked(const FName InModuleName)
	{
		IModuleInterface* Module = Get().GetModule(InModuleName);
		checkf(Module, TEXT("Tried to get module interface for unloaded module: '%s'"), *InModuleName.ToString());
		return static_cast<T&>(*Module);
	}

private:
	struct FModuleInfo
	{
		FString Filename;
		FInitializeStaticallyLinkedModule Initializer;
		TUniquePtr<IModuleInterface> Module;
		int32 LoadOrder = 0;
		bool bWasUnloadedAtShutdown = false;
	};

	FModuleManager() = default;
	EModuleLoadResult MakeModule(const FName InModuleName, FModuleInfo& Info);
	const FModuleInfo* FindInfo(const FName InModuleName) const;
	FModuleInfo& FindOrAddInfo(const FName InModuleName);

	TMap<FName, TSharedPtr<FModuleInfo>> Modules;
	FModulesChangedEvent ModulesChangedEvent;
	FSimpleMulticastDelegate ProcessLoadedObjectsCallback;
	int32 CurrentLoadOrder = 1;
};

/** Exports the factory that the loader looks for. Stands once in a module, in its main source file. */
#define IMPLEMENT_MODULE(ModuleImplClass, ModuleName)                                                                  \
	extern "C" DLLEXPORT IModuleInterface* InitializeModule()                                                          \
	{                                                                                                                  \
		return new ModuleImplClass();                                                                                  \
	}                                                                                                                  \
	extern "C" void IMPLEMENT_MODULE_##ModuleName() {}

/** Adds a module that is linked into the editor itself. */
#define IMPLEMENT_HOST_MODULE(ModuleImplClass, ModuleName)                                                             \
	static const bool bRegistered##ModuleName = []()                                                                   \
	{                                                                                                                  \
		FModuleManager::Get().RegisterStaticallyLinkedModule(                                                          \
			TEXT(#ModuleName), FInitializeStaticallyLinkedModule::CreateLambda(                                        \
								   []() -> IModuleInterface* { return new ModuleImplClass(); }));                      \
		return true;                                                                                                   \
	}();
