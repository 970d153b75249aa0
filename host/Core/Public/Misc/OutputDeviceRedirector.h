// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Containers/Array.h"
#include "HAL/CriticalSection.h"
#include "Misc/OutputDevice.h"

/** Passes every line to all its devices. Any thread; a device may log, but not add or remove devices, meanwhile. */
class FOutputDeviceRedirector final : public FOutputDevice
{
public:
	/** The only one; never destroyed, so that static destructors may log. */
	CORE_API static FOutputDeviceRedirector* Get();

	/** The device stays the caller's and must be removed before it dies. */
	CORE_API void AddOutputDevice(FOutputDevice* OutputDevice);
	CORE_API void RemoveOutputDevice(FOutputDevice* OutputDevice);

	CORE_API void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;

private:
	FOutputDeviceRedirector() = default;

	FCriticalSection Lock;
	TArray<FOutputDevice*> Devices;
};

#define GLog FOutputDeviceRedirector::Get()
