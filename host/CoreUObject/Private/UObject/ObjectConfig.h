// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

class UObject;

namespace HostConfig
{
/** Reads the config properties of a default object from the class's config file. */
void Load(UObject& DefaultObject);
} // namespace HostConfig
