// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// JSON text: read as the parser reads it from memory, but for numbers, which are exact; what is read, converted and written
// comes back.
#include "PlainParse.h"
#include "Require.h"

#include <bit>
#include <cajun/json/writer.h>
#include <cmath>
#include <kiln/DeserializableRapidJson.h>
#include <kiln/JsonConversion.h>
#include <kiln/StringStreamBuf.h>
#include <sstream>

namespace
{
/** Whether a number is the integer that a text is, or the nearest double. */
bool isNearest(const rapidjson::Value& number, std::string_view text)
{
	if (number.IsDouble())
	{
		return std::bit_cast<std::uint64_t>(number.GetDouble()) ==
			   std::bit_cast<std::uint64_t>(std::strtod(text.data(), nullptr));
	}
	return (text == "-0" ? "0" : text) ==
		   (number.IsInt64() ? std::to_string(number.GetInt64()) : std::to_string(number.GetUint64()));
}

/** Compares two documents, the first of which holds the texts of its numbers. */
bool isSame(const rapidjson::Value& plain, const rapidjson::Value& value)
{
	if (value.IsNumber())
	{
		return plain.IsString() && isNearest(value, {plain.GetString(), plain.GetStringLength()});
	}
	if (value.IsObject() && plain.IsObject())
	{
		return std::equal(plain.MemberBegin(), plain.MemberEnd(), value.MemberBegin(), value.MemberEnd(),
			[](const auto& left, const auto& right)
			{ return left.name == right.name && isSame(left.value, right.value); });
	}
	if (value.IsArray() && plain.IsArray())
	{
		return std::equal(plain.Begin(), plain.End(), value.Begin(), value.End(), isSame);
	}
	return plain == value;
}

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

void checkParse(const std::string& text, const rapidjson::Document& document)
{
	const rapidjson::Document plain = parsePlainly<rapidjson::kParseNumbersAsStringsFlag>(text);
	if (document.GetParseError() == rapidjson::kParseErrorNumberTooBig)
	{
		require(std::isinf(std::strtod(text.c_str() + document.GetErrorOffset(), nullptr)), "a number is too big");
	}
	else if (plain.GetParseError() != rapidjson::kParseErrorNumberTooBig)
	{
		require(document.GetParseError() == plain.GetParseError(), "errors are the parser's");
		require(document.GetErrorOffset() == plain.GetErrorOffset(), "errors are where the parser finds them");
		require(isSame(plain, document), "values are the nearest to those of the text");
	}
	require(!document.HasParseError() || document.IsNull(), "what is no document is empty");
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
