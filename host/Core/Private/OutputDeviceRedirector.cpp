// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Misc/OutputDeviceRedirector.h"

#include "Misc/ScopeLock.h"

FOutputDeviceRedirector* FOutputDeviceRedirector::Get()
{
	static FOutputDeviceRedirector* const Redirector = new FOutputDeviceRedirector();
	return Redirector;
}

void FOutputDeviceRedirector::AddOutputDevice(FOutputDevice* OutputDevice)
{
	const FScopeLock Scope(&Lock);
	Devices.Add(OutputDevice);
}

void FOutputDeviceRedirector::RemoveOutputDevice(FOutputDevice* OutputDevice)
{
	const FScopeLock Scope(&Lock);
	Devices.Remove(OutputDevice);
}

void FOutputDeviceRedirector::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	const FScopeLock Scope(&Lock);
	for (FOutputDevice* Device : Devices)
	{
		Device->Serialize(V, Verbosity, Category);
	}
}
