// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "CoreMinimal.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>

using testing::ElementsAre;
using testing::ExitedWithCode;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{
DECLARE_MULTICAST_DELEGATE_OneParam(FOnEvent, int32);
DECLARE_DELEGATE_RetVal_OneParam(int32, FAnswer, int32);
DECLARE_EVENT(FOwner, FNamedEvent);

using FCalls = std::vector<std::string>;

/** Writes its name down when it is called, then does what it is told to. */
struct FListener : TSharedFromThis<FListener>
{
	FListener(FCalls& InCalls, std::string InName) : Calls(InCalls), Name(std::move(InName)) {}

	void OnEvent(int32)
	{
		Calls.push_back(Name);
		if (Then)
		{
			Then();
		}
		Calls.back() += Suffix;
	}

	void OnConstEvent(int32) const { Calls.push_back(Name + " const"); }
	void OnEventWithPayload(int32 Value, int32 A, std::string B) { Calls.push_back(B + std::to_string(Value + A)); }
	void OnReference(const int32&) {}

	FCalls& Calls;
	std::string Name;
	std::string Suffix;
	std::function<void()> Then;
};

template <typename MethodType>
concept CIsHandler = requires(FListener& Listener, MethodType Method)
{
	FOnEvent().AddRaw(&Listener, Method);
};

static_assert(CIsHandler<void (FListener::*)(int32)>);
static_assert(CIsHandler<void (FListener::*)(int32) const>);
static_assert(std::is_constructible_v<TMethodPtr<FListener, void(int32)>, void (FListener::*)(const int32)>);
static_assert(!std::is_constructible_v<TMethodPtr<FListener, void(int32)>, void (FListener::*)(const int32&)>);
static_assert(!std::is_constructible_v<TMethodPtr<FListener, void(int32)>, void (FListener::*)()>);
static_assert(!std::is_constructible_v<TMethodPtr<const FListener, void(int32)>, void (FListener::*)(int32)>);
} // namespace

class FDelegates : public testing::Test
{
protected:
	FCalls Broadcast()
	{
		Calls.clear();
		Event.Broadcast(1);
		return Calls;
	}

	FOnEvent Event;
	FCalls Calls;
	FListener A{Calls, "A"};
	FListener B{Calls, "B"};
	FListener C{Calls, "C"};
};

TEST_F(FDelegates, BroadcastCallsTheLastAddedFirstAndTwiceWhatWasAddedTwice)
{
	Event.AddRaw(&A, &FListener::OnEvent);
	Event.AddRaw(const_cast<const FListener*>(&B), &FListener::OnConstEvent);
	Event.AddRaw(&A, &FListener::OnEvent);
	Event.AddRaw(&C, &FListener::OnEventWithPayload, 10, std::string("payload "));
	EXPECT_THAT(Broadcast(), ElementsAre("payload 11", "A", "B const", "A"));
}

TEST_F(FDelegates, WhatIsAddedDuringABroadcastWaitsForTheNext)
{
	Event.AddRaw(&A, &FListener::OnEvent);
	Event.AddRaw(&B, &FListener::OnEvent);
	B.Then = [this]
	{
		// Enough to make the entries move.
		for (int32 Count = 0; Count < 20; ++Count)
		{
			Event.AddRaw(&C, &FListener::OnEvent);
		}
		B.Then = nullptr;
	};
	EXPECT_THAT(Broadcast(), ElementsAre("B", "A"));
	EXPECT_EQ(Broadcast().size(), 22u);
}

TEST_F(FDelegates, WhatIsRemovedDuringABroadcastIsNotCalled)
{
	Event.AddRaw(&A, &FListener::OnEvent);
	const FDelegateHandle HandleB = Event.AddRaw(&B, &FListener::OnEvent);
	const FDelegateHandle HandleC = Event.AddRaw(&C, &FListener::OnEvent);
	C.Then = [&]
	{
		EXPECT_TRUE(Event.Remove(HandleC)) << "its own binding";
		EXPECT_TRUE(Event.Remove(HandleB));
		EXPECT_FALSE(Event.Remove(HandleB));
		Event.Broadcast(2);
	};
	EXPECT_THAT(Broadcast(), ElementsAre("C", "A", "A")) << "the inner broadcast and the rest of the outer one";
	EXPECT_THAT(Broadcast(), ElementsAre("A"));
}

TEST_F(FDelegates, RemoveAllWhileIdleFillsHolesFromTheEndAndCountsTheDead)
{
	TSharedPtr<FListener> Mortal = MakeShared<FListener>(Calls, "mortal");
	Event.AddRaw(&A, &FListener::OnEvent);
	Event.AddRaw(&B, &FListener::OnEvent);
	Event.AddSP(Mortal.ToSharedRef(), &FListener::OnEvent);
	Event.AddRaw(&C, &FListener::OnEvent);
	Mortal.Reset();
	EXPECT_EQ(Event.RemoveAll(&A), 2);
	EXPECT_THAT(Broadcast(), ElementsAre("B", "C"));
	EXPECT_EQ(Event.RemoveAll(&A), 0);
	Event.Clear();
	EXPECT_FALSE(Event.IsBound());
}

