// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The properties of objects as lines of config files.
#pragma once

#include "CoreMinimal.h"

class UObject;

namespace HostConfig
{
/** Reads the config properties of a default object from the class's config file. */
void Load(UObject& DefaultObject);

/** The flags of all properties but transient ones. */
constexpr uint64 Lasting = 0;

/** Reads the properties that have one of the flags and stand in the section; the others stay. */
void Read(UObject& Object, uint64 Flags, const TCHAR* Section, const FString& File);

/** Writes the properties that have one of the flags, at once; the rest of the file stays. */
void Write(UObject& Object, uint64 Flags, const TCHAR* Section, const FString& File);
} // namespace HostConfig
