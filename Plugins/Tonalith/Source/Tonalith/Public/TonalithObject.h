// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The look asset.
#pragma once

#include "UObject/NoExportTypes.h"

#include "TonalithObject.generated.h"

struct FTonalithAPI_ImageDesc;

/** A look: what is done to the colours of a picture. */
UCLASS(MinimalAPI)
class UTonalithObject : public UObject
{
	GENERATED_BODY()

public:
	/**
	 * Shows the look's user interface with a picture to judge the look by. A picture that its description contradicts is
	 * refused with a warning in the log. Game thread.
	 * @param Image copied before the call returns
	 */
	TONALITH_API void DisplayUserInterface(FTonalithAPI_ImageDesc& Image);

	/** The last picture: rows from top to bottom, pixels as red, green, blue, alpha; empty before the first. */
	const TArray<uint8>& GetPicture() const { return Picture; }

	/** In pixels. */
	FIntPoint GetPictureSize() const { return PictureSize; }

private:
	TArray<uint8> Picture;
	FIntPoint PictureSize;
};
