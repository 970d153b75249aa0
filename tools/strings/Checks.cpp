// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Checks.h"

#include <iterator>
#include <kiln/FileStreams.h>
#include <kiln/Unicode.h>
#include <map>
#include <regex>
#include <sstream>

namespace
{
using Faults = std::vector<std::string>;
using Table = std::map<std::string, const Entry*>;

std::string place(const StringFile& file, const Entry& entry)
{
	return file.path + ":" + std::to_string(entry.line) + ":" + std::to_string(entry.column) + ": ";
}

/** The names between "{{" and "}}". */
std::multiset<std::string> placeholders(const std::string& text)
{
	std::multiset<std::string> names;
	for (size_t open = text.find("{{"); open != std::string::npos;)
	{
		const size_t close = text.find("}}", open + 2);
		if (close == std::string::npos)
		{
			break;
		}
		names.insert(text.substr(open + 2, close - open - 2));
		open = text.find("{{", close + 2);
	}
	return names;
}

/** Enters the file's keys and reports those that stand there twice. */
Table index(const StringFile& file, Faults& faults)
{
	Table table;
	for (const Entry& entry : file.entries)
	{
		const auto [known, isNew] = table.try_emplace(entry.key, &entry);
		if (!isNew)
		{
			faults.push_back(
				place(file, entry) +
				(known->second->path == entry.path ? "duplicate key \"" : "flat and nested spelling of one key \"") +
				entry.key + "\", first in line " + std::to_string(known->second->line));
		}
		if (entry.text.empty())
		{
			faults.push_back(place(file, entry) + "empty text of \"" + entry.key + "\"");
		}
	}
	return table;
}

void checkKeys(
	const StringFile& file, const Table& table, const std::set<std::string>& wanted, const char* by, Faults& faults)
{
	for (const std::string& key : wanted)
	{
		if (!table.contains(key))
		{
			faults.push_back(file.path + ": key \"" + key + "\" is missing, which " + by + " has");
		}
	}
	for (const auto& [key, entry] : table)
	{
		if (!wanted.contains(key))
		{
			faults.push_back(place(file, *entry) + "unknown key \"" + key + "\"");
		}
	}
}

void checkPlaceholders(const StringFile& file, const Table& table, const Table& english, Faults& faults)
{
	for (const auto& [key, entry] : table)
	{
		const auto original = english.find(key);
		if (original != english.end() && placeholders(entry->text) != placeholders(original->second->text))
		{
			faults.push_back(place(file, *entry) + "other placeholders than en-US in \"" + key + "\"");
		}
	}
}

bool isEnglish(const StringFile& file)
{
	return Kiln::lowerCase(file.path).ends_with("_en-us.json");
}
} // namespace

std::set<std::string> keysInCode(const std::string& path)
{
	std::ifstream stream = Kiln::openInput(path, std::ios::binary);
	std::ostringstream text;
	text << stream.rdbuf();
	const std::string code = text.str();
	static const std::regex key("\"([A-Za-z]\\w*\\.\\w+)\"");
	std::set<std::string> keys;
	for (std::sregex_iterator found(code.begin(), code.end(), key), end; found != end; ++found)
	{
		keys.insert((*found)[1]);
	}
	return keys;
}

std::vector<std::string> check(const std::vector<StringFile>& files, const std::set<std::string>& codeKeys)
{
	Faults faults;
	std::vector<Table> tables;
	const Table* english = nullptr;
	tables.reserve(files.size());
	for (const StringFile& file : files)
	{
		faults.insert(faults.end(), file.faults.begin(), file.faults.end());
		tables.push_back(index(file, faults));
		english = isEnglish(file) ? &tables.back() : english;
	}
	std::set<std::string> englishKeys;
	for (const auto& [key, entry] : english ? *english : Table())
	{
		englishKeys.insert(key);
	}
	for (size_t number = 0; number < files.size(); ++number)
	{
		const bool isMeasure = &tables[number] == english;
		if (!codeKeys.empty())
		{
			checkKeys(files[number], tables[number], codeKeys, "the code", faults);
		}
		else if (english && !isMeasure)
		{
			checkKeys(files[number], tables[number], englishKeys, "en-US", faults);
		}
		if (english && !isMeasure)
		{
			checkPlaceholders(files[number], tables[number], *english, faults);
		}
	}
	return faults;
}
