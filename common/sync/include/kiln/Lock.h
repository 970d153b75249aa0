// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <kiln/ThreadSafety.h>

namespace Kiln
{
/** Lets one thread at a time on. Any thread may use it; it must not be held when it is destroyed. */
class KILN_CAPABILITY Lock
{
public:
	enum class Kind : std::uint8_t
	{
		/** A semaphore of count 1: not recursive, and any thread may release it. */
		Semaphore = 0,
		/** Recursive: the thread that holds it may acquire it again, and releases it as often. */
		CriticalSection = 1,
	};

	/** Throws std::system_error when the system has no semaphore left. */
	explicit Lock(Kind kind = Kind::CriticalSection);
	~Lock();
	Lock(const Lock&) = delete;
	Lock& operator=(const Lock&) = delete;

	/** Waits, without limit, until the lock is free, and takes it. */
	void acquire() KILN_ACQUIRE();

	/** Gives the lock back, or a semaphore one count more. */
	void release() KILN_RELEASE();

private:
	const Kind kind_;

	/** Room for the platform's object, which its header alone knows; as large as it is on x64. */
	union
	{
		void* semaphore_;
		alignas(void*) std::byte section_[5 * sizeof(void*)];
	};
};
} // namespace Kiln
