// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Containers/UnrealString.h"
#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

/** Takes log lines. Called by any thread, one at a time. */
class FOutputDevice
{
public:
	virtual ~FOutputDevice() = default;

	/** The text has no trailing line end, but may have several lines. */
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) = 0;

	/** A line of no category. */
	void Log(const FString& S) { Serialize(*S, ELogVerbosity::Log, FName()); }

	/** Arguments as for FString::Printf. */
	template <size_t Size, typename... ArgTypes>
	void Logf(ELogVerbosity::Type Verbosity, const TCHAR (&Format)[Size], ArgTypes... Args)
	{
		Serialize(*FString::Printf(Format, Args...), Verbosity, FName());
	}
};
