// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A named set of brushes.
#pragma once

#include "Misc/Paths.h"
#include "Styling/SlateBrush.h"

class ISlateStyle
{
public:
	virtual ~ISlateStyle() = default;
	virtual const FName& GetStyleSetName() const = 0;

	/** The default when there is no brush of that name. */
	virtual const FSlateBrush* GetOptionalBrush(
		const FName PropertyName, const ANSICHAR* Specifier = nullptr, const FSlateBrush* Default = nullptr) const = 0;
};

class FSlateStyleSet : public ISlateStyle
{
public:
	explicit FSlateStyleSet(const FName& InStyleSetName) : StyleSetName(InStyleSetName) {}

	const FName& GetStyleSetName() const override { return StyleSetName; }

	virtual void SetContentRoot(const FString& InContentRootDir) { ContentRootDir = InContentRootDir; }

	/** The root, one slash, the relative path, the extension as it stands. */
	virtual FString RootToContentDir(const ANSICHAR* RelativePath, const TCHAR* Extension)
	{
		return FPaths::Combine(ContentRootDir, UTF8_TO_TCHAR(RelativePath)) + Extension;
	}

	/** Takes the brush over. */
	void Set(const FName PropertyName, FSlateBrush* InBrush) { Brushes.Add(PropertyName, MakeShareable(InBrush)); }

	const FSlateBrush* GetOptionalBrush(
		const FName PropertyName, const ANSICHAR* = nullptr, const FSlateBrush* Default = nullptr) const override
	{
		const TSharedPtr<FSlateBrush> Found = Brushes.FindRef(PropertyName);
		return Found.IsValid() ? Found.Get() : Default;
	}

private:
	FName StyleSetName;
	FString ContentRootDir;
	TMap<FName, TSharedPtr<FSlateBrush>> Brushes;
};
