// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// strings check <folder> [<source file with the keys>]: what is wrong with the string files table_<locale>.json of a folder
// strings explain <locale> <folder>: which of them serves a locale, and why
// Exit codes: 0 nothing is wrong, 1 something is, 2 bad arguments.
#include "Checks.h"

#include <cstdio>
#include <exception>
#include <kiln/FolderLoader.h>
#include <kiln/Folders.h>
#include <kiln/Unicode.h>
#include <windows.h>

namespace
{
constexpr const char* Prefix = "table";

int checkFolder(const std::string& folder, const std::string& code)
{
	std::vector<StringFile> files;
	for (const std::string& name : Kiln::listFiles(folder).value_or(std::vector<std::string>()))
	{
		const std::string lower = Kiln::lowerCase(name);
		if (lower.starts_with(std::string(Prefix) + "_") && lower.ends_with(".json"))
		{
			files.emplace_back(folder + "/" + name);
		}
	}
	if (files.empty())
	{
		std::fprintf(stderr, "%s: no string files\n", folder.c_str());
		return 1;
	}
	const std::set<std::string> keys = code.empty() ? std::set<std::string>() : keysInCode(code);
	if (!code.empty() && keys.empty())
	{
		std::fprintf(stderr, "%s: no keys\n", code.c_str());
		return 1;
	}
	const std::vector<std::string> faults = check(files, keys);
	for (const std::string& fault : faults)
	{
		std::printf("%s\n", fault.c_str());
	}
	std::printf("%zu files, %zu faults\n", files.size(), faults.size());
	return faults.empty() ? 0 : 1;
}

int explain(const std::string& locale, const std::string& folder)
{
	using Kiln::Locale::Match;
	const Kiln::Locale::FileChoice choice = Kiln::Locale::FolderLoader(folder, Prefix).choose(locale);
	const char* reason = choice.match == Match::exact      ? "language, region and variant are those asked for"
						 : choice.match == Match::language ? "its language is the one asked for"
						 : choice.match == Match::english  ? "American English stands in for what is missing"
														   : "no file serves the locale";
	std::printf("%s: %s (%s)\n", locale.c_str(), choice.file.empty() ? "nothing" : choice.file.c_str(), reason);
	return choice.match == Match::none ? 1 : 0;
}
} // namespace

int wmain(int count, wchar_t** wide)
{
	SetConsoleOutputCP(CP_UTF8);
	std::vector<std::string> arguments;
	for (int index = 1; index < count; ++index)
	{
		arguments.push_back(Kiln::toUtf8(wide[index]));
	}
	try
	{
		if ((arguments.size() == 2 || arguments.size() == 3) && arguments[0] == "check")
		{
			return checkFolder(arguments[1], arguments.size() == 3 ? arguments[2] : std::string());
		}
		if (arguments.size() == 3 && arguments[0] == "explain")
		{
			return explain(arguments[1], arguments[2]);
		}
	}
	catch (const std::exception& failure)
	{
		std::fprintf(stderr, "%s\n", failure.what());
		return 1;
	}
	std::fputs("strings check <folder> [<source file with the keys>]\nstrings explain <locale> <folder>\n", stderr);
	return 2;
}
