// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "UObject/Object.h"
#include "UnrealClient.h"

/** The object comes first: converting to FViewportClient changes the address. */
class UScriptViewportClient
	: public UObject
	, public FCommonViewportClient
{
};
