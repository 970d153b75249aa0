// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The little of the platform that the library's locks and clock rest on, by the build machine's own means.
#pragma once

#include <ctime>
#include <mutex>
#include <semaphore>

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

inline HANDLE CreateSemaphoreW(const void*, long count, long, const wchar_t*)
{
	return new std::counting_semaphore<>(count);
}

inline void WaitForSingleObject(HANDLE semaphore, DWORD)
{
	static_cast<std::counting_semaphore<>*>(semaphore)->acquire();
}

inline void ReleaseSemaphore(HANDLE semaphore, long count, long*)
{
	static_cast<std::counting_semaphore<>*>(semaphore)->release(count);
}

inline void CloseHandle(HANDLE semaphore)
{
	delete static_cast<std::counting_semaphore<>*>(semaphore);
}

inline DWORD GetLastError()
{
	return 0;
}

inline int localtime_s(std::tm* local, const std::time_t* time)
{
	return localtime_r(time, local) ? 0 : 1;
}
