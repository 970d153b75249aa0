// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "CoreMinimal.h"
#include "Host/Culture.h"
#include "Host/Project.h"
#include "Internationalization/Culture.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Misc/Paths.h"

#include <cstring>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <thread>

using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::HasSubstr;

inline std::ostream& operator<<(std::ostream& Stream, const FString& String)
{
	return Stream << TCHAR_TO_UTF8(*String);
}

namespace
{
constexpr const char* NullText = "Assertion failed: IsValid() [File:";
} // namespace

TEST(FCoreNames, NumberSuffixesAreSplitOnlyWhereTheyComeBackTheSame)
{
	struct FCase
	{
		const TCHAR* Text;
		const TCHAR* Plain;
		int32 Number;
	};
	for (const FCase& Case : std::initializer_list<FCase>{
			 {TEXT("Pane"), TEXT("Pane"), 0},
			 {TEXT("Pane_12"), TEXT("Pane"), 13},
			 {TEXT("Pane_0"), TEXT("Pane"), 1},
			 {TEXT("Pane_01"), TEXT("Pane_01"), 0},
			 {TEXT("Pane_00"), TEXT("Pane_00"), 0},
			 {TEXT("Pane_"), TEXT("Pane_"), 0},
			 {TEXT("Pane12"), TEXT("Pane12"), 0},
			 {TEXT("Pane_1_2"), TEXT("Pane_1"), 3},
			 {TEXT("Pane_1x"), TEXT("Pane_1x"), 0},
			 {TEXT("_5"), TEXT("_5"), 0},
			 {TEXT("__5"), TEXT("_"), 6},
			 {TEXT("5"), TEXT("5"), 0},
			 {TEXT("Pane_2147483646"), TEXT("Pane"), 2147483647},
			 {TEXT("Pane_2147483647"), TEXT("Pane_2147483647"), 0},
			 {TEXT("Pane_9999999999"), TEXT("Pane_9999999999"), 0},
			 {TEXT("Pane_12345678901"), TEXT("Pane_12345678901"), 0},
			 {TEXT("None_3"), TEXT("None"), 4},
		 })
	{
		const FName Name(Case.Text);
		EXPECT_TRUE(Name.GetPlainNameString().Equals(Case.Plain)) << Name.GetPlainNameString();
		EXPECT_EQ(Name.GetNumber(), Case.Number) << Name.ToString();
		EXPECT_TRUE(Name.ToString().Equals(Case.Text)) << Name.ToString();
		EXPECT_FALSE(Name.IsNone());
	}
}

TEST(FCoreNames, CompareWithoutCaseAndKeepIt)
{
	EXPECT_EQ(FName("LevelViewport_3"), FName(u8"LEVELVIEWPORT_3"));
	EXPECT_EQ(GetTypeHash(FName("ab")), GetTypeHash(FName("AB")));
	EXPECT_FALSE(FName("ab_1") == FName("ab_2"));
	EXPECT_FALSE(FName("ab_1") == FName("ab"));
	EXPECT_TRUE(FName("AB").ToString().Equals(TEXT("AB")));
	EXPECT_TRUE(FName("ab").ToString().Equals(TEXT("ab")));
	EXPECT_FALSE(FName(TEXT("\u00e4")) == FName(TEXT("\u00c4"))) << "only ASCII letters are folded";
	const TCHAR* Null = nullptr;
	for (const FName& None : {FName(), NAME_None, FName(""), FName(Null), FName("none"), FName(TEXT("NONE"))})
	{
		EXPECT_TRUE(None.IsNone() && None == NAME_None);
	}
	EXPECT_EQ(NAME_None.ToString(), TEXT("None"));
	EXPECT_EXIT(FName(FString(*FString(std::wstring(1024, L'x').c_str()))), ExitedWithCode(3), HasSubstr("NAME_SIZE"));
}

