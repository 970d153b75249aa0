// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What a user does with files in the content browser.
#pragma once

#include "CoreMinimal.h"

class UObject;

namespace HostContentBrowser
{
/**
 * Imports a file by the first factory that takes it, into an asset named after it; one that is there already is replaced,
 * as the user confirms.
 * @param Folder such as "/Game/Looks"
 * @return null when nobody imports the file, or that fails
 */
CONTENTBROWSER_API UObject* Import(const FString& File, const FString& Folder);
} // namespace HostContentBrowser
