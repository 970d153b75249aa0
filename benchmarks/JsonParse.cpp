// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Parsing a text from a stream, beside the same parser on the text in memory.
#include "Subject.h"

#include <istream>
#include <kiln/DeserializableRapidJson.h>
#include <kiln/StringStreamBuf.h>
#include <rapidjson/document.h>
#include <string>

namespace
{
constexpr unsigned ParseFlags = rapidjson::kParseIterativeFlag | rapidjson::kParseFullPrecisionFlag;

/** Some 8 MB. */
const std::string& text()
{
	static const std::string made = []
	{
		std::string records = "[";
		for (int record = 0; record < 100'000; ++record)
		{
			const std::string number = std::to_string(record);
			records += record == 0 ? "\n" : ",\n";
			records += "\t{\"name\" : \"look " + number + "\", \"bytes\" : " + number + ", \"ratio\" : 0." + number +
					   ", \"shown\" : true}";
		}
		return records + "\n]";
	}();
	return made;
}

void check(benchmark::State& state, const rapidjson::Document& document)
{
	if (document.HasParseError())
	{
		state.SkipWithError("parse error");
	}
}

void ours(benchmark::State& state)
{
	Kiln::DeserializableRapidJson reader;
	for (auto _ : state)
	{
		Kiln::StringStreamBuf buffer(text());
		std::istream stream(&buffer);
		rapidjson::Document document;
		check(state, reader.parse(document, stream));
	}
}

void baseline(benchmark::State& state)
{
	for (auto _ : state)
	{
		rapidjson::Document document;
		check(state, document.Parse<ParseFlags>(text().data(), text().size()));
	}
}

const bool isAdded = Bench::add({"JSON parsed from a stream", ours, baseline});
} // namespace
