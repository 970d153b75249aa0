// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Names of locales and the choice of a file: a line with the prefix, one with the locale, and one for each file.
#include "Require.h"

#include <algorithm>
#include <kiln/FileChoice.h>
#include <kiln/Unicode.h>
#include <sstream>

using namespace Kiln::Locale;

/** The library's own asks the platform. */
std::string Kiln::lowerCase(std::string_view utf8)
{
	std::string lower(utf8);
	std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? c + 32 : c; });
	return lower;
}

namespace
{
using Kiln::lowerCase;

void checkName(const std::string& text)
{
	const LocaleName name(text);
	std::string whole = lowerCase(text);
	std::replace(whole.begin(), whole.end(), '_', '-');
	const std::string all = name.language + "-" + name.region + "-" + name.variant;
	require(all.starts_with(whole) && all.find_first_not_of('-', whole.size()) == all.npos, "the parts are the name");
	require((name.language + name.region).find('-') == all.npos, "language and region are single parts");
}

FileChoice expectedChoice(const std::vector<std::string>& files, const std::string& prefix, const LocaleName& wanted)
{
	constexpr Match matches[] = {
		Match::none, Match::english, Match::language, Match::language, Match::english, Match::exact};
	const std::string stem = prefix.empty() ? "" : lowerCase(prefix + "_");
	int best = 0;
	FileChoice choice;
	for (const std::string& file : files)
	{
		std::string locale = lowerCase(file);
		if (!locale.starts_with(stem) || !locale.erase(0, stem.size()).ends_with(".json"))
		{
			continue;
		}
		locale.resize(locale.size() - 5);
		const LocaleName name(locale);
		const bool isAmerican = name.language == "en" && name.region == "us";
		const bool isLanguage = name.language == wanted.language;
		const bool isVariant = isLanguage && !wanted.variant.empty() && name.variant == wanted.variant;
		const int ofLanguage = isAmerican ? 4 : isVariant ? 3 : 2;
		const int rank = name == wanted ? 5 : isLanguage ? ofLanguage : isAmerican;
		// Of exact ones and of those of the variant the first counts, of the others the last.
		if (rank > best || (rank == best && (rank == 4 || rank == 2 || rank == 1)))
		{
			best = rank;
			choice = {file, matches[rank] == Match::english ? "en-US" : locale, matches[rank]};
		}
	}
	return choice;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
	std::istringstream lines(std::string(reinterpret_cast<const char*>(data), size));
	std::string prefix, locale;
	std::getline(std::getline(lines, prefix), locale);
	std::vector<std::string> files;
	for (std::string file; std::getline(lines, file);)
	{
		files.push_back(file);
	}
	checkName(locale);
	const FileChoice choice = chooseFile(files, prefix, locale);
	const FileChoice expected = expectedChoice(files, prefix, LocaleName(locale));
	require(choice.file == expected.file, "the file is the one by the rules");
	require(
		choice.match == expected.match && choice.locale == expected.locale, "the reason and the locale are its own");
	return 0;
}
