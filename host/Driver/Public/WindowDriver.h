// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A user's hands on the windows that plug-ins open.
#pragma once

#include "Picture.h"

/** Throws FDriverError for what is not there. Windows go by their titles. */
class FWindowDriver
{
public:
	/** In the order of their opening. */
	TArray<FString> Titles() const;

	/** The picture that the window shows. */
	FPicture Picture(const FString& Title) const;

	/** Draws the window's slider. @param Value 0 to 1 */
	void MoveSlider(const FString& Title, float Value) const;

	/** Types a value into the row of a property, written as in config files. */
	void EditProperty(const FString& Title, const FString& Property, const FString& Value) const;

	/** Takes the last edit of a property back. */
	void UndoEdit(const FString& Title, const FString& Property) const;

	void Close(const FString& Title) const;
};
