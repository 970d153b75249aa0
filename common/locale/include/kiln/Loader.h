// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Loaders of localised strings. A locale's name is language, region and variant, joined by "-" or "_": "fr",
// "fr-CA", "ca-ES-valencia".
#pragma once

#include <string>
#include <unordered_map>

namespace Kiln::Locale
{
/** Texts by key, both UTF-8. */
using StringTable = std::unordered_map<std::string, std::string>;

/** Where strings come from. Objects are not shared between threads. */
class Loader
{
public:
	virtual ~Loader() = default;

	/**
	 * Adds the strings for the locale to the table; a key that it has already gets the new text.
	 * @return the table
	 */
	virtual StringTable& load(StringTable& result, const std::string& locale) = 0;
};
} // namespace Kiln::Locale
