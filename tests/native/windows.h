// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The little of the platform that the library's locks and clock rest on, by the build machine's own means.
#pragma once

#include <ctime>
#include <mutex>
#include <semaphore.h>

using HANDLE = void*;
using DWORD = unsigned long;
using CRITICAL_SECTION = std::recursive_mutex;

inline constexpr DWORD INFINITE = 0xFFFFFFFF;

inline void InitializeCriticalSection(CRITICAL_SECTION*) {}

inline void DeleteCriticalSection(CRITICAL_SECTION* section)
{
	section->~CRITICAL_SECTION();
}

inline void EnterCriticalSection(CRITICAL_SECTION* section)
{
	section->lock();
}

inline void LeaveCriticalSection(CRITICAL_SECTION* section)
{
	section->unlock();
}

// Not the standard library's semaphore: a release of that may wake nobody.
inline HANDLE CreateSemaphoreW(const void*, long count, long, const wchar_t*)
{
	auto* const semaphore = new sem_t;
	sem_init(semaphore, 0, static_cast<unsigned>(count));
	return semaphore;
}

inline void WaitForSingleObject(HANDLE semaphore, DWORD)
{
	while (sem_wait(static_cast<sem_t*>(semaphore)) != 0)
	{
	}
}

inline void ReleaseSemaphore(HANDLE semaphore, long, long*)
{
	sem_post(static_cast<sem_t*>(semaphore));
}

inline void CloseHandle(HANDLE semaphore)
{
	delete static_cast<sem_t*>(semaphore);
}

inline DWORD GetLastError()
{
	return 0;
}

inline int localtime_s(std::tm* local, const std::time_t* time)
{
	return localtime_r(time, local) ? 0 : 1;
}
