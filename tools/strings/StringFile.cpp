// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "StringFile.h"

#include <algorithm>
#include <kiln/FileStreams.h>
#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>
#include <sstream>

namespace
{
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

class Collector : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Collector>
{
public:
	Collector(const rapidjson::MemoryStream& stream, std::vector<Entry>& entries) : stream_(stream), entries_(entries)
	{
	}

	bool StartObject()
	{
		names_.emplace_back();
		return true;
	}

	bool EndObject(rapidjson::SizeType)
	{
		names_.pop_back();
		return true;
	}

	bool StartArray()
	{
		++arrays_;
		return true;
	}

	bool EndArray(rapidjson::SizeType)
	{
		--arrays_;
		return true;
	}

	bool Key(const char* text, rapidjson::SizeType length, bool)
	{
		names_.back().assign(text, length);
		return true;
	}

	/** Texts in arrays are no strings of the table. */
	bool String(const char* text, rapidjson::SizeType length, bool)
	{
		if (arrays_ == 0 && !names_.empty())
		{
			entries_.push_back({join("."), std::string(text, length), join(" > "), stream_.Tell(), 0});
		}
		return true;
	}

private:
	std::string join(const char* separator) const
	{
		std::string joined = names_.front();
		for (size_t index = 1; index < names_.size(); ++index)
		{
			joined += (joined.empty() ? "" : separator) + names_[index];
		}
		return joined;
	}

	const rapidjson::MemoryStream& stream_;
	std::vector<Entry>& entries_;
	std::vector<std::string> names_;
	size_t arrays_ = 0;
};

/** Line and column of each offset; the offsets rise. */
class Places
{
public:
	explicit Places(std::string_view text) : text_(text) {}

	void moveTo(size_t offset)
	{
		for (; at_ < offset && at_ < text_.size(); ++at_)
		{
			column = text_[at_] == '\n' ? 1 : column + 1;
			line += text_[at_] == '\n';
		}
	}

	size_t line = 1;
	size_t column = 1;

private:
	std::string_view text_;
	size_t at_ = 0;
};
} // namespace

StringFile::StringFile(const std::string& file) : path(file)
{
	std::ifstream stream = Kiln::openInput(file, std::ios::binary);
	if (!stream)
	{
		faults.push_back(path + ": cannot be opened");
		return;
	}
	std::ostringstream buffer;
	buffer << stream.rdbuf();
	std::string text = buffer.str();
	if (text.starts_with(ByteOrderMark))
	{
		faults.push_back(path + ":1:1: begins with a byte-order mark");
		text.erase(0, ByteOrderMark.size());
	}

	rapidjson::MemoryStream input(text.data(), text.size());
	Collector collector(input, entries);
	rapidjson::Reader reader;
	constexpr unsigned flags = rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag;
	const rapidjson::ParseResult result = reader.Parse<flags>(input, collector);
	Places places(text);
	for (Entry& entry : entries)
	{
		places.moveTo(entry.line);
		entry.line = places.line;
		entry.column = places.column;
	}
	if (result.IsError())
	{
		Places end(text);
		end.moveTo(result.Offset());
		faults.push_back(path + ":" + std::to_string(end.line) + ":" + std::to_string(end.column) + ": " +
						 rapidjson::GetParseError_En(result.Code()));
	}
}
