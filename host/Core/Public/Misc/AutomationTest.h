// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Tests that run inside the editor.
#pragma once

#include "CoreMinimal.h"

#define WITH_DEV_AUTOMATION_TESTS 1

/** Where and when a test runs; every test runs when it is asked for here. */
struct EAutomationTestFlags
{
	enum Type
	{
		EditorContext = 0x1,
		ProductFilter = 0x2
	};
};

/** A test: one object that lives as long as its library. */
class CORE_API FAutomationTestBase
{
public:
	explicit FAutomationTestBase(const TCHAR* InName);
	virtual ~FAutomationTestBase();

	const FString& GetTestFullName() const { return Name; }

	/** Runs it anew. @return what went wrong, in order; lines that were logged as errors meanwhile are */
	TArray<FString> Run();

	void AddError(const FString& InError) { Errors.Add(InError); }

	/** Each says what was wrong. @return whether it was as it should */
	bool TestTrue(const TCHAR* What, bool Value) { return Expect(Value, What, TEXT("to be true")); }
	bool TestFalse(const TCHAR* What, bool Value) { return Expect(!Value, What, TEXT("to be false")); }
	bool TestEqual(const TCHAR* What, int32 Actual, int32 Expected)
	{
		return Expect(Actual == Expected, What, *FString::Printf(TEXT("to be %d, not %d"), Expected, Actual));
	}
	bool TestNotNull(const TCHAR* What, const void* Pointer) { return Expect(Pointer, What, TEXT("not to be null")); }

protected:
	virtual bool RunTest(const FString& Parameters) = 0;

private:
	bool Expect(bool bIsMet, const TCHAR* What, const TCHAR* Expectation);

	FString Name;
	TArray<FString> Errors;
};

/** Declares a test and its object; RunTest is the author's. */
#define IMPLEMENT_SIMPLE_AUTOMATION_TEST(TClass, PrettyName, TFlags)                                                   \
	class TClass : public FAutomationTestBase                                                                          \
	{                                                                                                                  \
	public:                                                                                                            \
		TClass() : FAutomationTestBase(TEXT(PrettyName)) { static_assert((TFlags) != 0); }                             \
                                                                                                                       \
	protected:                                                                                                         \
		virtual bool RunTest(const FString& Parameters) override;                                                      \
	};                                                                                                                 \
	namespace                                                                                                          \
	{                                                                                                                  \
	TClass TClass##Instance;                                                                                           \
	}