TEST(FCoreNames, ThreadsAgree)
{
	std::vector<std::vector<FName>> Made(4);
	std::vector<std::thread> Threads;
	for (std::vector<FName>& Names : Made)
	{
		Threads.emplace_back(
			[&Names]
			{
				for (int32 Index = 0; Index < 500; ++Index)
				{
					Names.push_back(FName(*FString::Printf(TEXT("Thread%dX"), Index)));
				}
			});
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	EXPECT_EQ(Made[0][499].ToString(), TEXT("Thread499X"));
	EXPECT_TRUE(Made[0] == Made[1] && Made[1] == Made[2] && Made[2] == Made[3]);
}

TEST(FCoreStrings, ConversionsComeBack)
{
	const std::vector<std::string> Texts = {
		"", "plain", "\xC3\xA4\xC3\x9F", "\xE4\xB8\xAD", "\xF0\x9F\x8E\xA8", "a%sb"};
	for (const std::string& Text : Texts)
	{
		const FString Wide = UTF8_TO_TCHAR(Text.c_str());
		EXPECT_EQ(TCHAR_TO_UTF8(*Wide), Text);
		const FUTF8ToTCHAR Sized(Text.data(), static_cast<int32>(Text.size()));
		EXPECT_TRUE(FString::ConstructFromPtrSize(Sized.Get(), Sized.Length()).Equals(Wide));
		const FTCHARToUTF8 Back(*Wide, Wide.Len());
		EXPECT_EQ(std::string(Back.Get(), static_cast<size_t>(Back.Length())), Text);
		EXPECT_NE(*(Back.Get() + Back.Length()), '\0') << "sized results are not terminated";
	}
	EXPECT_EQ(FTCHARToUTF8(TEXT("a\0b"), 4).Length(), 4) << "the terminator was asked for";
	EXPECT_TRUE(FString(UTF8_TO_TCHAR("x\xFFy")).Equals(TEXT("x\uFFFDy"))) << "malformed";
	const TCHAR* Null = nullptr;
	EXPECT_STREQ(TCHAR_TO_UTF8(Null), "");
}

TEST(FCoreStrings, ComparisonAndSearchIgnoreCaseUnlessToldOtherwise)
{
	const FString Text = TEXT("Saved/Logs/Editor.LOG");
	EXPECT_EQ(Text, TEXT("saved/logs/editor.log"));
	EXPECT_FALSE(Text.Equals(TEXT("saved/logs/editor.log")));
	EXPECT_FALSE(Text == TEXT("Saved/Logs/Editor.LO"));
	EXPECT_EQ(GetTypeHash(Text), GetTypeHash(Text.ToLower()));
	EXPECT_TRUE(FString(TEXT("a")) < FString(TEXT("B")) && FString(TEXT("A")) < FString(TEXT("b")));
	EXPECT_TRUE(Text.StartsWith(TEXT("SAVED")) && Text.EndsWith(TEXT(".log")) && Text.StartsWith(TEXT("")));
	EXPECT_FALSE(Text.EndsWith(TEXT(".log"), ESearchCase::CaseSensitive));
	EXPECT_FALSE(FString(TEXT("og")).EndsWith(TEXT("log")) || FString(TEXT("lo")).StartsWith(TEXT("log")));
	EXPECT_EQ(Text.Find(TEXT("L")), 6);
	EXPECT_EQ(Text.Find(TEXT("LO"), ESearchCase::CaseSensitive), 18);
	EXPECT_EQ(Text.Find(TEXT("/"), ESearchCase::IgnoreCase, ESearchDir::FromEnd), 10);
	EXPECT_EQ(Text.Find(TEXT("\\")), INDEX_NONE);
	EXPECT_EQ(Text.Find(TEXT("")), INDEX_NONE);
	EXPECT_EQ(Text.Mid(6, 4) + TEXT("|") + Text.Mid(18) + Text.Mid(90) + Text.Mid(-5, 7), TEXT("Logs|LOGSa"));
	EXPECT_TRUE(FString(TEXT("xXy")).Replace(TEXT("x"), TEXT("xx")).Equals(TEXT("xxxxy")));
	EXPECT_TRUE(FString(TEXT("xXy")).Replace(TEXT("x"), TEXT(""), ESearchCase::CaseSensitive).Equals(TEXT("Xy")));
	EXPECT_TRUE(FString(TEXT("xy")).Replace(TEXT(""), TEXT("z")).Equals(TEXT("xy")));
	EXPECT_TRUE(FString::Printf(TEXT("%s %hs %5.2f %lld%%"), TEXT("wide"), "narrow", 1.5, -(1LL << 40))
					.Equals(TEXT("wide narrow  1.50 -1099511627776%")));
}

TEST(FCoreStrings, PathsJoinWithOneSlash)
{
	const FString Folder = TEXT("C:/Game/");
	EXPECT_EQ(FPaths::Combine(TEXT("a"), Folder, TEXT("/b"), TEXT(""), TEXT("c.txt")), TEXT("a/C:/Game/b/c.txt"));
	EXPECT_EQ(FPaths::Combine(TEXT(""), TEXT("a")), TEXT("a"));
	EXPECT_EQ(FPaths::Combine(TEXT("/"), TEXT("a")), TEXT("/a"));
	HostProject::SetFolder(TEXT("C:\\Game"));
	EXPECT_EQ(FPaths::ProjectLogDir(), TEXT("C:/Game/Saved/Logs/"));
	EXPECT_EQ(FPaths::ProjectSavedDir(), TEXT("C:/Game/Saved/"));
	EXPECT_TRUE(FPaths::FileExists(TEXT("C:/windows/system32/kernel32.dll")));
	EXPECT_FALSE(FPaths::FileExists(TEXT("C:/windows")) || FPaths::FileExists(TEXT("C:/a<b")));
	EXPECT_TRUE(FPaths::DirectoryExists(TEXT("C:/windows/")) && !FPaths::DirectoryExists(TEXT("C:/no such folder")));
}

TEST(FCoreArrays, ElementsComeAndGo)
{
	TArray<int32> Array = {5, 1, 5, 2, 3};
	EXPECT_EQ(Array.Remove(Array[0]), 2) << "the argument lies in the array";
	Array.RemoveAtSwap(0);
	EXPECT_EQ(Array, (TArray<int32>{3, 2}));
	EXPECT_EQ(Array.Add(7), 2);
	Array.RemoveAt(1);
	EXPECT_EQ(Array, (TArray<int32>{3, 7}));
	EXPECT_EQ(*Array.FindByPredicate([](int32 Element) { return Element > 3; }), 7);
	EXPECT_EQ(Array.FindByPredicate([](int32 Element) { return Element > 7; }), nullptr);
	EXPECT_TRUE(Array.Contains(3) && Array.Find(7) == 1 && Array.Find(4) == INDEX_NONE && Array.Last() == 7);
	Array.Reset();
	Array.SetNumUninitialized(2);
	EXPECT_EQ(Array[1], 7) << "the old memory is not touched";
	TArray<TUniquePtr<int32>> Owners;
	Owners.Add(MakeUnique<int32>(1));
	Owners.Emplace(new int32(2));
	Owners.RemoveAtSwap(0);
	EXPECT_EQ(*Owners[0], 2);
}

TEST(FCoreArrays, BadIndicesAreFatal)
{
	TArray<int32> Array = {1, 2};
	EXPECT_EXIT(Array[2], ExitedWithCode(3), HasSubstr("Array index out of bounds: 2 into an array of size 2"));
	EXPECT_EXIT(Array.RemoveAt(-1), ExitedWithCode(3), HasSubstr("index out of bounds: -1 into an array of size 2"));
	EXPECT_EXIT(
		TArray<int32>().Last(), ExitedWithCode(3), HasSubstr("index out of bounds: -1 into an array of size 0"));
}

TEST(FCoreArrays, ChangeInsideARangedForIsReportedOnceInAProcess)
{
	struct FCounter : FOutputDevice
	{
		void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName&) override
		{
			Count += Verbosity == ELogVerbosity::Error &&
					 FString(V) == TEXT("Array has changed during ranged-for iteration!");
		}

		int32 Count = 0;
	} Counter;
	GLog->AddOutputDevice(&Counter);
	TArray<int32> Array = {1, 2};
	Array.Reserve(10);
	for (const int32 Element : Array)
	{
		EXPECT_EQ(Counter.Count, Element - 1) << "only the comparison after the change";
		Array.Add(Element);
	}
	EXPECT_EQ(Array, (TArray<int32>{1, 2, 1, 2})) << "new elements are not visited";
	TArray<float> Other = {1.0f, 2.0f};
	for (const float Element : Other)
	{
		Other.RemoveAt(0);
		static_cast<void>(Element);
	}
	EXPECT_EQ(Counter.Count, 1);
	GLog->RemoveOutputDevice(&Counter);
}

