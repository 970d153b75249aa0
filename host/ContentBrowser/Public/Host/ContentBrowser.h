// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What a user does in the content browser.
#pragma once

#include "CoreMinimal.h"

class UClass;
class UFactory;
class UObject;
struct FSlateBrush;

struct FHostNewAssetEntry
{
	FText Label;
	UFactory* Factory;
};

namespace HostContentBrowser
{
/** The entries for new assets: all factories that want to stand there and whose class is a known asset type. */
CONTENTBROWSER_API TArray<FHostNewAssetEntry> GetNewAssetMenu();

/** Makes an asset, and opens it at once if the factory says so. @return null when the factory makes none */
CONTENTBROWSER_API UObject* CreateNewAsset(const FString& Name, const FString& Folder, UFactory& Factory);

/**
 * What the browser paints for assets of a class: the brush "<Kind>.<class>" of any style set, for the class or its
 * nearest base that has one; null when there is none.
 * @param Kind "ClassIcon" or "ClassThumbnail"
 */
CONTENTBROWSER_API const FSlateBrush* FindClassBrush(const TCHAR* Kind, const UClass& Class);
} // namespace HostContentBrowser
