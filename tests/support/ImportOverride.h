// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Replaces a platform function for a scope, as seen by one loaded image: this program, unless told otherwise, with all that
// is linked into it statically. The stand-in may be a lambda with captures; the real function is had by taking its address
// before:
//
//     ImportOverride attributes("SetFileAttributesW", &SetFileAttributesW,
//         [&, real = &SetFileAttributesW](const wchar_t* name, DWORD bits) { seen = name; return real(name, bits); });
#pragma once

#include <atomic>
#include <cstring>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <windows.h>

/** The slot of an image's import table through which it calls the function. Throws when the image does not import it. */
inline void** importSlot(HMODULE image, const char* function)
{
	char* const base = reinterpret_cast<char*>(image);
	const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
	const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
	const IMAGE_DATA_DIRECTORY& imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
	const auto* library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress);
	for (; imports.VirtualAddress && library->Name; ++library)
	{
		const auto* name = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + library->OriginalFirstThunk);
		auto* slot = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->FirstThunk);
		for (; name->u1.AddressOfData; ++name, ++slot)
		{
			const auto* entry = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData);
			if (!IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal) && std::strcmp(entry->Name, function) == 0)
			{
				return reinterpret_cast<void**>(&slot->u1.Function);
			}
		}
	}
	throw std::logic_error(std::string("not imported: ") + function);
}

template <class Function, class StandIn>
class ImportOverride;

/**
 * One at a time for each stand-in's type, that is, for each lambda in the source. A replacement that was never called is a
 * failure of the test, reported at the end of the scope.
 */
template <class Result, class... Arguments, class StandIn>
class ImportOverride<Result(Arguments...), StandIn>
{
public:
	ImportOverride(
		const char* function, Result (*)(Arguments...), StandIn standIn, HMODULE image = GetModuleHandleW(nullptr))
		: name(function), slot(importSlot(image, function)), replacement(std::move(standIn))
	{
		if (current)
		{
			throw std::logic_error("replaced twice: " + name);
		}
		current = this;
		real = exchange(reinterpret_cast<void*>(&call));
	}

	~ImportOverride()
	{
		exchange(real);
		current = nullptr;
		EXPECT_TRUE(count > 0 || mayStayUncalled) << name << " was replaced and never called";
	}

	ImportOverride(const ImportOverride&) = delete;
	ImportOverride& operator=(const ImportOverride&) = delete;

	/** For one of a group of replacements, of which a test may need some. */
	void allowNoCall() { mayStayUncalled = true; }

	/** How often the replacement was called so far. */
	int calls() const { return count; }

private:
	static Result call(Arguments... arguments)
	{
		++current->count;
		return current->replacement(arguments...);
	}

	void* exchange(void* function)
	{
		DWORD protection = 0;
		VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection);
		void* const before = *slot;
		*slot = function;
		VirtualProtect(slot, sizeof *slot, protection, &protection);
		return before;
	}

	inline static ImportOverride* current = nullptr;

	const std::string name;
	void** const slot;
	StandIn replacement;
	void* real = nullptr;
	std::atomic<int> count = 0;
	bool mayStayUncalled = false;
};

template <class Result, class... Arguments, class StandIn, class... Image>
ImportOverride(const char*, Result (*)(Arguments...), StandIn, Image...)
	-> ImportOverride<Result(Arguments...), StandIn>;