TEST(FCoreMaps, BehaveLikeAMapThatKeepsItsOrder)
{
	TMap<FString, TUniquePtr<int32>> Map;
	std::map<int32, int32> Expected;
	std::vector<int32> Order;
	std::mt19937 Random(1);
	for (int32 Step = 0; Step < 2000; ++Step)
	{
		const int32 Number = static_cast<int32>(Random() % 40);
		const FString Key = FString::Printf(Step % 2 ? TEXT("key%d") : TEXT("KEY%d"), Number);
		if (Random() % 2)
		{
			EXPECT_EQ(Map.Remove(Key), static_cast<int32>(Expected.erase(Number)));
			std::erase(Order, Number);
			continue;
		}
		if (Expected.insert_or_assign(Number, Step).second)
		{
			Order.push_back(Number);
		}
		Map.Add(Key, MakeUnique<int32>(Step));
		ASSERT_EQ(Map.Num(), static_cast<int32>(Expected.size()));
		size_t Place = 0;
		for (const auto& [Found, Value] : Map)
		{
			ASSERT_EQ(*Value, Expected.at(Order[Place])) << Step;
			ASSERT_EQ(Found, FString::Printf(TEXT("key%d"), Order[Place++]));
			ASSERT_EQ(Map.Find(Found), &Value);
		}
	}
	TMap<int32, FString> Small;
	Small.Emplace(2, TEXT("two"));
	EXPECT_TRUE(Small.FindOrAdd(3).IsEmpty() && Small.Contains(3) && !Small.Find(4));
	EXPECT_EQ(Small.FindRef(2) + Small.FindRef(9), TEXT("two"));
	Small.Empty();
	EXPECT_TRUE(Small.IsEmpty() && !Small.Contains(2));
}

