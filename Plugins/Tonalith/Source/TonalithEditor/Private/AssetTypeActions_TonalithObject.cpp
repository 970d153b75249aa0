// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "AssetTypeActions_TonalithObject.h"

#include "CapturedFrame.h"
#include "Editor.h"
#include "EditorStringTable.h"
#include "Templates/Casts.h"
#include "TextKeys.h"
#include "TonalithDisplayManager.h"
#include "TonalithImageDesc.h"
#include "TonalithObject.h"
#include "TonalithRuntime.h"
#include "UnrealClient.h"

namespace
{
void OpenLook(UTonalithObject& Look, FViewport& Viewport)
{
	TArray<FColor> Pixels;
	const bool bWasRead = Viewport.ReadPixels(Pixels);
	const FIntPoint Size = Viewport.GetSizeXY();
	if (!bWasRead || Pixels.Num() < Size.X * Size.Y)
	{
		UE_LOG(LogTemp, Warning, TEXT("OpenAssetEditor: %s is not opened, the viewport's pixels cannot be read"),
			*Look.GetName());
		return;
	}
	const TArray<uint8> Frame = FrameFromPixels(Pixels);

	FTonalithAPI_ImageDesc Image;
	Image.Version = 1;
	Image.Pixels = Frame.GetData();
	Image.Width = Size.X;
	Image.Height = Size.Y;
	Image.RowLength = Size.X;
	Image.ValueScale = 1.0f;
	Image.ValueOffset = 0.0f;
	Image.ExposureScale = 1.0f;
	Image.ExposureOffset = 0.0f;
	Image.Minimum = -1000.0f;
	Image.Maximum = 1000.0f;
	Image.Time = 0.0f;
	Image.Flags = 0;
	Look.DisplayUserInterface(Image);
}
} // namespace

FText FAssetTypeActions_TonalithObject::GetName() const
{
	return LocalizedText(TextKeys::AssetName, {});
}

UClass* FAssetTypeActions_TonalithObject::GetSupportedClass() const
{
	return UTonalithObject::StaticClass();
}

FColor FAssetTypeActions_TonalithObject::GetTypeColor() const
{
	return FColor::White;
}

uint32 FAssetTypeActions_TonalithObject::GetCategories()
{
	return EAssetTypeCategories::Misc;
}

FText FAssetTypeActions_TonalithObject::GetAssetDescription(const FAssetData&) const
{
	return LocalizedText(TextKeys::AssetDescription, {});
}

void FAssetTypeActions_TonalithObject::OpenAssetEditor(const TArray<UObject*>& InObjects, TSharedPtr<IToolkitHost>)
{
	FViewport* CurrentViewport = GEditor->GetActiveViewport();
	check(CurrentViewport);
	FTonalithDisplayConfiguration& Configuration =
		GetTonalithDisplayManager().FindOrAddDisplayConfiguration(CurrentViewport->GetClient());
	const bool bDisplay = Configuration.bDisplay;

	// The picture is taken without the look: the viewport is drawn once more without it.
	Configuration.bDisplay = false;
	CurrentViewport->Draw(true);
	for (UObject* Object : InObjects)
	{
		if (UTonalithObject* Look = Cast<UTonalithObject>(Object))
		{
			OpenLook(*Look, *CurrentViewport);
		}
	}
	Configuration.bDisplay = bDisplay;
}
