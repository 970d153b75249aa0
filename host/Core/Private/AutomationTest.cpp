// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Misc/AutomationTest.h"

#include "Host/AutomationTests.h"
#include "Misc/OutputDeviceRedirector.h"

#include <map>

namespace
{
/** By name; behind a function, as libraries add to it while they are loaded. */
std::map<std::wstring, FAutomationTestBase*>& Registry()
{
	static std::map<std::wstring, FAutomationTestBase*>& Tests = *new std::map<std::wstring, FAutomationTestBase*>();
	return Tests;
}

/** Adds errors that are logged while it lives to those of a test. */
struct FErrorLog final : FOutputDevice
{
	explicit FErrorLog(FAutomationTestBase& InTest) : Test(InTest) { GLog->AddOutputDevice(this); }
	~FErrorLog() override { GLog->RemoveOutputDevice(this); }

	void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName&) override
	{
		if (Verbosity == ELogVerbosity::Error)
		{
			Test.AddError(V);
		}
	}

	FAutomationTestBase& Test;
};
} // namespace

FAutomationTestBase::FAutomationTestBase(const TCHAR* InName) : Name(InName)
{
	Registry()[InName] = this;
}

FAutomationTestBase::~FAutomationTestBase()
{
	Registry().erase(*Name);
}

TArray<FString> FAutomationTestBase::Run()
{
	Errors = {};
	const FErrorLog Log(*this);
	if (!RunTest(FString()) && Errors.IsEmpty())
	{
		AddError(TEXT("the test failed"));
	}
	return Errors;
}

bool FAutomationTestBase::Expect(bool bIsMet, const TCHAR* What, const TCHAR* Expectation)
{
	if (!bIsMet)
	{
		AddError(FString::Printf(TEXT("Expected '%s' %s."), What, Expectation));
	}
	return bIsMet;
}

TArray<FAutomationTestBase*> HostAutomation::GetTests()
{
	TArray<FAutomationTestBase*> Tests;
	for (const auto& [Name, Test] : Registry())
	{
		Tests.Add(Test);
	}
	return Tests;
}
