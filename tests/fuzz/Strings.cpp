// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// String files: the table is what a plain walk over the document gives, errors stand where the parser finds them, and the
// texts' placeholders are filled once.
#include "Placeholders.h"
#include "Require.h"

#include <algorithm>
#include <kiln/FileStreams.h>
#include <kiln/JSONLoader.h>
#include <rapidjson/document.h>
#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <sys/mman.h>
#include <unistd.h>

using Kiln::Locale::StringTable;

/** The library's own opens by wide path. */
std::ifstream Kiln::openInput(const std::string& path, std::ios::openmode mode)
{
	return std::ifstream(path, mode);
}

namespace
{
void addTexts(const rapidjson::Value& object, const std::string& prefix, StringTable& table)
{
	for (const auto& [name, value] : object.GetObject())
	{
		const std::string key = prefix + std::string(name.GetString(), name.GetStringLength());
		if (value.IsString())
		{
			table[key] = std::string(value.GetString(), value.GetStringLength());
		}
		else if (value.IsObject())
		{
			addTexts(value, key.empty() ? key : key + ".", table);
		}
	}
}

/** What should be told of a file. */
std::string errorOf(const std::string& path, std::string_view text, const rapidjson::Document& document)
{
	if (!document.HasParseError())
	{
		return document.IsObject() ? "" : path + ":1:1: The document root is not an object.";
	}
	const std::string_view before = text.substr(0, document.GetErrorOffset());
	const auto line = std::count(before.begin(), before.end(), '\n') + 1;
	const std::size_t column = before.size() - before.find_last_of('\n');
	return path + ":" + std::to_string(line) + ":" + std::to_string(column) + ": " +
		   rapidjson::GetParseError_En(document.GetParseError());
}

void checkFile(const std::string& path, std::string text, StringTable& table)
{
	StringTable expected = table;
	Kiln::Locale::JSONLoader loader(path);
	loader.load(table, "any");
	text.erase(0, text.starts_with("\xEF\xBB\xBF") ? 3 : 0);
	std::replace(text.begin(), text.end(), '\0', '\1');
	rapidjson::MemoryStream stream(text.data(), text.size());
	rapidjson::Document document;
	document.ParseStream<rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag>(stream);
	if (document.GetParseError() != rapidjson::kParseErrorNumberTooBig)
	{
		if (document.IsObject())
		{
			addTexts(document, "", expected);
		}
		require(loader.error() == errorOf(path, text, document), "errors are where the parser finds them");
		require(table == expected, "the table is what the document says");
	}
}

std::string filled(const std::string& text, const StringTable& arguments)
{
	const std::size_t open = text.find("{{");
	const std::size_t close = open == text.npos ? open : text.find("}}", open + 2);
	if (close == text.npos)
	{
		return text;
	}
	const auto argument = arguments.find(text.substr(open + 2, close - open - 2));
	const bool isKnown = argument != arguments.end();
	return text.substr(0, open) + (isKnown ? argument->second : text.substr(open, close + 2 - open)) +
		   filled(text.substr(close + 2), arguments);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
	static const int file = memfd_create("strings", 0);
	const std::string path = "/proc/self/fd/" + std::to_string(file);
	const auto length = static_cast<ssize_t>(size);
	require(ftruncate(file, length) == 0 && pwrite(file, data, size, 0) == length, "the file is written");
	StringTable table{{"a", "old"}};
	checkFile(path, std::string(reinterpret_cast<const char*>(data), size), table);
	for (const auto& [key, value] : table)
	{
		require(FillPlaceholders(value, table) == filled(value, table),
			"placeholders are filled from the first to the last");
		require(FillPlaceholders(value, {}) == value, "unknown placeholders stay");
	}
	return 0;
}
