// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Styling/SlateStyle.h"

#include "Misc/Paths.h"

FString FSlateStyleSet::RootToContentDir(const ANSICHAR* RelativePath, const TCHAR* Extension)
{
	return FPaths::Combine(ContentRootDir, UTF8_TO_TCHAR(RelativePath)) + Extension;
}

void FSlateStyleSet::Set(const FName PropertyName, FSlateBrush* InBrush)
{
	Brushes.Add(PropertyName, MakeShareable(InBrush));
}

const FSlateBrush* FSlateStyleSet::GetOptionalBrush(
	const FName PropertyName, const ANSICHAR*, const FSlateBrush* Default) const
{
	const TSharedPtr<FSlateBrush>* Found = Brushes.Find(PropertyName);
	return Found ? Found->Get() : Default;
}
