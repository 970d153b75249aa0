// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The look asset.
#pragma once

#include "UObject/NoExportTypes.h"

#include "TonalithObject.generated.h"

class SLookWindow;
struct FTonalithAPI_ImageDesc;

/**
 * A look: what is done to the colors of a picture. Each control has a value for red, green and blue, and one that scales,
 * or for the offset shifts, all three. The defaults change nothing.
 */
UCLASS(MinimalAPI)
class UTonalithObject : public UObject
{
	GENERATED_BODY()

public:
	/** How strong colors are: 0 leaves grays, 1 the colors as they are. */
	UPROPERTY(EditAnywhere, Category = "Grading",
		meta = (UIMin = "0.0", UIMax = "2.0", Delta = "0.01", ColorGradingMode = "saturation"))
	FVector4 Saturation = FVector4(1.0, 1.0, 1.0, 1.0);

	/** How far light and dark lie apart, around middle gray. */
	UPROPERTY(EditAnywhere, Category = "Grading",
		meta = (UIMin = "0.0", UIMax = "2.0", Delta = "0.01", ColorGradingMode = "contrast"))
	FVector4 Contrast = FVector4(1.0, 1.0, 1.0, 1.0);

	/** How bright the middle is; black and white stay. */
	UPROPERTY(EditAnywhere, Category = "Grading",
		meta = (UIMin = "0.0", UIMax = "2.0", Delta = "0.01", ColorGradingMode = "gamma"))
	FVector4 Gamma = FVector4(1.0, 1.0, 1.0, 1.0);

	/** How bright everything is; black stays. */
	UPROPERTY(EditAnywhere, Category = "Grading",
		meta = (UIMin = "0.0", UIMax = "2.0", Delta = "0.01", ColorGradingMode = "gain"))
	FVector4 Gain = FVector4(1.0, 1.0, 1.0, 1.0);

	/** What is added to everything. */
	UPROPERTY(EditAnywhere, Category = "Grading",
		meta = (UIMin = "-1.0", UIMax = "1.0", Delta = "0.001", ColorGradingMode = "offset"))
	FVector4 Offset = FVector4(0.0, 0.0, 0.0, 0.0);

	/**
	 * Opens the look's window with a frame to judge the look by, the look on it in full; a window that is open already
	 * comes to the front with the new frame. A frame that its description contradicts, or that is not to be shown as it
	 * is stored, is refused with a warning in the log. Nothing without a user interface, as in commandlets. Game thread.
	 * @param Image copied before the call returns
	 */
	TONALITH_API void DisplayUserInterface(FTonalithAPI_ImageDesc& Image);

	/** Closes the window. */
	virtual void BeginDestroy() override;

#if WITH_EDITOR
	/** Shows the change in the viewports and has the asset saved. */
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;
#endif

private:
	/** The application owns it for as long as it is open. */
	TWeakPtr<SLookWindow> Window;
};
