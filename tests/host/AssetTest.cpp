// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Assets on disk, collections, and the chart that viewports show.
#include "EditorTest.h"
#include "Host/Assets.h"
#include "ProbeSettings.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtr.h"

#include <algorithm>

using testing::ElementsAre;

using Assets = FEditorTest;

TEST_F(Assets, LieInTheContentFolder)
{
	for (const TCHAR* Path : {TEXT("/Game/Things/Deep/B.B"), TEXT("/Game/A.A")})
	{
		HostAssets::Write(Options.ProjectFolder, TEXT("/Script/Probe.ProbeSettings"), Path);
	}
	HostAssets::Write(Options.ProjectFolder, TEXT("/Script/Gone.Gone"), TEXT("/Game/C.C"));
	Driver.Start(Options);
	FLines Paths;
	for (const FAssetData& Asset : HostAssets::GetAll())
	{
		Paths.push_back(TCHAR_TO_UTF8(*(Asset.PackagePath.ToString() + TEXT(" ") + Asset.GetObjectPathString())));
	}
	EXPECT_THAT(Paths, ElementsAre("/Game /Game/A.A", "/Game /Game/C.C", "/Game/Things/Deep /Game/Things/Deep/B.B"));
	EXPECT_EQ(StaticLoadObject(UObject::StaticClass(), TEXT("/Game/C.C")), nullptr);
	UObject* A = StaticLoadObject(UObject::StaticClass(), TEXT("/Game/A.A"));
	ASSERT_NE(A, nullptr);
	EXPECT_EQ(FAssetData(A), HostAssets::GetAll()[0]);
	EXPECT_EQ(FAssetData(A).GetClass(), A->GetClass());
	EXPECT_FALSE(FAssetData(nullptr).IsValid());
}

TEST_F(Assets, CollectionsLeaveWhatCanBeReached)
{
	Driver.Start(Options);
	UClass* const Class =
		static_cast<UClass*>(StaticFindObject(UClass::StaticClass(), TEXT("/Script/Probe.ProbeSettings")));
	const auto Make = [Class](UObject* Outer)
	{ return static_cast<UProbeSettings*>(NewObject<UObject>(Outer, Class)); };
	const auto MakeInAnother = [&] { return Make(Make(CreatePackage(TEXT("/Engine/Transient")))); };
	UProbeSettings* const Root = static_cast<UProbeSettings*>(Class->GetDefaultObject());
	UProbeSettings* const Element = MakeInAnother();
	UProbeSettings* const Below = MakeInAnother();
	Root->Entries.Emplace_GetRef().Object = Element;
	Element->Entries.Emplace_GetRef().Object = Below;
	Below->Entries.Emplace_GetRef().Object = Root;
	const FWeakObjectPtr Reached[] = {Element, Element->GetOuter(), Below, Below->GetOuter()};
	UProbeSettings* const Lonely = MakeInAnother();
	const FWeakObjectPtr Unreached[] = {Lonely, Lonely->GetOuter(), Make(Element)};
	const auto IsThere = [](const FWeakObjectPtr& Object) { return Object.Get() != nullptr; };
	CollectGarbage();
	EXPECT_TRUE(std::ranges::all_of(Reached, IsThere));
	EXPECT_TRUE(std::ranges::none_of(Unreached, IsThere));
	// Garbage goes although it is referred to, and with it what nothing else refers to.
	Element->MarkAsGarbage();
	CollectGarbage();
	EXPECT_EQ(Root->Entries[0].Object, nullptr);
	EXPECT_TRUE(std::ranges::none_of(Reached, IsThere));
}
