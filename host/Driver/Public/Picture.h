// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What a viewport shows, as a picture.
#pragma once

#include "CoreMinimal.h"
#include <string>

struct FPicture
{
	FIntPoint Size;

	/** Row by row; alpha means nothing. */
	TArray<FColor> Pixels;
};

/** Whether they look the same. */
bool IsSamePicture(const FPicture& A, const FPicture& B);

/** The bytes of a PNG file; the same for pictures that look the same. */
std::string EncodePicture(const FPicture& Picture);

/** Writes a PNG file; folders are made. @return false when it cannot be written */
bool SavePicture(const FPicture& Picture, const FString& File);
