// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The plug-ins that the editor found.
#pragma once

#include "CoreMinimal.h"

class IPlugin
{
public:
	virtual ~IPlugin() = default;

	/** The folder of the descriptor; may be relative, no trailing slash. */
	virtual FString GetBaseDir() const = 0;
};

class IPluginManager
{
public:
	virtual ~IPluginManager() = default;

	PROJECTS_API static IPluginManager& Get();

	/** Null for an unknown name. */
	virtual TSharedPtr<IPlugin> FindPlugin(const FStringView Name) = 0;
	virtual TSharedPtr<IPlugin> FindPlugin(const ANSICHAR* Name) = 0;
};
