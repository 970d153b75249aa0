// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <algorithm>
#include <kiln/FileChoice.h>
#include <kiln/Unicode.h>
#include <optional>
#include <string_view>

namespace Kiln::Locale
{
namespace
{
constexpr std::string_view Ending = ".json";

/** The locale part of a file's name in lower case, or nothing when it is no string file. */
std::optional<std::string> localePart(const std::string& file, const std::string& stem)
{
	const std::string name = lowerCase(file);
	if (name.size() < stem.size() + Ending.size() || !name.starts_with(stem) || !name.ends_with(Ending))
	{
		return std::nullopt;
	}
	return name.substr(stem.size(), name.size() - stem.size() - Ending.size());
}
} // namespace

LocaleName::LocaleName(const std::string& name)
{
	std::string text = lowerCase(name);
	std::replace(text.begin(), text.end(), '_', '-');
	const size_t languageEnd = (std::min)(text.find('-'), text.size());
	const size_t regionBegin = (std::min)(languageEnd + 1, text.size());
	const size_t regionEnd = (std::min)(text.find('-', regionBegin), text.size());
	language = text.substr(0, languageEnd);
	region = text.substr(regionBegin, regionEnd - regionBegin);
	variant = text.substr((std::min)(regionEnd + 1, text.size()));
}

FileChoice chooseFile(const std::vector<std::string>& names, const std::string& prefix, const std::string& locale)
{
	const LocaleName wanted(locale);
	const std::string stem = prefix.empty() ? std::string() : lowerCase(prefix) + "_";
	FileChoice byLanguage;
	FileChoice english;
	bool isLanguageFixed = false;
	for (const std::string& name : names)
	{
		const std::optional<std::string> part = localePart(name, stem);
		if (!part)
		{
			continue;
		}
		const LocaleName candidate(*part);
		if (candidate == wanted)
		{
			return {name, *part, Match::exact};
		}
		if (candidate.language == wanted.language && !isLanguageFixed)
		{
			byLanguage = {name, *part, Match::language};
			isLanguageFixed = !wanted.variant.empty() && candidate.variant == wanted.variant;
		}
		if (candidate.language == "en" && candidate.region == "us")
		{
			english = {name, "en-US", Match::english};
		}
	}
	const bool isEnglishFirst = wanted.language == "en" || byLanguage.match == Match::none;
	return isEnglishFirst && english.match != Match::none ? english : byLanguage;
}
} // namespace Kiln::Locale
