// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "LookTableInUse.h"

#include "Color/TableBytes.h"
#include "Engine/Texture2D.h"
#include "Misc/App.h"

namespace
{
/** Of the renderer's own tables. */
constexpr int32 Side = 16;

FColor Sampled(const LookColor::FLookTable& Table, int32 Red, int32 Green, int32 Blue)
{
	const auto Value = [](int32 Sample) { return static_cast<float>(Sample) / static_cast<float>(Side - 1); };
	const LookColor::FTriple Color = LookColor::Applied(Table, {Value(Red), Value(Green), Value(Blue)});
	const auto Stored = [](float Shown)
	{ return static_cast<uint8>(FMath::RoundToInt32(FMath::Clamp(Shown, 0.0f, 1.0f) * 255.0f)); };
	return FColor(Stored(Color[0]), Stored(Color[1]), Stored(Color[2]));
}
} // namespace

TSharedPtr<const FLookTableInUse> MakeTableInUse(const TArray<uint8>& Bytes, const FString& Owner)
{
	std::optional<LookColor::FLookTable> Table =
		LookColor::TableFrom({Bytes.GetData(), static_cast<size_t>(Bytes.Num())});
	if (!Table)
	{
		UE_LOG(LogTemp, Warning, TEXT("%s is shown without its lookup table: what is stored of it is damaged"), *Owner);
		return nullptr;
	}
	return MakeShared<FLookTableInUse>(std::move(*Table));
}

UTexture2D* MakeTableTexture(const LookColor::FLookTable& Table)
{
	UTexture2D* const Texture =
		FApp::CanEverRender() ? UTexture2D::CreateTransient(Side * Side, Side, PF_B8G8R8A8) : nullptr;
	if (!Texture)
	{
		return nullptr;
	}
	auto& Pixels = Texture->GetPlatformData()->Mips[0].BulkData;
	FColor* Pixel = static_cast<FColor*>(Pixels.Lock(LOCK_READ_WRITE));
	for (int32 Row = 0; Row < Side; ++Row)
	{
		for (int32 Column = 0; Column < Side * Side; ++Column)
		{
			*Pixel++ = Sampled(Table, Column % Side, Row, Column / Side);
		}
	}
	Pixels.Unlock();
	// Its values are colors as displays take them, and stay as they are.
	Texture->SRGB = false;
	Texture->Filter = TF_Bilinear;
	Texture->LODGroup = TEXTUREGROUP_ColorLookupTable;
	Texture->AddressX = TA_Clamp;
	Texture->AddressY = TA_Clamp;
	Texture->UpdateResource();
	return Texture;
}
