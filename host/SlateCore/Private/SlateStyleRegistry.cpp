// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Styling/SlateStyleRegistry.h"

static TMap<FName, const ISlateStyle*> Styles;

void FSlateStyleRegistry::RegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	const FName Name = InSlateStyle.GetStyleSetName();
	checkf(!Styles.Contains(Name), TEXT("The style set %s is registered already."), *Name.ToString());
	HostTrace::Line(TEXT("register style %s"), *Name.ToString());
	Styles.Add(Name, &InSlateStyle);
}

void FSlateStyleRegistry::UnRegisterSlateStyle(const ISlateStyle& InSlateStyle)
{
	HostTrace::Line(TEXT("unregister style %s"), *InSlateStyle.GetStyleSetName().ToString());
	Styles.Remove(InSlateStyle.GetStyleSetName());
}

const ISlateStyle* FSlateStyleRegistry::FindSlateStyle(const FName& InSlateStyleName)
{
	return Styles.FindRef(InSlateStyleName);
}

bool FSlateStyleRegistry::IterateAllStyles(const std::function<bool(const ISlateStyle&)>& Visit)
{
	for (const auto& [Name, Style] : Styles)
	{
		if (!Visit(*Style))
		{
			return false;
		}
	}
	return true;
}
