// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Containers/Array.h"
#include "Misc/OutputDevice.h"
#include "Misc/ScopeLock.h"

/** Passes every line to all its devices. Any thread; a device may log, but not add or remove devices, meanwhile. */
class FOutputDeviceRedirector final : public FOutputDevice
{
public:
	/** The only one; never destroyed, so that static destructors may log. */
	CORE_API static FOutputDeviceRedirector* Get();

	/** The device stays the caller's and must be removed before it dies. */
	void AddOutputDevice(FOutputDevice* OutputDevice)
	{
		const FScopeLock Scope(&Lock);
		Devices.Add(OutputDevice);
	}

	void RemoveOutputDevice(FOutputDevice* OutputDevice)
	{
		const FScopeLock Scope(&Lock);
		Devices.Remove(OutputDevice);
	}

	void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		const FScopeLock Scope(&Lock);
		for (FOutputDevice* Device : Devices)
		{
			Device->Serialize(V, Verbosity, Category);
		}
	}

private:
	FOutputDeviceRedirector() = default;

	FCriticalSection Lock;
	TArray<FOutputDevice*> Devices;
};

#define GLog FOutputDeviceRedirector::Get()
