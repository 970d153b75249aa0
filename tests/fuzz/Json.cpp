// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// JSON text: read as the parser reads it from memory, but for numbers, which are exact; what is read, converted and written
// comes back.
#include "../common/json/JsonText.h"
#include "Require.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <rapidjson/memorystream.h>
#include <rapidjson/writer.h>

namespace
{
/** The parser's own writer, for numbers as they stand in a text: integers of up to 64 bits, or the nearest double. */
struct ExactWriter : rapidjson::Writer<rapidjson::StringBuffer>
{
	using Writer::Writer;

	bool RawNumber(const char* text, rapidjson::SizeType size, bool)
	{
		const auto isWhole = [&](auto& number)
		{
			const std::from_chars_result read = std::from_chars(text, text + size, number);
			return read.ec == std::errc() && read.ptr == text + size;
		};
		std::int64_t integer = 0;
		std::uint64_t natural = 0;
		return isWhole(integer)   ? Int64(integer)
			   : isWhole(natural) ? Uint64(natural)
								  : Double(std::strtod(text, nullptr));
	}
};

void checkParse(std::string text, const rapidjson::Document& document)
{
	require(!document.HasParseError() || document.IsNull(), "what is no document is empty");
	if (document.GetParseError() == rapidjson::kParseErrorNumberTooBig)
	{
		require(std::isinf(std::strtod(text.c_str() + document.GetErrorOffset(), nullptr)), "a number is too big");
		return;
	}
	std::replace(text.begin(), text.end(), '\0', '\1');
	rapidjson::MemoryStream stream(text.data(), text.size());
	rapidjson::StringBuffer expected, actual;
	ExactWriter exact(expected), writer(actual);
	constexpr unsigned flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;
	const rapidjson::ParseResult plain = rapidjson::Reader().Parse<flags>(stream, exact);
	if (plain.Code() != rapidjson::kParseErrorNumberTooBig)
	{
		require(document.GetParseError() == plain.Code(), "errors are the parser's");
		require(document.GetErrorOffset() == plain.Offset(), "errors are where the parser finds them");
		document.Accept(writer);
		require(plain.IsError() || std::string_view(expected.GetString()) == actual.GetString(),
			"values are the nearest to those of the text");
	}
}

void checkConversions(const rapidjson::Document& document)
{
	const json::UnknownElement tree = Kiln::toCajun(document);
	rapidjson::Document converted;
	Kiln::toRapidJson(tree, converted);
	require(Kiln::toCajun(converted) == tree, "a tree comes back from a document");

	const std::string text = textOf(tree);
	const bool hasControls = std::any_of(
		text.begin(), text.end(), [](char byte) { return byte >= 0 && byte < ' ' && byte != '\n' && byte != '\t'; });
	const rapidjson::Document read = parse(text);
	require(
		read.GetParseError() == (hasControls ? rapidjson::kParseErrorStringEscapeInvalid : rapidjson::kParseErrorNone),
		"texts are read but for control characters");
	require(hasControls || Kiln::toCajun(read) == tree, "a tree comes back from its text");
}

/** Of a double, its text; and what is read half-way to the next one, or nearly there. */
void checkNumber(std::uint64_t bits)
{
	const double few = std::pow(10, static_cast<int>(bits % 29) - 9) * static_cast<double>(bits % 999);
	const double value = bits % 4 == 0 ? few : std::bit_cast<double>(bits >> bits % 64 & 0x7FDFFFFFFFFFFFFF);
	const long double half = (static_cast<long double>(value) + std::nextafter(value, HUGE_VAL)) / 2;
	char text[1100];
	std::snprintf(text, sizeof text, "[%.*Le]", static_cast<int>(bits % 2 ? 1000 : bits % 30), half);
	checkParse(text, parse(text));

	int precision = static_cast<int>(bits % 800);
	std::snprintf(text, sizeof text, "%.*g", precision, value);
	require(textOf(json::Number(value, precision)) == text, "numbers have the digits that are asked for");
	precision = 15;
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
