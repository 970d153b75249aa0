// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The look asset.
#pragma once

#include "UObject/NoExportTypes.h"
#include "UObject/ObjectPtr.h"

#include "TonalithObject.generated.h"

class SLookWindow;
class UAssetImportData;
class UTexture2D;
struct FLookTableInUse;
struct FTonalithAPI_ImageDesc;
struct FTonalithLookTable;

/**
 * A look: what is done to the colors of a picture. Each control has a value for red, green and blue, and one that scales,
 * or for the offset shifts, all three. The defaults change nothing. Behind the controls, a look may have a lookup table;
 * one without it costs nothing for that.
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

	/** What the table's maker calls it; empty without a table. */
	UPROPERTY(VisibleAnywhere, Category = "Lookup table")
	FString TableTitle;

#if WITH_EDITORONLY_DATA
	/** Which file the table came from; null until the first import. */
	UPROPERTY(VisibleAnywhere, Instanced, Category = "Lookup table")
	TObjectPtr<UAssetImportData> AssetImportData;
#endif

	/**
	 * Gives the look a table in place of the one before; an empty one takes it away. The controls stay. Whoever calls this
	 * for a user calls PreEditChange before and PostEditChange after it. Game thread.
	 */
	TONALITH_API void SetTable(const FTonalithLookTable& Table);

	/**
	 * The whole look, controls and table, as the text of one .cube file: ASCII, lines that end with LF. Curves stand in
	 * front of the cube where the controls need them. Takes tens of milliseconds for 33 samples a side. Game thread: it
	 * makes the table ready as GetTable does.
	 * @param Size samples a side, 2 to 129
	 */
	TONALITH_API FString MakeCubeText(int32 Size) const;

	/** The table in full; null without one. Stays as it is for as long as somebody holds it. Game thread. */
	TSharedPtr<const FLookTableInUse> GetTable() const;

	/** The table as views take it; null without one, and without a renderer. The look keeps it. Game thread. */
	UTexture2D* GetTableTexture();

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
	/** What was made of the table is made anew when it is asked for. */
	void ForgetTable();

	/** As FTonalithLookTable has them; empty without a table. */
	UPROPERTY()
	TArray<uint8> TableBytes;

	/** Made of the table at the first use after a change. */
	UPROPERTY(Transient)
	TObjectPtr<UTexture2D> TableTexture;
	mutable TSharedPtr<const FLookTableInUse> TableInUse;

	/** The bytes are none: nobody tries again. */
	mutable bool bIsTableDamaged = false;

	/** The application owns it for as long as it is open. */
	TWeakPtr<SLookWindow> Window;
};
