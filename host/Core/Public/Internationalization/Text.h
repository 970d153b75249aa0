// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "UObject/NameTypes.h"

// Nothing here uses these. The engine declares them wherever texts are known, so plug-ins cannot have types so named.
class FLocKey;
class FStringTable;
class FTextId;
class FTextKey;

/** Text for people. */
class FText
{
public:
	FText() = default;

	static FText FromString(FString String) { return FText(std::move(String)); }

	static FText GetEmpty() { return FText(); }

	static FText FromName(const FName& Name) { return FText(Name.ToString()); }

	const FString& ToString() const { return Text; }

	bool IsEmpty() const { return Text.IsEmpty(); }

	/** Case counts. */
	bool EqualTo(const FText& Other) const { return Text.Equals(Other.Text); }

private:
	explicit FText(FString&& InText) : Text(std::move(InText)) {}

	FString Text;
};
