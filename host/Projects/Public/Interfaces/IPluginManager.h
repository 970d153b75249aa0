// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The plug-ins that the editor found.
#pragma once

#include "CoreMinimal.h"

class IPlugin
{
public:
	explicit IPlugin(const FString& InBaseDir) : BaseDir(InBaseDir) {}

	/** The folder of the descriptor; may be relative, no trailing slash. */
	FString GetBaseDir() const { return BaseDir; }

private:
	FString BaseDir;
};

class PROJECTS_API IPluginManager
{
public:
	virtual ~IPluginManager() = default;

	static IPluginManager& Get();

	/** Null for an unknown name. */
	virtual TSharedPtr<IPlugin> FindPlugin(const ANSICHAR* Name);
};
