// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The widget alone, its source compiled into this program.
#include "EditorTest.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/MenuRow.h"
#include "SLevelViewport.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/STonalithWidget.h"

class LookWidget : public FEditorTest
{
};

TEST_F(LookWidget, NeedsAViewportAndNothingElse)
{
	Driver.Start(Options);
	EXPECT_EXIT(SNew(STonalithWidget), testing::ExitedWithCode(3), testing::HasSubstr("Assertion failed: Viewport "));
	Driver.OpenPane(TEXT("A"));
	TSharedPtr<STonalithWidget> Widget = SNew(STonalithWidget).Viewport(Driver.Pane(TEXT("A")).GetActiveViewport());
	const TWeakPtr<STonalithWidget> Weak = Widget;
	int PaddedSlots = 0;
	TSharedPtr<SMenuRow> Toggle;
	Widget->ForEachWidget(
		[&](SWidget& Child)
		{
			for (const FSlotBase* Slot : Child.GetSlots())
			{
				const FMargin& Space = Slot->SlotPadding;
				PaddedSlots += Space.Left == 0.0f && Space.Top == 0.0f && Space.Right == 4.0f && Space.Bottom == 0.0f;
			}
			if (SMenuRow* Row = dynamic_cast<SMenuRow*>(&Child); Row && Row->GetKind() == EMenuRow::Toggle)
			{
				Toggle = StaticCastSharedRef<SMenuRow>(Row->AsShared());
			}
		});
	EXPECT_EQ(PaddedSlots, 1);

	// Nobody listens.
	ASSERT_TRUE(Toggle.IsValid());
	EXPECT_FALSE(Toggle->IsChecked());
	Toggle->ClickCheckBox();
	EXPECT_TRUE(Toggle->IsChecked());

	// What stays of it in the registered menu does not keep it.
	Widget.Reset();
	EXPECT_FALSE(Weak.IsValid());
	Toggle->ClickCheckBox();
	EXPECT_FALSE(Toggle->IsChecked());
}
