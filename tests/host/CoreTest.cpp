// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Names, and what is fatal or reported in the basic types.
#include "EditorTest.h"

#include <cstdlib>
#include <functional>

using testing::AllOf;
using testing::ExitedWithCode;
using testing::HasSubstr;
using testing::Not;

namespace
{
struct FWidget : TSharedFromThis<FWidget>
{
	void OnEvent() {}
};

struct FUnwindingShows
{
	~FUnwindingShows() { std::fputs("unwound", stderr); }
};

constexpr int32 FailingLine = __LINE__ + 3;
void FailCheck(int32 Value)
{
	checkf(Value == 2, TEXT("the value is %d\nand %s"), Value, TEXT("odd"));
}
} // namespace

using FCore = FEditorTest;

TEST_F(FCore, NamesCompareWithoutCaseAndKeepIt)
{
	for (const TCHAR* Text : {TEXT("Pane_12"), TEXT("PANE_12"), TEXT("none_3")})
	{
		EXPECT_TRUE(FName(Text).ToString().Equals(Text));
		EXPECT_TRUE(FName(Text) == FName(*FString(Text).ToLower()) && !FName(Text).IsNone());
		EXPECT_EQ(GetTypeHash(FName(Text)), GetTypeHash(FName(*FString(Text).ToLower())));
	}
	EXPECT_FALSE(FName(TEXT("\u00e4")) == FName(TEXT("\u00c4"))) << "only ASCII letters are folded";
	for (const FName& None : {FName(), FName(""), FName("NONE")})
	{
		EXPECT_TRUE(None.IsNone() && None.ToString() == TEXT("None"));
	}
}

TEST_F(FCore, MisuseIsFatal)
{
	const std::pair<std::function<void()>, const char*> Rows[] = {
		{[] {
			 TArray<int32>{1, 2}[2] = 0;
		 },
			"Array index out of bounds: 2 into an array of size 2"},
		{[] { TArray<int32>{1}.RemoveAt(-1); }, "Array index out of bounds: -1 into an array of size 1"},
		{[] { TSharedPtr<FWidget>()->OnEvent(); }, "Assertion failed: IsValid() [File:"},
		{[] { static_cast<void>(FWidget().AsShared()); }, "Assertion failed: IsValid() [File:"},
		{[]
			{
				TArray<int32> Array{1};
				for (const int32 Element : Array)
				{
					Array.Add(Element);
				}
			},
			"Array has changed during ranged-for iteration!"},
		{[] { FName(std::wstring(1024, L'x').c_str()); }, "NAME_SIZE"},
		{[] { FSimpleMulticastDelegate().AddRaw(static_cast<FWidget*>(nullptr), &FWidget::OnEvent); },
			"Assertion failed: InUserObject != nullptr && MethodPtr != nullptr [File:"},
	};
	for (const auto& [Misuse, Text] : Rows)
	{
		EXPECT_EXIT(Misuse(), ExitedWithCode(3), HasSubstr(Text));
	}
}

TEST_F(FCore, FailedCheckEndsTheProcessAtOnce)
{
	const std::string Head =
		"Assertion failed: Value == 2 [File:" __FILE__ "] [Line: " + std::to_string(FailingLine) + "] ";
	EXPECT_EXIT(
		{
			std::atexit([] { std::fputs("at exit", stderr); });
			const FUnwindingShows Local;
			FailCheck(7);
		},
		ExitedWithCode(3),
		AllOf(HasSubstr(Head + "\nthe value is 7\nand odd\n"), Not(HasSubstr("unwound")), Not(HasSubstr("at exit"))));
}
