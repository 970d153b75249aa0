// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Loads modules out of dynamic libraries by name, starts them, and shuts them down in reverse order of their start.
#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

/** The registry of all modules. Game thread only. An exception that leaves a module ends the process. */
class FModuleManager
{
public:
	/** Makes the one object of a module; the manager owns it. */
	using FInitializer = IModuleInterface* (*)();

	CORE_API static FModuleManager& Get();

	/** Loads and starts the module, or returns the running one. Not to be had: fatal. */
	CORE_API IModuleInterface& LoadModuleChecked(const FName InModuleName);

	/**
	 * As above, but null when the module is not to be had, which is logged.
	 * @param OutReason why, as a clause for people, such as "the library file is missing"
	 */
	CORE_API IModuleInterface* TryLoadModule(const FName InModuleName, FString& OutReason) noexcept;

	/** Null unless the module is loaded; never loads. */
	CORE_API IModuleInterface* GetModule(const FName InModuleName) const;

	bool IsModuleLoaded(const FName InModuleName) const { return GetModule(InModuleName) != nullptr; }

	/**
	 * Shuts the module down and destroys its object. The code stays mapped: delegates that the module left bound point
	 * into it.
	 * @param bIsShutdown whether this belongs to the editor's exit; the module can then not be loaded again
	 * @return false when the module is not loaded
	 */
	CORE_API bool UnloadModule(const FName InModuleName, bool bIsShutdown = false) noexcept;

	/** Tells all modules first, then shuts each down, the last one that finished its start first. */
	CORE_API void UnloadModulesAtShutdown() noexcept;

	/** Names the library file of a module; the plug-in manager calls this for all modules that it finds. */
	void SetModuleFilename(const FName InModuleName, const FString& Filename)
	{
		Modules.FindOrAdd(InModuleName).Filename = Filename;
	}

	/** Adds a module that is linked into the editor itself. @return true */
	bool RegisterStaticallyLinkedModule(const FName InModuleName, FInitializer InInitializer)
	{
		Modules.FindOrAdd(InModuleName).Initializer = InInitializer;
		return true;
	}

	/** Sent after a library was loaded and before its module starts: its types are made now. */
	FSimpleMulticastDelegate& OnProcessLoadedObjectsCallback() { return ProcessLoadedObjectsCallback; }

	template <class T>
	static T& LoadModuleChecked(const FName InModuleName)
	{
		return static_cast<T&>(Get().LoadModuleChecked(InModuleName));
	}

	template <class T>
	static T* GetModulePtr(const FName InModuleName)
	{
		return static_cast<T*>(Get().GetModule(InModuleName));
	}

	template <class T>
	static T& GetModuleChecked(const FName InModuleName)
	{
		T* Module = GetModulePtr<T>(InModuleName);
		checkf(Module, TEXT("Tried to get module interface for unloaded module: '%s'"), *InModuleName.ToString());
		return *Module;
	}

private:
	struct FModuleInfo
	{
		FString Filename;
		FInitializer Initializer = nullptr;
		std::unique_ptr<IModuleInterface> Module;
		bool bWasUnloadedAtShutdown = false;
	};

	FModuleManager() = default;

	/** Finds the initializer of a module. @return the reason why there is none, or an empty text */
	FString FindInitializer(const FName InModuleName, FModuleInfo& Info) const;

	TMap<FName, FModuleInfo> Modules;

	/** The modules that run, in the order in which they finished their start. */
	TArray<FName> Started;

	FSimpleMulticastDelegate ProcessLoadedObjectsCallback;
};

/** Has nothing to start. */
class FDefaultModuleImpl : public IModuleInterface
{
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
	static const bool bRegistered##ModuleName = FModuleManager::Get().RegisterStaticallyLinkedModule(                  \
		TEXT(#ModuleName), []() -> IModuleInterface* { return new ModuleImplClass(); });
