// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// JSON text: read as the parser reads it from memory, but for numbers, which are exact; what is read, converted and written
// comes back.
#include "PlainParse.h"
#include "Require.h"

#include <bit>
#include <cajun/json/writer.h>
#include <charconv>
#include <cmath>
#include <kiln/DeserializableRapidJson.h>
#include <kiln/JsonConversion.h>
#include <kiln/StringStreamBuf.h>
#include <rapidjson/document.h>
#include <sstream>

namespace
{
bool isOneOf(std::string_view bytes, char byte)
{
	return bytes.find(byte) != bytes.npos;
}

/** What happens in a document, as text. */
struct Events : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Events>
{
	bool add(char kind, std::string_view what = {})
	{
		text += kind + std::to_string(what.size()) + ":";
		text += what;
		return true;
	}

	bool Null() { return add('n'); }
	bool Bool(bool value) { return add(value ? 't' : 'f'); }
	bool Int(int value) { return Int64(value); }
	bool Uint(unsigned value) { return Uint64(value); }
	bool Int64(std::int64_t value) { return add('i', std::to_string(value)); }
	bool Uint64(std::uint64_t value) { return add('i', std::to_string(value)); }
	bool Double(double value) { return add('d', std::to_string(std::bit_cast<std::uint64_t>(value))); }
	bool String(const char* value, rapidjson::SizeType size, bool)
	{
		hasControls |= std::any_of(
			value, value + size, [](char byte) { return byte >= 0 && byte < ' ' && !isOneOf("\b\t\n\f\r", byte); });
		return add('s', {value, size});
	}
	bool Key(const char* value, rapidjson::SizeType size, bool) { return add('k') && String(value, size, false); }
	bool StartObject() { return add('{'); }
	bool EndObject(rapidjson::SizeType) { return add('}'); }
	bool StartArray() { return add('['); }
	bool EndArray(rapidjson::SizeType) { return add(']'); }

	/** A number as it stands in the text: an integer of up to 64 bits, or the nearest double. */
	bool RawNumber(const char* value, rapidjson::SizeType size, bool)
	{
		std::int64_t integer = 0;
		std::uint64_t natural = 0;
		const char* const end = value + size;
		const auto isWhole = [&](auto& number)
		{
			const std::from_chars_result read = std::from_chars(value, end, number);
			return read.ec == std::errc() && read.ptr == end;
		};
		return isWhole(integer)   ? Int64(integer)
			   : isWhole(natural) ? Uint64(natural)
								  : Double(std::strtod(std::string(value, end).c_str(), nullptr));
	}

	std::string text;

	/** Whether a text holds bytes that are written as they are and not read back. */
	bool hasControls = false;
};

rapidjson::Document parse(const std::string& text)
{
	Kiln::StringStreamBuf buffer(text);
	std::istream stream(&buffer);
	rapidjson::Document document;
	Kiln::DeserializableRapidJson().parse(document, stream);
	return document;
}

std::string textOf(const json::UnknownElement& element)
{
	std::ostringstream stream;
	json::Writer::Write(element, stream);
	return stream.str();
}

/** Whether a number that begins there is too big, or goes on with what ends no number. */
bool isTooBig(const std::string& text, std::size_t begin)
{
	char* end = nullptr;
	return std::isinf(std::strtod(text.c_str() + begin, &end)) || isOneOf("+-.eE", *end);
}

void checkParse(const std::string& text, const rapidjson::Document& document)
{
	Events plain;
	const rapidjson::ParseResult expected = parsePlainly<rapidjson::kParseNumbersAsStringsFlag>(text, plain);
	if (document.GetParseError() == rapidjson::kParseErrorNumberTooBig)
	{
		require(isTooBig(text, document.GetErrorOffset()), "a number is too big");
	}
	else if (expected.Code() != rapidjson::kParseErrorNumberTooBig)
	{
		require(document.GetParseError() == expected.Code(), "errors are the parser's");
		require(document.GetErrorOffset() == expected.Offset(), "errors are where the parser finds them");
		Events events;
		document.Accept(events);
		require(expected.IsError() || events.text == plain.text, "values are the nearest to those of the text");
	}
	require(!document.HasParseError() || document.IsNull(), "what is no document is empty");
}

void checkConversions(const rapidjson::Document& document)
{
	const json::UnknownElement tree = Kiln::toCajun(document);
	rapidjson::Document converted;
	Kiln::toRapidJson(tree, converted);
	require(Kiln::toCajun(converted) == tree, "a tree comes back from a document");

	const rapidjson::Document read = parse(textOf(tree));
	Events events;
	converted.Accept(events);
	require(read.GetParseError() ==
				(events.hasControls ? rapidjson::kParseErrorStringEscapeInvalid : rapidjson::kParseErrorNone),
		"texts are read but for control characters");
	require(events.hasControls || Kiln::toCajun(read) == tree, "a tree comes back from its text");
}

/** Of a double, its text; and what is read half-way to the next one, or nearly there. */
void checkNumber(std::uint64_t bits)
{
	const double value = std::bit_cast<double>(bits >> bits % 64 & 0x7FDFFFFFFFFFFFFF);
	const long double half = (static_cast<long double>(value) + std::nextafter(value, HUGE_VAL)) / 2;
	char text[1100];
	std::snprintf(text, sizeof text, "[%.*Le]", static_cast<int>(bits % 2 ? 1000 : bits % 30), half);
	checkParse(text, parse(text));

	int precision = 15;
	do
	{
		std::snprintf(text, sizeof text, "%.*g", precision, value);
	} while (std::strtod(text, nullptr) != value && ++precision < 18);
	require(textOf(json::Number(value)) == text, "numbers have the fewest digits of 15 to 17 that read back");
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
	// Texts that begin with a tab lie across the end of what is read of a stream at once.
	constexpr std::size_t blockSize = 16384;
	std::string text(reinterpret_cast<const char*>(data), size);
	text.insert(0, text.starts_with('\t') ? blockSize - size / 2 : 0, ' ');
	const rapidjson::Document document = parse(text);
	checkParse(text, document);
	if (!document.HasParseError())
	{
		checkConversions(document);
	}
	// Many digits take as long as all of the above.
	if (size % 8 == 0)
	{
		checkNumber(std::hash<std::string>()(text));
	}
	return 0;
}
