// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A fault that the check of locks has to see; never built.
#include <kiln/LockGuard.h>

namespace
{
class Counter
{
public:
	int next() { return ++count_; }

private:
	Kiln::Lock lock_;
	int count_ KILN_GUARDED_BY(lock_) = 0;
};
} // namespace

int use()
{
	return Counter().next();
}
