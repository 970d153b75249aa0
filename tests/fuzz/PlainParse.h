// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <rapidjson/document.h>
#include <rapidjson/memorystream.h>
#include <string>

/** What the parser itself makes of a text in memory. NULs count as the byte 1. */
template <unsigned Flags>
rapidjson::Document parsePlainly(std::string text)
{
	std::replace(text.begin(), text.end(), '\0', '\1');
	rapidjson::MemoryStream stream(text.data(), text.size());
	rapidjson::Document document;
	document.ParseStream<rapidjson::kParseIterativeFlag | Flags>(stream);
	return document;
}
