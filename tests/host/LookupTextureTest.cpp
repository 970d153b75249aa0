// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Lookup textures of views.
#include "EditorTest.h"
#include "Engine/Engine.h"
#include "Engine/Texture2D.h"
#include "SceneView.h"

using testing::ElementsAre;

namespace
{
/** Has every view use a table. */
class FTableExtension final : public FSceneViewExtensionBase
{
public:
	FTableExtension(const FAutoRegister& Register, UTexture2D& InTable)
		: FSceneViewExtensionBase(Register), Table(InTable)
	{
	}

	void SetupViewFamily(FSceneViewFamily&) override {}
	void SetupView(FSceneViewFamily&, FSceneView& View) override { View.FinalPostProcessSettings.LerpTo(&Table, 0.5f); }
	void BeginRenderViewFamily(FSceneViewFamily&) override {}

private:
	UTexture2D& Table;
};

/** A table of black. */
UTexture2D& MakeTable(int32 Size)
{
	UTexture2D& Texture = *UTexture2D::CreateTransient(Size * Size, Size);
	std::memset(Texture.GetPlatformData()->Mips[0].BulkData.Lock(LOCK_READ_WRITE), 0,
		static_cast<size_t>(4 * Size * Size * Size));
	Texture.SRGB = false;
	Texture.Filter = TF_Bilinear;
	Texture.AddressX = Texture.AddressY = TA_Clamp;
	Texture.LODGroup = TEXTUREGROUP_ColorLookupTable;
	return Texture;
}
} // namespace

class LookupTexture : public FEditorTest
{
protected:
	/** White's value under a texture. */
	int32 White(UTexture2D& Texture)
	{
		const auto Extension = FSceneViewExtensions::NewExtension<FTableExtension>(Texture);
		return Driver.TakePicture().Pixels.Last().G;
	}
};

TEST_F(LookupTexture, CountsWhenItIsSetUpAsATableAndBlendsByWeight)
{
	Driver.Start(Options);
	Driver.OpenPane(TEXT("OnePane.Viewport 1.Viewport0"));
	const auto Refused = [](const char* Why)
	{
		return ElementsAre(
			testing::MatchesRegex("Error: The lookup table Texture2D_.* is not used: " + std::string(Why) + " ?"));
	};
	UTexture2D& Table = MakeTable(16);
	EXPECT_EQ(White(Table), 255);
	EXPECT_THAT(TakeLog("LogTemp"), Refused("it was never updated"));
	Table.UpdateResource();
	EXPECT_EQ(White(Table), 128) << "half of it is as it was";
	const struct
	{
		const char* Why;
		void (*Spoil)(UTexture2D&);
	} Rows[] = {{"SRGB", [](UTexture2D& Texture) { Texture.SRGB = true; }},
		{"Filter", [](UTexture2D& Texture) { Texture.Filter = TF_Default; }},
		{"Address", [](UTexture2D& Texture) { Texture.AddressY = TA_Wrap; }},
		{"LODGroup", [](UTexture2D& Texture) { Texture.LODGroup = TEXTUREGROUP_World; }}};
	for (const auto& Row : Rows)
	{
		UTexture2D& Spoilt = MakeTable(16);
		Row.Spoil(Spoilt);
		Spoilt.UpdateResource();
		EXPECT_EQ(White(Spoilt), 255);
		EXPECT_THAT(TakeLog("LogTemp"), Refused(Row.Why));
	}
	UTexture2D& Greater = MakeTable(32);
	Greater.UpdateResource();
	EXPECT_EQ(White(Greater), 255);
	EXPECT_THAT(TakeLog("LogTemp"), Refused("size"));
}
