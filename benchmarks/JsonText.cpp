// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Writing a tree as text, beside the pretty writer of the parsing library on the same data.
#include "Subject.h"

#include <cajun/json/writer.h>
#include <kiln/JsonConversion.h>
#include <rapidjson/document.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <sstream>
#include <string>

namespace
{
constexpr int Members = 10'000;

/** As in records of files: texts, some with escapes, byte counts, times and ratios. */
json::Object makeRecords()
{
	json::Object object;
	for (int member = 0; member < Members; ++member)
	{
		const std::string name = "member " + std::to_string(member);
		switch (member % 5)
		{
		case 0:
			object[name] = json::String("C:\\Looks\\Gr\xC3\xBCn " + name + ".look");
			break;
		case 1:
			object[name] = json::Number(member * 1048576.0);
			break;
		case 2:
			object[name] = json::Number(member / 7.0);
			break;
		case 3:
			object[name] = json::Boolean(member % 2 == 0);
			break;
		default:
			object[name] = json::String("plain text of " + name);
			break;
		}
	}
	return object;
}

void ours(benchmark::State& state)
{
	const json::Object records = makeRecords();
	for (auto _ : state)
	{
		std::ostringstream stream;
		json::Writer::Write(records, stream);
		benchmark::DoNotOptimize(stream.good());
	}
}

void baseline(benchmark::State& state)
{
	rapidjson::Document records;
	Kiln::toRapidJson(makeRecords(), records);
	for (auto _ : state)
	{
		rapidjson::StringBuffer text;
		rapidjson::PrettyWriter<rapidjson::StringBuffer> writer(text);
		writer.SetIndent('\t', 1);
		records.Accept(writer);
		benchmark::DoNotOptimize(text.GetString());
	}
}

const bool isAdded = Bench::add({"JSON text of 10,000 members", ours, baseline, 3.0});
} // namespace
