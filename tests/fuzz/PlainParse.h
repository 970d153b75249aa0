// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>
#include <string>

/** What the parser itself makes of a text in memory, told to a reader of its events. NULs count as the byte 1. */
template <unsigned Flags, class Events>
rapidjson::ParseResult parsePlainly(std::string text, Events& events)
{
	std::replace(text.begin(), text.end(), '\0', '\1');
	rapidjson::MemoryStream stream(text.data(), text.size());
	return rapidjson::Reader().Parse<rapidjson::kParseIterativeFlag | Flags>(stream, events);
}
