// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Misc/OutputDeviceRedirector.h"

FOutputDeviceRedirector* FOutputDeviceRedirector::Get()
{
	static FOutputDeviceRedirector* const Redirector = new FOutputDeviceRedirector();
	return Redirector;
}
