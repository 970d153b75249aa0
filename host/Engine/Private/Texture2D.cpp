// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Engine/Texture2D.h"

#include "Host/Trace.h"
#include "LookupTables.h"
#include "Misc/App.h"
#include "UObject/GeneratedCppIncludes.h"

HOST_DEFINE_OWN_CLASS(Engine, U, Texture2D, &HostReflection::Construct<UTexture2D>)

UTexture2D* UTexture2D::CreateTransient(int32 InSizeX, int32 InSizeY, EPixelFormat)
{
	if (!FApp::CanEverRender())
	{
		return nullptr;
	}
	UTexture2D* Texture = NewObject<UTexture2D>();
	Texture->PlatformData.SizeX = InSizeX;
	Texture->PlatformData.SizeY = InSizeY;
	Texture->PlatformData.Mips[0].BulkData.Bytes.SetNumUninitialized(InSizeX * InSizeY * 4);
	return Texture;
}

void UTexture2D::UpdateResource()
{
	HostTrace::Line(TEXT("update texture %d x %d"), PlatformData.SizeX, PlatformData.SizeY);
	const auto& Pixels = PlatformData.Mips[0].BulkData;
	check(!Pixels.bIsLocked);
	RenderedPixels = Pixels.Bytes;
	constexpr int32 Side = FHostLookupTable::Side;
	const bool bIsWhole = PlatformData.SizeX == Side * Side && PlatformData.SizeY == Side;
	const bool bIsClamped = AddressX == TA_Clamp && AddressY == TA_Clamp;
	const bool bIsInGroup = LODGroup == TEXTUREGROUP_ColorLookupTable;
	LookupFault = FString(bIsWhole ? TEXT("") : TEXT("size ")) + (SRGB ? TEXT("SRGB ") : TEXT("")) +
				  (Filter == TF_Bilinear ? TEXT("") : TEXT("Filter ")) + (bIsClamped ? TEXT("") : TEXT("Address ")) +
				  (bIsInGroup ? TEXT("") : TEXT("LODGroup"));
}
