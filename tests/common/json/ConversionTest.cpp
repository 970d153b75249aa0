// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "JsonText.h"
#include "RandomTree.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <kiln/CajunTypeResolver.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace
{
TEST(Conversion, TreesDocumentsAndTextsComeBackAsTheyWere)
{
	for (unsigned seed = 0; seed < 60; ++seed)
	{
		RandomTree random(seed);
		const json::UnknownElement made = seed % 2 ? random.make() : json::UnknownElement(random.makeObject(4));
		rapidjson::Document document;
		Kiln::toRapidJson(made, document);
		EXPECT_EQ(Kiln::toCajun(document), made) << "seed " << seed;
		// Not by json::Writer: the control characters of random texts go out as they are there.
		rapidjson::StringBuffer text;
		rapidjson::Writer<rapidjson::StringBuffer> writer(text);
		document.Accept(writer);
		EXPECT_TRUE(parse({text.GetString(), text.GetSize()}) == document) << "seed " << seed;
	}
}

TEST(Conversion, IntegersOf64BitsAreTheNearestDoubleWithAllItsDigits)
{
	const std::pair<const char*, const char*> table[] = {
		{"-5", "-5"},
		{"9007199254740993", "9007199254740992"},
		{"-9223372036854775808", "-9223372036854775808"},
		{"9223372036854774783", "9223372036854774784"},
		{"18446744073709547519", "18446744073709547520"},
	};
	for (const auto& [integer, text] : table)
	{
		EXPECT_EQ(textOf(tree(integer)), text);
		rapidjson::Document back;
		Kiln::toRapidJson(tree(integer), back);
		ASSERT_TRUE(back.IsInt64() || back.IsUint64()) << text;
		EXPECT_EQ(back.IsInt64() ? std::to_string(back.GetInt64()) : std::to_string(back.GetUint64()), text);
	}
}

TEST(Conversion, NumbersWithoutAnIntegerStayDoubles)
{
	for (const double value : {0.5, -0.0, 18446744073709551616.0, -9223372036854777856.0, HUGE_VAL, std::nan("")})
	{
		rapidjson::Document document;
		Kiln::toRapidJson(json::UnknownElement(json::Number(value)), document);
		ASSERT_TRUE(document.IsDouble()) << value;
		EXPECT_EQ(std::to_string(document.GetDouble()), std::to_string(value));
	}
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

/** Notes which ways in were used; accepts by the ways that it is told. */
class Reader : public Kiln::DeserializableRapidJson
{
public:
	explicit Reader(bool acceptsRapid) : acceptsRapid_(acceptsRapid) {}

	bool fromRapidJson(const rapidjson::Value& in) override
	{
		ways += in.IsObject() && in.HasMember("text") ? std::string("rapid ") + in["text"].GetString() : "rapid";
		return acceptsRapid_;
	}

	std::string ways;

private:
	bool acceptsRapid_;
};

class CajunReader : public Reader
{
public:
	using Reader::Reader;

	bool fromJson(const json::Object& in) override
	{
		const json::String& text = in["text"];
		ways += ", cajun " + text.Value();
		return text == "taken";
	}
};

TEST(Deserialize, EveryWayInFallsBackToTheOther)
{
	struct Row
	{
		Kiln::Deserializable&& reader;
		const char* text;
		bool isAccepted;
		const char* ways;
	};
	struct Plain : Kiln::Deserializable
	{
		bool fromJson(const json::Object& in) override { return in.Size() == 1; }
	} plain;
	EXPECT_TRUE(Kiln::deserialize(plain, parse("{\"a\":1}")));
	EXPECT_FALSE(Kiln::deserialize(plain, parse("[1]"))) << "there is no object to fall back to";
	const Row rows[] = {
		{Reader(true), R"({"text":"taken"})", true, "rapid taken"},
		{Reader(true), "[1]", true, "rapid"},
		{CajunReader(false), R"({"text":"taken"})", true, "rapid taken, cajun taken"},
		{CajunReader(false), R"({"text":"refused"})", false, "rapid refused, cajun refused"},
		{CajunReader(false), "[1]", false, "rapid"},
	};
	for (const Row& row : rows)
	{
		EXPECT_EQ(Kiln::deserialize(row.reader, parse(row.text)), row.isAccepted);
		EXPECT_EQ(dynamic_cast<const Reader&>(row.reader).ways, row.ways);
	}
	Reader reader(true);
	EXPECT_TRUE(reader.fromJson(tree(R"({"text":"from the tree"})")));
	EXPECT_EQ(reader.ways, "rapid from the tree");
	EXPECT_FALSE(Kiln::DeserializableRapidJson().fromJson(json::Object()));
}
} // namespace
