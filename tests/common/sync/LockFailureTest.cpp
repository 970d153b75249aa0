// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "ImportOverride.h"

#include <gtest/gtest.h>
#include <kiln/Lock.h>
#include <system_error>

namespace
{
using Kiln::Lock;

TEST(Lock, WithoutASemaphoreItThrows)
{
	ImportOverride create("CreateSemaphoreW", &CreateSemaphoreW,
		[](LPSECURITY_ATTRIBUTES, LONG count, LONG most, LPCWSTR) -> HANDLE
		{
			EXPECT_EQ(count, 1);
			EXPECT_EQ(most, 1);
			SetLastError(ERROR_NO_SYSTEM_RESOURCES);
			return nullptr;
		});
	try
	{
		const Lock lock(Lock::Kind::Semaphore);
		FAIL() << "made without a semaphore";
	}
	catch (const std::system_error& error)
	{
		EXPECT_EQ(error.code().value(), ERROR_NO_SYSTEM_RESOURCES);
	}
}
} // namespace
