// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A string file as its author sees it: every text with its key and its place.
#pragma once

#include <string>
#include <vector>

struct Entry
{
	/** The names of the members that lead to the text, joined by ".". */
	std::string key;
	std::string text;

	/** The names as they stand in the file, joined by " > ". */
	std::string path;
	size_t line;
	size_t column;
};

struct StringFile
{
	/** Reads the file; what is wrong with it as a file goes into faults. UTF-8. */
	explicit StringFile(const std::string& path);

	std::string path;
	std::vector<Entry> entries;

	/** One line each: file, line, column, reason. */
	std::vector<std::string> faults;
};