TEST_F(FDelegates, RemoveAllDuringABroadcastOnlyUnbinds)
{
	TSharedPtr<FListener> Mortal = MakeShared<FListener>(Calls, "mortal");
	Event.AddRaw(&A, &FListener::OnEvent);
	Event.AddRaw(&B, &FListener::OnEvent);
	Event.AddSP(Mortal.ToSharedRef(), &FListener::OnEvent);
	Event.AddRaw(&A, &FListener::OnEvent);
	Event.AddRaw(&C, &FListener::OnEvent);
	C.Then = [&]
	{
		Mortal.Reset();
		EXPECT_EQ(Event.RemoveAll(&A), 2) << "the dead are not counted";
		EXPECT_FALSE(Event.IsBoundToObject(&A));
	};
	EXPECT_THAT(Broadcast(), ElementsAre("C", "B"));
	EXPECT_EQ(Event.RemoveAll(nullptr), 0) << "the broadcast dropped the dead";
}

TEST_F(FDelegates, SharedObjectsAreWatchedAndLiveThroughTheCall)
{
	TSharedPtr<FListener> Mortal = MakeShared<FListener>(Calls, "mortal");
	const FOnEvent::FDelegate Delegate = FOnEvent::FDelegate::CreateSP(Mortal.Get(), &FListener::OnEvent);
	Event.Add(Delegate);
	Mortal->Suffix = " to the end";
	Mortal->Then = [&] { Mortal.Reset(); };
	EXPECT_THAT(Broadcast(), ElementsAre("mortal to the end"));
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_FALSE(Delegate.ExecuteIfBound(1));
	EXPECT_THAT(Broadcast(), IsEmpty());
}

TEST_F(FDelegates, HandlesNameOneBindingEach)
{
	EXPECT_FALSE(FDelegateHandle().IsValid());
	EXPECT_FALSE(Event.Add(FOnEvent::FDelegate()).IsValid());
	EXPECT_FALSE(Event.IsBound()) << "unbound delegates are not added";
	const FOnEvent::FDelegate Delegate = FOnEvent::FDelegate::CreateRaw(&A, &FListener::OnEvent);
	const FDelegateHandle First = Event.Add(Delegate);
	const FDelegateHandle Second = Event.Add(Delegate);
	EXPECT_TRUE(First.IsValid());
	EXPECT_NE(First, Second);
	EXPECT_FALSE(FOnEvent().Remove(First)) << "of another event";
	EXPECT_TRUE(Event.Remove(First));
	EXPECT_FALSE(Event.Remove(First));
	EXPECT_FALSE(Event.Remove(FDelegateHandle()));
	EXPECT_THAT(Broadcast(), ElementsAre("A"));
}

TEST_F(FDelegates, SingleDelegatesAnswer)
{
	FAnswer Answer;
	EXPECT_FALSE(Answer.IsBound());
	Answer.BindLambda([](int32 Value, int32 Factor) { return Value * Factor; }, 3);
	EXPECT_EQ(Answer.Execute(14), 42);
	Answer.BindStatic(+[](int32 Value) { return -Value; });
	const FAnswer Copy = Answer;
	Answer.BindLambda([&Answer](int32 Value) { return Answer.Unbind(), Value + 1; });
	EXPECT_EQ(Answer.Execute(1), 2) << "a call may unbind its own delegate";
	EXPECT_FALSE(Answer.IsBound());
	EXPECT_EQ(Copy.Execute(5), -5);
}

TEST_F(FDelegates, MisuseIsFatal)
{
	const char* const NullText = "Assertion failed: InUserObject != nullptr && MethodPtr != nullptr [File:";
	void (FListener::*NoMethod)(int32) = nullptr;
	FListener* NoObject = nullptr;
	EXPECT_EXIT(Event.AddRaw(NoObject, &FListener::OnEvent), ExitedWithCode(3), HasSubstr(NullText));
	EXPECT_EXIT(Event.AddRaw(&A, NoMethod), ExitedWithCode(3), HasSubstr(NullText));
	A.Then = [] { throw std::runtime_error("from a handler"); };
	Event.AddRaw(&A, &FListener::OnEvent);
	EXPECT_EXIT(Event.Broadcast(1), ExitedWithCode(3), HasSubstr("from a handler"));
}

TEST_F(FDelegates, NamedEventsAreTraced)
{
	struct FTraceDevice : FOutputDevice
	{
		explicit FTraceDevice(FCalls& InLines) : Lines(InLines) { GLog->AddOutputDevice(this); }
		~FTraceDevice() override { GLog->RemoveOutputDevice(this); }

		void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
		{
			EXPECT_TRUE(Category == "LogHostTrace" && Verbosity == ELogVerbosity::Log);
			Lines.push_back(TCHAR_TO_UTF8(V));
		}

		FCalls& Lines;
	};
	const FTraceDevice Device(Calls);
	FNamedEvent Named(TEXT("UThing::OnChanged"));
	Named.AddLambda([this] { Calls.push_back("called"); });
	const FDelegateHandle Handle = Named.AddLambda([] {});
	Named.Broadcast();
	Named.RemoveAll(&A);
	Named.Remove(Handle);
	Named.Remove(Handle);
	EXPECT_THAT(
		Calls, ElementsAre("bind UThing::OnChanged", "bind UThing::OnChanged", "broadcast UThing::OnChanged", "called",
				   "unbind UThing::OnChanged (0)", "unbind UThing::OnChanged (1)", "unbind UThing::OnChanged (0)"));
}
