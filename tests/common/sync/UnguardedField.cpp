// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A fault that the check of locks has to see; never built.
#include <kiln/LockGuard.h>

namespace
{
struct Counter
{
	int next() { return ++count; }

	Kiln::Lock lock_;
	int count KILN_GUARDED_BY(lock_) = 0;
};
} // namespace
