// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <kiln/Lock.h>

namespace Kiln
{
/** Holds a lock as long as it lives. */
class [[nodiscard]] KILN_SCOPED_CAPABILITY LockGuard
{
public:
	/** The lock must outlive the guard. */
	explicit LockGuard(Lock& lock) KILN_ACQUIRE(lock) : lock_(lock) { lock_.acquire(); }
	~LockGuard() KILN_RELEASE() { lock_.release(); }
	LockGuard(const LockGuard&) = delete;
	LockGuard& operator=(const LockGuard&) = delete;

private:
	Lock& lock_;
};
} // namespace Kiln
