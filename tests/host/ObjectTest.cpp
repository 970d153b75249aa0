// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "UObject/WeakObjectPtr.h"

#include <gtest/gtest.h>

TEST(WeakObjectPtr, KnowsWhenItsObjectDied)
{
	HostObjects::Init();
	UObject* First = new UObject();
	FWeakObjectPtr Pointer(First);
	EXPECT_EQ(Pointer.Get(), First);

	First->MarkAsGarbage();
	EXPECT_EQ(Pointer.Get(), nullptr);
	CollectGarbage();
	EXPECT_EQ(Pointer.Get(), nullptr);

	// A newcomer takes over the index, not the weak pointers.
	UObject* Second = new UObject();
	EXPECT_EQ(Pointer.Get(), nullptr);
	FWeakObjectPtr Other(Second);
	HostObjects::Shutdown();
	EXPECT_EQ(Other.Get(), nullptr);
	EXPECT_FALSE(UObjectInitialized());
	EXPECT_FALSE(FWeakObjectPtr().IsValid());
}
