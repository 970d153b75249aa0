// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "EditorTest.h"

#include <functional>

using testing::ElementsAre;

namespace
{
DECLARE_MULTICAST_DELEGATE_OneParam(FOnEvent, int32);

/** Writes its name down when it is called, then does what it is told to. */
struct FListener
{
	FListener(FLines& InCalls, std::string InName) : Calls(InCalls), Name(std::move(InName)) {}

	void OnEvent(int32)
	{
		Calls.push_back(Name);
		if (Then)
		{
			Then();
		}
	}

	FLines& Calls;
	std::string Name;
	std::function<void()> Then;
};

static_assert(CMethodOf<void (FListener::*)(int32), FListener, void, int32>);
static_assert(CMethodOf<void (FListener::*)(int32) const, const FListener, void, int32>);
static_assert(!CMethodOf<void (FListener::*)(int32), const FListener, void, int32>);
static_assert(!CMethodOf<void (FListener::*)(const int32&), FListener, void, int32>);
static_assert(!CMethodOf<void (FListener::*)(), FListener, void, int32>);
} // namespace

class FDelegates : public FEditorTest
{
protected:
	FLines Broadcast()
	{
		Calls.clear();
		Event.Broadcast(1);
		return Calls;
	}

	FOnEvent Event;
	FLines Calls;
	FListener A{Calls, "A"};
	FListener B{Calls, "B"};
	FListener C{Calls, "C"};
};

TEST_F(FDelegates, ChangesDuringABroadcast)
{
	Event.AddRaw(&A, &FListener::OnEvent);
	const FDelegateHandle HandleB = Event.AddRaw(&B, &FListener::OnEvent);
	const FDelegateHandle HandleC = Event.AddRaw(&C, &FListener::OnEvent);
	C.Then = [&]
	{
		EXPECT_TRUE(Event.Remove(HandleC)) << "its own binding";
		EXPECT_TRUE(Event.Remove(HandleB));
		EXPECT_FALSE(Event.Remove(HandleB) || Event.Remove(FDelegateHandle()) || FOnEvent().Remove(HandleB));
		Event.Broadcast(2);
		// Enough to make the entries move.
		for (int32 Count = 0; Count < 20; ++Count)
		{
			Event.AddRaw(&B, &FListener::OnEvent);
		}
	};
	EXPECT_THAT(Broadcast(), ElementsAre("C", "A", "A")) << "the inner broadcast and the rest of the outer one";
	EXPECT_EQ(Broadcast().size(), 21u);
}
