// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "TonalithEditorSettings.h"

namespace
{
auto HasIdentifier(FName ViewportIdentifier)
{
	return [ViewportIdentifier](const FTNLPerViewportDisplaySettingPair& Pair)
	{ return Pair.ViewportIdentifier == ViewportIdentifier; };
}
} // namespace

const FTonalithDisplayConfiguration* UTonalithLevelViewportSettings::FindDisplayConfiguration(
	FName ViewportIdentifier) const
{
	const FTNLPerViewportDisplaySettingPair* Pair =
		ViewportsSettings.FindByPredicate(HasIdentifier(ViewportIdentifier));
	return Pair ? &Pair->DisplayConfiguration : nullptr;
}

void UTonalithLevelViewportSettings::SetDisplayConfiguration(
	FName ViewportIdentifier, const FTonalithDisplayConfiguration& DisplayConfiguration)
{
	FTNLPerViewportDisplaySettingPair* Pair = ViewportsSettings.FindByPredicate(HasIdentifier(ViewportIdentifier));
	if (!Pair)
	{
		Pair = &ViewportsSettings.Emplace_GetRef();
		Pair->ViewportIdentifier = ViewportIdentifier;
	}
	Pair->DisplayConfiguration = DisplayConfiguration;
}
