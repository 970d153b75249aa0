// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A texture without a file. What the renderer has of it is taken at UpdateResource.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

enum EPixelFormat : uint8
{
	PF_B8G8R8A8 = 2
};

enum TextureFilter
{
	TF_Bilinear = 1,
	TF_Default = 3
};

enum TextureAddress
{
	TA_Wrap,
	TA_Clamp
};

enum TextureGroup
{
	TEXTUREGROUP_World,
	TEXTUREGROUP_ColorLookupTable = 16
};

constexpr uint32 LOCK_READ_WRITE = 2;

class UTexture : public UObject
{
public:
	using UObject::UObject;

	/** Whether values are decoded when they are sampled. */
	uint8 SRGB : 1 = true;

	TextureFilter Filter = TF_Default;
	TextureGroup LODGroup = TEXTUREGROUP_World;
};

/** The pixels in one size. */
struct FTexture2DMipMap
{
	struct FBulkData
	{
		void* Lock(uint32)
		{
			check(!bIsLocked);
			bIsLocked = true;
			return Bytes.GetData();
		}

		void Unlock() { bIsLocked = false; }

		TArray<uint8> Bytes;
		bool bIsLocked = false;
	} BulkData;
};

struct FTexturePlatformData
{
	int32 SizeX = 0;
	int32 SizeY = 0;
	FTexture2DMipMap Mips[1];
};

class ENGINE_API UTexture2D : public UTexture
{
public:
	using UTexture::UTexture;

	static UClass* StaticClass();

	/** Blue, green, red and alpha of each pixel. Null without a renderer. */
	static UTexture2D* CreateTransient(int32 InSizeX, int32 InSizeY, EPixelFormat InFormat = PF_B8G8R8A8);

	FTexturePlatformData* GetPlatformData() { return &PlatformData; }

	void UpdateResource();

	TextureAddress AddressX = TA_Wrap;
	TextureAddress AddressY = TA_Wrap;

	/** What the renderer has. */
	TArray<uint8> RenderedPixels;

	/** Why the renderer cannot take it as a lookup table; empty when it can. */
	FString LookupFault = TEXT("it was never updated");

private:
	FTexturePlatformData PlatformData;
};
