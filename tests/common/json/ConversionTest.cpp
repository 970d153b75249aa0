// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "JsonText.h"

#include <gtest/gtest.h>
#include <kiln/CajunTypeResolver.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace
{
std::string writtenByRapidJson(const rapidjson::Value& value)
{
	rapidjson::StringBuffer text;
	rapidjson::Writer<rapidjson::StringBuffer> writer(text);
	value.Accept(writer);
	return text.GetString();
}

TEST(Conversion, IntegersOf64BitsAreTheNearestDoubleWithAllItsDigitsAndOthersStayDoubles)
{
	struct Row
	{
		const char *read, *rapid, *tree;
	};
	const Row rows[] = {
		{"-5", "-5", "-5"},
		{"9007199254740993", "9007199254740992", "9007199254740992"},
		{"-9223372036854775808", "-9223372036854775808", "-9223372036854775808"},
		{"9223372036854774783", "9223372036854774784", "9223372036854774784"},
		{"18446744073709547519", "18446744073709547520", "18446744073709547520"},
		{"18446744073709551616", "18446744073709553000.0", "1.8446744073709552e+19"},
		{"-9223372036854777856", "-9223372036854778000.0", "-9.223372036854778e+18"},
		{"18446744073709551615999", "1.8446744073709552e22", "1.8446744073709552e+22"},
		{"-0.0", "-0.0", "-0"},
	};
	for (const Row& row : rows)
	{
		rapidjson::Document document;
		Kiln::toRapidJson(tree(row.read), document);
		EXPECT_EQ(writtenByRapidJson(document), row.rapid);
		EXPECT_EQ(textOf(tree(row.read)), row.tree);
	}
	rapidjson::Document document;
	Kiln::toRapidJson(json::UnknownElement(json::Number(HUGE_VAL)), document);
	EXPECT_EQ(document.GetDouble(), HUGE_VAL);
}

TEST(Conversion, OfMembersWithOneNameTheLastCountsAtThePlaceOfTheFirst)
{
	EXPECT_EQ(tree(R"({"a":{"x":[1,{"y":2}]},"b":1,"a":{"z":{"a":[]}},"b":[{}],"c":0,"b":3})"),
		tree(R"({"a":{"z":{"a":[]}},"b":3,"c":0})"));
}

TEST(CajunTypeResolver, ExactlyOneFieldIsSet)
{
	Kiln::CajunTypeResolver kind;
	std::string fields;
	for (const char* text : {"[]", "{}", "0", "\"\"", "true", "null", "[]"})
	{
		for (const bool field :
			{kind.isArray, kind.isObject, kind.isNumber, kind.isString, kind.isBoolean, kind.isNull})
		{
			fields += field ? '1' : '-';
		}
		tree(text).Accept(kind);
		fields += ' ';
	}
	EXPECT_EQ(fields, "------ 1----- -1---- --1--- ---1-- ----1- -----1 ");
}

/** Accepts what has a member of that name, and notes the ways in that were used. */
struct RapidReader : Kiln::DeserializableRapidJson
{
	bool fromRapidJson(const rapidjson::Value& in) override
	{
		ways += "rapid, ";
		return !in.IsObject() || in.HasMember("rapid");
	}

	std::string ways;
};

struct Reader : RapidReader
{
	bool fromJson(const json::Object& in) override
	{
		ways += "tree, ";
		return in.Find("tree") != in.End();
	}
};

template <class Read>
std::string readBy(std::string_view text)
{
	Read reader;
	const bool isAccepted = Kiln::deserialize(reader, parse(text));
	return reader.ways + (isAccepted ? "accepted" : "refused");
}

TEST(Deserialize, EveryWayInFallsBackToTheOther)
{
	EXPECT_EQ(readBy<RapidReader>("[1]"), "rapid, accepted");
	EXPECT_EQ(readBy<Reader>(R"({"rapid":1})"), "rapid, accepted");
	EXPECT_EQ(readBy<Reader>(R"({"tree":1})"), "rapid, tree, accepted");
	EXPECT_EQ(readBy<Reader>("{}"), "rapid, tree, refused");
	RapidReader reader;
	EXPECT_TRUE(reader.fromJson(tree(R"({"rapid":1})")));
	EXPECT_FALSE(reader.fromJson(json::Object()));
	Kiln::DeserializableRapidJson nothing;
	EXPECT_FALSE(Kiln::deserialize(nothing, parse("{}")));

	struct Plain : Kiln::Deserializable
	{
		bool fromJson(const json::Object& in) override { return in.Size() == 1; }
	} plain;
	EXPECT_TRUE(Kiln::deserialize(plain, parse("{\"a\":1}")));
	EXPECT_FALSE(Kiln::deserialize(plain, parse("[1]"))) << "there is no object to fall back to";
}
} // namespace
