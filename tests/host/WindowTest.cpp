// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Windows of plug-ins, and what a collection does to what they show.
#include "EditorTest.h"
#include "Framework/Application/SlateApplication.h"
#include "IDetailsView.h"
#include "Modules/ModuleManager.h"
#include "ProbeSettings.h"
#include "PropertyEditorModule.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtr.h"
#include "Widgets/SWindow.h"

using testing::ElementsAre;

class Windows : public FEditorTest
{
protected:
	/** A window with the object's properties. */
	TWeakPtr<SWindow> Show(UObject* Object)
	{
		const TSharedRef<IDetailsView> Details =
			FModuleManager::LoadModuleChecked<FPropertyEditorModule>("PropertyEditor").CreateDetailView({});
		Details->SetObject(Object);
		return FSlateApplication::Get().AddWindow(SNew(SWindow).Title(FText::FromString(TEXT("Probe")))[Details]);
	}

	static UProbeSettings* Make(UObject* Outer)
	{
		UClass* const Class =
			static_cast<UClass*>(StaticFindObject(UClass::StaticClass(), TEXT("/Script/Probe.ProbeSettings")));
		return static_cast<UProbeSettings*>(NewObject<UObject>(Outer, Class));
	}

	static UProbeSettings* Make() { return Make(CreatePackage(TEXT("/Engine/Transient"))); }

	void Edit(const TCHAR* Property, const TCHAR* Value)
	{
		Driver.Windows().EditProperty(TEXT("Probe"), Property, Value);
	}
};

TEST_F(Windows, EditsAreSetThenTold)
{
	Driver.Start(Options);
	TakeTrace();
	UProbeSettings& Settings = *Make();
	const TWeakPtr<SWindow> Window = Show(&Settings);
	Edit(TEXT("Forgotten"), TEXT("2.5"));
	EXPECT_EQ(Settings.Forgotten, 2.5f);
	EXPECT_EQ(Settings.Told, 2.5f);
	EXPECT_THROW(Edit(TEXT("Share"), TEXT("2.5")), FDriverError) << "not for users";
	EXPECT_THROW(Driver.Windows().Picture(TEXT("Probe")), FDriverError);

	// The view does not keep the object.
	CollectGarbage();
	Edit(TEXT("Forgotten"), TEXT("3.5"));
	EXPECT_TRUE(Window.IsValid());
	Driver.Windows().Close(TEXT("Probe"));
	EXPECT_FALSE(Window.IsValid());
	EXPECT_THROW(Driver.Windows().Close(TEXT("Probe")), FDriverError);
	EXPECT_THAT(TakeTrace(), ElementsAre("open window Probe", "close window Probe"));
	Show(nullptr);
	EXPECT_THROW(Edit(TEXT("Forgotten"), TEXT("1")), FDriverError);
	Driver.Quit();
}

TEST_F(Windows, CollectionsLeaveWhatCanBeReached)
{
	Driver.Start(Options);
	UProbeSettings* const Root = static_cast<UProbeSettings*>(Make()->GetClass()->GetDefaultObject());
	UProbeSettings* const Element = Make(Make());
	UProbeSettings* const Below = Make(Make());
	Root->Entries.Emplace_GetRef().Object = Element;
	Element->Entries.Emplace_GetRef().Object = Below;
	Below->Entries.Emplace_GetRef().Object = Root;
	const FWeakObjectPtr Reached[] = {Element, Element->GetOuter(), Below, Below->GetOuter()};
	UProbeSettings* const Lonely = Make(Make());
	const FWeakObjectPtr Unreached[] = {Lonely, Lonely->GetOuter(), Make(Element)};
	CollectGarbage();
	for (const FWeakObjectPtr& Object : Reached)
	{
		EXPECT_NE(Object.Get(), nullptr);
	}
	for (const FWeakObjectPtr& Object : Unreached)
	{
		EXPECT_EQ(Object.Get(), nullptr);
	}

	// Garbage goes although it is referred to, and with it what nothing else refers to.
	Element->MarkAsGarbage();
	CollectGarbage();
	EXPECT_EQ(Root->Entries[0].Object, nullptr);
	for (const FWeakObjectPtr& Object : Reached)
	{
		EXPECT_EQ(Object.Get(), nullptr);
	}
	Driver.Quit();
}
