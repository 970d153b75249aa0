// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The heap of the library's tests. An object ends where a page begins that nobody may touch, and once deleted it is such
// pages itself: reading or writing past it or after it traps in the line that does so, as does deleting it twice.
// Guarding takes pages and time, so only some thousand objects are guarded at a moment; the others are plain memory. All
// have marks on both sides, checked when they are deleted.
#include "GuardHeap.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <windows.h>

namespace
{
constexpr std::size_t PageSize = 4096;
constexpr std::size_t Alignment = 16;
constexpr std::uint64_t Mark = 0x6b696c6e68656170;
constexpr char Filler = '\xA5';
constexpr long MostGuarded = 2000;
constexpr std::size_t RangeSize = std::size_t(1) << 36;

std::atomic<long> guarded{0};
std::atomic<long> live{0};

/** Lies before the object. From the object's end to the room's end there is filler. */
struct Head
{
	char* room;
	char* roomEnd;
	std::size_t size;
	bool isGuarded;
	std::uint64_t mark;
};

char* roundDown(char* address, std::size_t unit)
{
	return address - reinterpret_cast<std::uintptr_t>(address) % unit;
}

Head* headOf(char* object)
{
	return reinterpret_cast<Head*>(roundDown(object - sizeof(Head), alignof(Head)));
}

/**
 * Hands out the pages of one range of addresses, from the front to the back and never again.
 * @return pages with one behind that nobody may touch, or null when the range is used up
 */
char* takePages(std::size_t size)
{
	static char* const range = static_cast<char*>(VirtualAlloc(nullptr, RangeSize, MEM_RESERVE, PAGE_NOACCESS));
	static std::atomic<std::size_t> used{0};
	const std::size_t begin = used.fetch_add(size + PageSize);
	const bool fits = range && begin < RangeSize && size < RangeSize - begin;
	return fits ? static_cast<char*>(VirtualAlloc(range + begin, size, MEM_COMMIT, PAGE_READWRITE)) : nullptr;
}

void* place(char* room, std::size_t roomSize, std::size_t size, bool isGuarded)
{
	char* const object = roundDown(room + roomSize - (isGuarded ? 0 : Alignment) - size, Alignment);
	*headOf(object) = {room, room + roomSize, size, isGuarded, Mark};
	std::fill(object + size, room + roomSize, Filler);
	++live;
	return object;
}

void* take(std::size_t size)
{
	const std::size_t roomSize = size + sizeof(Head) + 3 * Alignment;
	if (roomSize < size)
	{
		throw std::bad_alloc();
	}
	if (guarded.fetch_add(1) < MostGuarded)
	{
		const std::size_t pages = (roomSize + PageSize - 1) / PageSize * PageSize;
		if (char* const room = takePages(pages))
		{
			return place(room, pages, size, true);
		}
	}
	--guarded;
	if (auto* const room = static_cast<char*>(std::malloc(roomSize)))
	{
		return place(room, roomSize, size, false);
	}
	throw std::bad_alloc();
}

void give(void* pointer)
{
	if (!pointer)
	{
		return;
	}
	auto* const object = static_cast<char*>(pointer);
	const Head head = *headOf(object);
	const auto isFiller = [](char byte) { return byte == Filler; };
	if (head.mark != Mark || !std::all_of(object + head.size, head.roomEnd, isFiller))
	{
		__builtin_trap();
	}
	--live;
	if (head.isGuarded)
	{
		VirtualFree(head.room, static_cast<std::size_t>(head.roomEnd - head.room), MEM_DECOMMIT);
		--guarded;
	}
	else
	{
		headOf(object)->mark = 0;
		std::free(head.room);
	}
}
} // namespace

long liveHeapObjects()
{
	return live;
}

// The forms for arrays and the ones that do not throw call these. Nothing is aligned beyond them.
void* operator new(std::size_t size)
{
	return take(size);
}

void operator delete(void* object) noexcept
{
	give(object);
}

void operator delete(void* object, std::size_t) noexcept
{
	give(object);
}
