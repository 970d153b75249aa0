// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

namespace Kiln
{
/**
 * Runs something on behalf of a caller that no exception may reach: a window procedure, a thread's end. What it throws,
 * be it an observer's or want of memory, is dropped.
 */
template <class Work>
void contained(Work work) noexcept
{
	try
	{
		work();
	}
	catch (...)
	{
	}
}
} // namespace Kiln
