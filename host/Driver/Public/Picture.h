// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What a viewport shows, as a picture.
#pragma once

#include "CoreMinimal.h"

struct FPicture
{
	FIntPoint Size;

	/** Row by row; alpha means nothing. */
	TArray<FColor> Pixels;
};

/** Whether they look the same. */
bool IsSamePicture(const FPicture& A, const FPicture& B);

/** Writes a PNG file; folders are made. @return false when it cannot be written */
bool SavePicture(const FPicture& Picture, const FString& File);

/** Reads a PNG file. @return false when there is none, or it cannot be read */
bool LoadPicture(const FString& File, FPicture& OutPicture);
