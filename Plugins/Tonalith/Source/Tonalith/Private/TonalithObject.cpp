// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "TonalithObject.h"

#include "Color/CubeWriter.h"
#include "Color/LookBaker.h"
#include "Engine/Texture2D.h"
#include "Framework/Application/SlateApplication.h"
#include "LookGrading.h"
#include "LookTableInUse.h"
#include "SLookWindow.h"
#include "TonalithImageDesc.h"
#include "TonalithLookTable.h"

#if WITH_EDITOR
#include "Editor.h"
#include "EditorFramework/AssetImportData.h"
#include "UObject/UnrealType.h"
#endif

namespace
{
bool IsConsistent(const FTonalithAPI_ImageDesc& Image)
{
	const auto IsSide = [](int32 Length) { return Length > 0 && Length <= FTonalithAPI_ImageDesc::LongestSide; };
	return Image.Version == 1 && Image.Pixels && IsSide(Image.Width) && IsSide(Image.Height) &&
		   Image.RowLength >= Image.Width;
}

/** The window shows the values as they are stored: 8 bits from 0 to 1. */
bool IsShownAsStored(const FTonalithAPI_ImageDesc& Image)
{
	return Image.ValueScale == 1.0f && Image.ValueOffset == 0.0f && Image.ExposureScale == 1.0f &&
		   Image.ExposureOffset == 0.0f && Image.Minimum <= 0.0f && Image.Maximum >= 1.0f;
}
} // namespace

void UTonalithObject::SetTable(const FTonalithLookTable& Table)
{
	TableTitle = Table.Title;
	TableBytes = Table.Bytes;
	ForgetTable();
}

void UTonalithObject::ForgetTable()
{
	TableInUse.Reset();
	TableTexture = nullptr;
	bIsTableDamaged = false;
}

TSharedPtr<const FLookTableInUse> UTonalithObject::GetTable() const
{
	if (!TableInUse.IsValid() && !TableBytes.IsEmpty() && !bIsTableDamaged)
	{
		TableInUse = MakeTableInUse(TableBytes, GetName());
		bIsTableDamaged = !TableInUse.IsValid();
	}
	return TableInUse;
}

UTexture2D* UTonalithObject::GetTableTexture()
{
	const TSharedPtr<const FLookTableInUse> Table = TableTexture ? nullptr : GetTable();
	if (Table.IsValid())
	{
		TableTexture = MakeTableTexture(Table->Table);
	}
	return TableTexture;
}

FString UTonalithObject::MakeCubeText(int32 Size) const
{
	const TSharedPtr<const FLookTableInUse> Table = GetTable();
	LookColor::FLookTable Baked =
		LookColor::Baked(GradingOf(*this), Table.IsValid() ? &Table->Table : nullptr, static_cast<size_t>(Size));
	Baked.Title = TCHAR_TO_UTF8(TableTitle.IsEmpty() ? *GetName() : *TableTitle);
	return UTF8_TO_TCHAR(LookColor::CubeText(Baked).c_str());
}

void UTonalithObject::DisplayUserInterface(FTonalithAPI_ImageDesc& Image)
{
	if (!IsConsistent(Image) || !IsShownAsStored(Image))
	{
		UE_LOG(LogTemp, Warning, TEXT("DisplayUserInterface: the picture for %s is refused"), *GetName());
		return;
	}
	if (!FSlateApplication::IsInitialized())
	{
		return;
	}
	TSharedPtr<SLookWindow> Shown = Window.Pin();
	if (!Shown.IsValid())
	{
		Shown = SNew(SLookWindow).Look(this);
		FSlateApplication::Get().AddWindow(Shown.ToSharedRef());
		Window = Shown;
	}
	Shown->ShowFrame(Image);
	Shown->BringToFront();
}

void UTonalithObject::BeginDestroy()
{
	if (const TSharedPtr<SLookWindow> Shown = Window.Pin())
	{
		FSlateApplication::Get().RequestDestroyWindow(Shown.ToSharedRef());
	}
	Super::BeginDestroy();
}

#if WITH_EDITOR
void UTonalithObject::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);
	MarkPackageDirty();
	// Any property: the table may be another one.
	if (!PropertyChangedEvent.Property)
	{
		ForgetTable();
	}
	if (const TSharedPtr<SLookWindow> Shown = Window.Pin())
	{
		Shown->OnLookChanged();
	}
	if (GEditor)
	{
		GEditor->RedrawAllViewports();
	}
}
#endif