namespace
{
struct FBase
{
	virtual ~FBase() = default;
	int32 Value = 1;
};

struct FWidget
	: FBase
	, TSharedFromThis<FWidget>
{
	TSharedRef<FWidget> Self() { return SharedThis(this); }
};

struct FButton : FWidget
{
	TSharedRef<const FButton> Self() const { return SharedThis(this); }
};
} // namespace

TEST(FCorePointers, OwnersShareOneObject)
{
	TSharedPtr<FBase> Base;
	TWeakPtr<FBase> Weak;
	{
		const TSharedRef<FButton> Button = MakeShareable(new FButton());
		EXPECT_TRUE(Button.IsUnique());
		EXPECT_EQ(Button->FWidget::Self(), Button);
		EXPECT_EQ(&static_cast<const FButton&>(*Button).Self().Get(), &Button.Get());
		Base = Button;
		Weak = Button;
		EXPECT_TRUE(Base == Button && !Base.IsUnique());
		EXPECT_EQ(StaticCastSharedPtr<FButton>(Base), Button);
		EXPECT_EQ(StaticCastSharedRef<FBase>(Button), Base.ToSharedRef());
	}
	EXPECT_TRUE(Weak.IsValid() && Weak.Pin() == Base);
	EXPECT_TRUE(Base.IsUnique());
	TSharedRef<FBase> Ref = Base.ToSharedRef();
	const TSharedRef<FBase> Kept = std::move(Ref);
	EXPECT_EQ(Ref->Value, 1) << "references are never null";
	Base = MakeShared<FWidget>();
	EXPECT_TRUE(Base != Kept && Base != nullptr);
	Base.Reset();
	EXPECT_FALSE(Base.IsValid() || StaticCastSharedPtr<FButton>(Base).IsValid());
}

TEST(FCorePointers, NullIsFatalWhereItIsUsed)
{
	const TSharedPtr<FBase> Null;
	EXPECT_EXIT(static_cast<void>(Null->Value), ExitedWithCode(3), HasSubstr(NullText));
	EXPECT_EXIT(static_cast<void>((*Null).Value), ExitedWithCode(3), HasSubstr(NullText));
	EXPECT_EXIT(static_cast<void>(Null.ToSharedRef()), ExitedWithCode(3), HasSubstr(NullText));
	EXPECT_EXIT(TSharedRef<FBase>(MakeShareable<FBase>(nullptr)), ExitedWithCode(3), HasSubstr(NullText));
	EXPECT_EXIT(static_cast<void>(FWidget().AsShared()), ExitedWithCode(3), HasSubstr(NullText));
}

TEST(FCoreCulture, LanguageIsThePartBeforeTheRegion)
{
	HostCulture::Set(TEXT("fr-CA"));
	const FCultureRef French = FInternationalization::Get().GetCurrentCulture();
	HostCulture::Set(TEXT("en"));
	EXPECT_EQ(FInternationalization::Get().GetCurrentCulture()->GetTwoLetterISOLanguageName(), TEXT("en"));
	EXPECT_EQ(French->GetTwoLetterISOLanguageName(), TEXT("fr"));
	HostCulture::Clear();
	EXPECT_EXIT(FInternationalization::Get().GetCurrentCulture(), ExitedWithCode(3), HasSubstr(NullText));
}

TEST(FCoreValues, HaveTheEnginesLayout)
{
	const FColor Color(1, 2, 3);
	const uint8 Bytes[] = {3, 2, 1, 255};
	EXPECT_EQ(std::memcmp(&Color, Bytes, sizeof Bytes), 0) << "blue first";
	EXPECT_EQ(FColor::White, FColor(255, 255, 255, 255));
	EXPECT_TRUE(FText::FromName("Looks_1").EqualTo(FText::FromString(TEXT("Looks_1"))));
	EXPECT_TRUE(FText::GetEmpty().IsEmpty() && !FText::FromString(TEXT("a")).EqualTo(FText::FromString(TEXT("A"))));
}
