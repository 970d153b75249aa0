// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "RandomTree.h"

#include <cajun/json/writer.h>
#include <cstdint>
#include <gtest/gtest.h>
#include <kiln/CajunTypeResolver.h>
#include <kiln/DeserializableRapidJson.h>
#include <kiln/JsonConversion.h>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

namespace
{
std::string textOf(const json::UnknownElement& element)
{
	std::ostringstream stream;
	json::Writer::Write(element, stream);
	return stream.str();
}

rapidjson::Document parsed(const std::string& text)
{
	rapidjson::Document document;
	document.Parse<rapidjson::kParseFullPrecisionFlag>(text.data(), text.size());
	EXPECT_FALSE(document.HasParseError()) << text;
	return document;
}

TEST(Conversion, TreesAndDocumentsComeBackAsTheyWere)
{
	for (unsigned seed = 0; seed < 60; ++seed)
	{
		RandomTree random(seed);
		const json::UnknownElement tree = seed % 2 ? random.make() : json::UnknownElement(random.makeObject(4));
		rapidjson::Document document;
		Kiln::toRapidJson(tree, document);
		const json::UnknownElement treeAgain = Kiln::toCajun(document);
		EXPECT_EQ(treeAgain, tree) << "seed " << seed;
		rapidjson::Document again;
		Kiln::toRapidJson(treeAgain, again);
		EXPECT_TRUE(again == document) << "seed " << seed;
	}
}

TEST(Conversion, IntegersOf64BitsAreTheNearestDoubleWithAllItsDigits)
{
	constexpr std::int64_t Lowest = std::numeric_limits<std::int64_t>::min();
	constexpr std::int64_t Highest = std::numeric_limits<std::int64_t>::max();
	const std::pair<std::int64_t, const char*> table[] = {
		{0, "0"},
		{-5, "-5"},
		{1'000'000'000'000'000, "1000000000000000"},
		{(1LL << 53) + 1, "9007199254740992"},
		{(1LL << 60), "1152921504606846976"},
		{Lowest, "-9223372036854775808"},
		{Highest - 1024, "9223372036854774784"},
	};
	for (const auto& [integer, text] : table)
	{
		const json::UnknownElement converted = Kiln::toCajun(rapidjson::Value(integer));
		EXPECT_EQ(textOf(converted), text);
		rapidjson::Document back;
		Kiln::toRapidJson(converted, back);
		ASSERT_TRUE(back.IsInt64()) << text;
		EXPECT_EQ(std::to_string(back.GetInt64()), text);
	}
	rapidjson::Document back;
	Kiln::toRapidJson(Kiln::toCajun(rapidjson::Value(std::numeric_limits<std::uint64_t>::max() - 4096)), back);
	EXPECT_EQ(back.GetUint64(), std::numeric_limits<std::uint64_t>::max() - 4095);
}

TEST(Conversion, NumbersWithoutAnIntegerStayDoubles)
{
	for (const double value : {0.5, -0.0, 18446744073709551616.0, -9223372036854777856.0, 1e300,
			 std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()})
	{
		rapidjson::Document document;
		Kiln::toRapidJson(json::UnknownElement(json::Number(value)), document);
		ASSERT_TRUE(document.IsDouble()) << value;
		EXPECT_EQ(std::to_string(document.GetDouble()), std::to_string(value));
	}
}

TEST(Conversion, OfMembersWithOneNameTheLastCountsAtThePlaceOfTheFirst)
{
	const rapidjson::Document document =
		parsed(R"({"a":{"x":[1,{"y":2}]},"b":1,"a":{"z":{"a":[]}},"b":[{}],"c":0,"b":3})");
	const rapidjson::Document expected = parsed(R"({"a":{"z":{"a":[]}},"b":3,"c":0})");
	EXPECT_EQ(Kiln::toCajun(document), Kiln::toCajun(expected));
}

TEST(Conversion, AHundredThousandMembersFindEachOther)
{
	constexpr int Count = 100'000;
	json::Object object;
	for (int number = 0; number < Count; ++number)
	{
		object["member " + std::to_string(number)] = json::Number(number);
	}
	rapidjson::Document document;
	Kiln::toRapidJson(object, document);
	const json::UnknownElement converted = Kiln::toCajun(document);
	const json::Object copy = converted;
	EXPECT_EQ(copy, object);
	EXPECT_EQ(copy["member 77777"], json::Number(77777));
}

TEST(CajunTypeResolver, ExactlyOneFieldIsSet)
{
	const json::UnknownElement elements[] = {
		json::Array(), json::Object(), json::Number(), json::String(), json::Boolean(), json::Null()};
	Kiln::CajunTypeResolver kind;
	const auto fields = [&] {
		return std::vector<bool>{
			kind.isArray, kind.isObject, kind.isNumber, kind.isString, kind.isBoolean, kind.isNull};
	};
	EXPECT_EQ(fields(), std::vector<bool>(6, false));
	for (std::size_t held = 0; held < std::size(elements); ++held)
	{
		std::vector<bool> expected(6, false);
		expected[held] = true;
		elements[held].Accept(kind);
		EXPECT_EQ(fields(), expected) << held;
	}
}

/** Notes which ways in were used; accepts by the ways that it is told. */
class Reader : public Kiln::DeserializableRapidJson
{
public:
	explicit Reader(bool acceptsRapid) : acceptsRapid_(acceptsRapid) {}

	bool fromRapidJson(const rapidjson::Value& in) override
	{
		ways += "rapid ";
		text = in.IsObject() && in.HasMember("text") ? in["text"].GetString() : "";
		return acceptsRapid_;
	}

	std::string ways;
	std::string text;

private:
	bool acceptsRapid_;
};

class CajunReader : public Reader
{
public:
	using Reader::Reader;

	bool fromJson(const json::Object& in) override
	{
		ways += "cajun ";
		text = static_cast<const json::String&>(in["text"]).Value();
		return text == "taken";
	}
};

class PlainReader : public Kiln::Deserializable
{
public:
	bool fromJson(const json::Object& in) override { return in.Size() == 1; }
};

TEST(Deserialize, EveryWayInFallsBackToTheOther)
{
	const rapidjson::Document taken = parsed(R"({"text":"taken"})");
	const rapidjson::Document refused = parsed(R"({"text":"refused"})");
	const rapidjson::Document list = parsed("[1]");

	Reader rapid(true);
	EXPECT_TRUE(Kiln::deserialize(rapid, taken));
	EXPECT_EQ(rapid.ways, "rapid ");
	EXPECT_TRUE(Kiln::deserialize(rapid, list)) << "a value of any kind may be accepted";

	CajunReader cajun(false);
	EXPECT_TRUE(Kiln::deserialize(cajun, taken));
	EXPECT_EQ(cajun.ways, "rapid cajun ");
	EXPECT_FALSE(Kiln::deserialize(cajun, refused));
	EXPECT_EQ(cajun.text, "refused");
	cajun.ways.clear();
	EXPECT_FALSE(Kiln::deserialize(cajun, list));
	EXPECT_EQ(cajun.ways, "rapid ") << "there is no object to fall back to";

	PlainReader plain;
	EXPECT_TRUE(Kiln::deserialize(plain, taken));

	json::Object object;
	object["text"] = json::String("from the tree");
	EXPECT_TRUE(rapid.fromJson(object));
	EXPECT_EQ(rapid.text, "from the tree");
	Reader refusing(false);
	EXPECT_FALSE(refusing.fromJson(object));
	EXPECT_FALSE(Kiln::DeserializableRapidJson().fromJson(object));
}
} // namespace
