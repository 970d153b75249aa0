// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Names, conversions, and what is fatal with arrays and pointers.
#include "CoreMinimal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ExitedWithCode;
using testing::HasSubstr;

TEST(FCoreNames, CompareWithoutCaseAndKeepIt)
{
	for (const TCHAR* Text : {TEXT("Pane"), TEXT("Pane_12"), TEXT("PANE_12"), TEXT("Pane_01"), TEXT("none_3")})
	{
		EXPECT_TRUE(FName(Text).ToString().Equals(Text)) << TCHAR_TO_UTF8(Text);
		EXPECT_TRUE(FName(Text) == FName(*FString(Text).ToLower()));
		EXPECT_EQ(GetTypeHash(FName(Text)), GetTypeHash(FName(*FString(Text).ToLower())));
		EXPECT_FALSE(FName(Text).IsNone());
	}
	EXPECT_FALSE(FName("ab_1") == FName("ab_01") || FName("ab_1") == FName("ab"));
	EXPECT_FALSE(FName(TEXT("\u00e4")) == FName(TEXT("\u00c4"))) << "only ASCII letters are folded";
	const TCHAR* Null = nullptr;
	for (const FName& None : {FName(), NAME_None, FName(""), FName(Null), FName("none"), FName(TEXT("NONE"))})
	{
		EXPECT_TRUE(None.IsNone() && None == NAME_None && None.ToString() == TEXT("None"));
	}
	EXPECT_EXIT(FName(std::wstring(1024, L'x').c_str()), ExitedWithCode(3), HasSubstr("NAME_SIZE"));
}

TEST(FCoreStrings, ConversionsComeBack)
{
	for (const std::string Text : {"", "plain", "\xC3\xA4\xC3\x9F", "\xE4\xB8\xAD", "\xF0\x9F\x8E\xA8", "a%sb"})
	{
		const FString Wide = UTF8_TO_TCHAR(Text.c_str());
		EXPECT_EQ(TCHAR_TO_UTF8(*Wide), Text);
		const FUTF8ToTCHAR Sized(Text.data(), static_cast<int32>(Text.size()));
		EXPECT_TRUE(FString::ConstructFromPtrSize(Sized.Get(), Sized.Length()).Equals(Wide));
		EXPECT_NE(Sized.Get()[Sized.Length()], 0) << "sized results are not terminated";
	}
	EXPECT_TRUE(FString(UTF8_TO_TCHAR("x\xFFy")).Equals(TEXT("x\uFFFDy"))) << "malformed";
	EXPECT_STREQ(TCHAR_TO_UTF8(nullptr), "");
}

TEST(FCoreArrays, BadIndicesAreFatal)
{
	TArray<int32> Array = {1, 2};
	EXPECT_EXIT(Array[2], ExitedWithCode(3), HasSubstr("Array index out of bounds: 2 into an array of size 2"));
	EXPECT_EXIT(Array.RemoveAt(-1), ExitedWithCode(3), HasSubstr("index out of bounds: -1 into an array of size 2"));
	EXPECT_EXIT(
		TArray<int32>().Last(), ExitedWithCode(3), HasSubstr("index out of bounds: -1 into an array of size 0"));
}

TEST(FCorePointers, NullIsFatalWhereItIsUsed)
{
	struct FWidget : TSharedFromThis<FWidget>
	{
		int32 Value = 1;
	};
	TSharedRef<FWidget> Ref = MakeShared<FWidget>();
	const TSharedRef<FWidget> Moved = std::move(Ref);
	EXPECT_EQ(Ref->AsShared(), Moved) << "references are never null";
	const TSharedPtr<FWidget> Null;
	const char* const NullText = "Assertion failed: IsValid() [File:";
	EXPECT_EXIT(static_cast<void>(Null->Value), ExitedWithCode(3), HasSubstr(NullText));
	EXPECT_EXIT(static_cast<void>((*Null).Value), ExitedWithCode(3), HasSubstr(NullText));
	EXPECT_EXIT(static_cast<void>(Null.ToSharedRef()), ExitedWithCode(3), HasSubstr(NullText));
	EXPECT_EXIT(static_cast<void>(FWidget().AsShared()), ExitedWithCode(3), HasSubstr(NullText));
}
