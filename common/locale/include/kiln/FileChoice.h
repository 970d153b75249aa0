// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Which of several string files serves a locale.
#pragma once

#include <string>
#include <vector>

namespace Kiln::Locale
{
/** The parts of a locale's name; "_" counts as "-". */
struct LocaleName
{
	/** The parts in lower case: "ca-ES-valencia" has language "ca", region "es" and variant "valencia". */
	explicit LocaleName(const std::string& name);

	bool operator==(const LocaleName&) const = default;

	std::string language;
	std::string region;

	/** All that stands behind the region. */
	std::string variant;
};

/** Why a file was chosen. */
enum class Match
{
	none,

	/** Language, region and variant are those asked for. */
	exact,

	/** The language is the one asked for. */
	language,

	/** The file is the one for American English, the fall-back of all languages and of English first. */
	english,
};

struct FileChoice
{
	/** A name out of the list; empty when none serves. */
	std::string file;

	/** The locale part of the file's name in lower case, or "en-US" for Match::english. */
	std::string locale;

	Match match = Match::none;
};

/**
 * Chooses among files named <prefix>_<locale>.json (without "_" where the prefix is empty), case ignored. An exact match
 * wins; else for English the American file; else the last file of the language in the list, unless one before it has
 * the variant asked for: then the first such; else the American English file.
 * @param names in the order that decides between equal matches
 * @param prefix UTF-8, may be empty
 */
FileChoice chooseFile(const std::vector<std::string>& names, const std::string& prefix, const std::string& locale);
} // namespace Kiln::Locale
