// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "../../platform/Platform.h"
#include <kiln/Lock.h>
#include <new>
#include <system_error>

namespace Kiln
{
namespace
{
CRITICAL_SECTION* sectionIn(std::byte* storage)
{
	return std::launder(reinterpret_cast<CRITICAL_SECTION*>(storage));
}
} // namespace

Lock::Lock(Kind kind) : kind_(kind), section_{}
{
	static_assert(sizeof(CRITICAL_SECTION) <= sizeof section_ && alignof(CRITICAL_SECTION) <= alignof(void*));
	if (kind_ == Kind::CriticalSection)
	{
		InitializeCriticalSection(new (section_) CRITICAL_SECTION);
		return;
	}
	semaphore_ = CreateSemaphoreW(nullptr, 1, 1, nullptr);
	if (!semaphore_)
	{
		throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), "CreateSemaphore");
	}
}

Lock::~Lock()
{
	if (kind_ == Kind::CriticalSection)
	{
		DeleteCriticalSection(sectionIn(section_));
	}
	else
	{
		CloseHandle(semaphore_);
	}
}

void Lock::acquire()
{
	if (kind_ == Kind::CriticalSection)
	{
		EnterCriticalSection(sectionIn(section_));
	}
	else
	{
		WaitForSingleObject(semaphore_, INFINITE);
	}
}

void Lock::release()
{
	if (kind_ == Kind::CriticalSection)
	{
		LeaveCriticalSection(sectionIn(section_));
	}
	else
	{
		ReleaseSemaphore(semaphore_, 1, nullptr);
	}
}
} // namespace Kiln
