// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What every module implements. Header-only; the order of the virtual functions is part of the binary interface.
#pragma once

class IModuleInterface
{
public:
	virtual ~IModuleInterface() = default;

	/** Called once, right after the module object was made. */
	virtual void StartupModule() {}

	/** Called at the editor's exit, before any module is shut down. */
	virtual void PreUnloadCallback() {}

	/** Called once, right before the module object is destroyed. */
	virtual void ShutdownModule() {}
};
