// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <algorithm>
#include <istream>
#include <kiln/BufferedInputStream.h>
#include <kiln/FileStreams.h>
#include <kiln/JSONLoadHelper.h>
#include <kiln/JSONLoader.h>
#include <rapidjson/document.h>
#include <rapidjson/error/en.h>
#include <utility>

namespace Kiln::Locale
{
namespace
{
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

/** Moves behind a byte-order mark, or back to the start. */
void skipByteOrderMark(std::istream& file)
{
	char first[ByteOrderMark.size()] = {};
	file.read(first, sizeof first);
	if (!file || std::string_view(first, sizeof first) != ByteOrderMark)
	{
		file.clear();
		file.seekg(0);
	}
}

/** "<line>:<column>" of a byte behind the byte-order mark, if any. */
std::string place(const std::string& path, size_t offset)
{
	std::ifstream file = openInput(path, std::ios::binary);
	skipByteOrderMark(file);
	size_t line = 1;
	size_t column = 1;
	for (char byte = 0; offset > 0 && file.get(byte); --offset)
	{
		column = byte == '\n' ? 1 : column + 1;
		line += byte == '\n';
	}
	return std::to_string(line) + ":" + std::to_string(column);
}
} // namespace

JSONLoader::JSONLoader(std::string path) : path_(std::move(path)) {}

StringTable& JSONLoader::load(StringTable& result, const std::string&)
{
	error_.clear();
	std::ifstream file = openInput(path_, std::ios::binary);
	if (!file)
	{
		error_ = path_ + ": cannot be opened";
		return result;
	}
	skipByteOrderMark(file);
	// A number that nobody reads is no reason to lose the texts.
	BufferedInputStream input(file, Numbers::ignored);
	rapidjson::Document document;
	document.ParseStream<rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag>(input);
	if (document.HasParseError())
	{
		error_ = path_ + ":" + place(path_, document.GetErrorOffset()) + ": " +
				 rapidjson::GetParseError_En(document.GetParseError());
	}
	else if (!document.IsObject())
	{
		error_ = path_ + ":1:1: The document root is not an object.";
	}
	else
	{
		JSONLoadHelper(result).fromRapidJson(document);
	}
	return result;
}
} // namespace Kiln::Locale
