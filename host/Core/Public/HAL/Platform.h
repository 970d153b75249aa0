// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Basic types and compiler differences.
#pragma once

#include <cstddef>
#include <cstdint>

using int32 = std::int32_t;
using int64 = std::int64_t;
using uint8 = std::uint8_t;
using uint32 = std::uint32_t;
using uint64 = std::uint64_t;

using ANSICHAR = char;
using WIDECHAR = wchar_t;
using TCHAR = WIDECHAR;

static_assert(sizeof(TCHAR) == 2, "Strings are UTF-16.");

#ifndef TEXT
#define TEXT_PASTE(Literal) L##Literal
#define TEXT(Literal) TEXT_PASTE(Literal)
#endif

#define DLLEXPORT __declspec(dllexport)
#define DLLIMPORT __declspec(dllimport)

#define THIRD_PARTY_INCLUDES_START                                                                                     \
	_Pragma("GCC diagnostic push") _Pragma("GCC diagnostic ignored \"-Wshadow\"")                                      \
		_Pragma("GCC diagnostic ignored \"-Wconversion\"") _Pragma("GCC diagnostic ignored \"-Wsign-compare\"")        \
			_Pragma("GCC diagnostic ignored \"-Wcast-function-type\"")                                                 \
				_Pragma("GCC diagnostic ignored \"-Wunused-parameter\"")
#define THIRD_PARTY_INCLUDES_END _Pragma("GCC diagnostic pop")

enum
{
	INDEX_NONE = -1
};
