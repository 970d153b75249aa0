// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The widget alone, its source compiled into this program.
#include "EditorTest.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/MenuRow.h"
#include "SLevelViewport.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/STonalithWidget.h"

using testing::ExitedWithCode;
using testing::HasSubstr;

class LookWidget : public FEditorTest
{
};

TEST_F(LookWidget, NeedsAViewportAndNothingElse)
{
	Driver.Start(Options);
	EXPECT_EXIT(SNew(STonalithWidget), ExitedWithCode(3), HasSubstr("Assertion failed: Viewport "));
	Driver.OpenPane(TEXT("A"));
	const TSharedRef<STonalithWidget> Widget =
		SNew(STonalithWidget).Viewport(Driver.Pane(TEXT("A")).GetActiveViewport());
	bool bHasPaddedBox = false;
	TSharedPtr<SMenuRow> Toggle;
	Widget->ForEachWidget(
		[&](SWidget& Child)
		{
			for (const FSlotBase* Slot : Child.GetSlots())
			{
				bHasPaddedBox =
					bHasPaddedBox || (dynamic_cast<SVerticalBox*>(&Child) && Slot->SlotPadding.Right == 4.0f);
			}
			if (SMenuRow* Row = dynamic_cast<SMenuRow*>(&Child); Row && Row->GetKind() == EMenuRow::Toggle)
			{
				Toggle = StaticCastSharedRef<SMenuRow>(Row->AsShared());
			}
		});
	EXPECT_TRUE(bHasPaddedBox);

	// Nobody listens.
	ASSERT_TRUE(Toggle.IsValid());
	EXPECT_FALSE(Toggle->IsChecked());
	Toggle->ClickCheckBox();
	EXPECT_TRUE(Toggle->IsChecked());
	Driver.Quit();
}
