// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Framework/Application/SlateApplication.h"

namespace
{
bool bIsCreated = false;
}

void FSlateApplication::Create()
{
	bIsCreated = true;
}

void FSlateApplication::Shutdown()
{
	bIsCreated = false;
}

bool FSlateApplication::IsInitialized()
{
	return bIsCreated;
}
