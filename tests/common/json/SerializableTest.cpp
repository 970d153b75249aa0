// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <kiln/SerializableJsonObject.h>
#include <sstream>
#include <string>
#include <utility>

namespace
{
using Kiln::SerializableJsonObject;

SerializableJsonObject makeObject()
{
	SerializableJsonObject object;
	object["first"] = json::Number(1);
	object["second"]["inside"] = json::String("a\tb\"");
	return object;
}

constexpr const char* ObjectText = "{\n\t\"first\" : 1,\n\t\"second\" : {\n\t\t\"inside\" : \"a\\tb\\\"\"\n\t}\n}";

/** What was flushed. */
std::string textOf(const Kiln::Serializable& object)
{
	struct Buffer : std::stringbuf
	{
		int sync() override
		{
			flushed = str();
			return 0;
		}
		std::string flushed;
	} buffer;
	std::ostream stream(&buffer);
	return object.serialize(stream) ? buffer.flushed : "not serialised" + buffer.str();
}

TEST(Serializable, AnObjectThatWritesNothingIsNotSerialised)
{
	struct Failing : Kiln::Serializable
	{
		bool toJson(json::Object& out) const override
		{
			out["half"] = json::Number(1);
			return false;
		}
	};
	struct Empty : Kiln::Serializable
	{
		bool toJson(json::Object&) const override { return true; }
	};
	EXPECT_EQ(textOf(Kiln::Serializable()), "not serialised");
	EXPECT_EQ(textOf(Failing()), "not serialised");
	EXPECT_EQ(textOf(Empty()), "{}");
	EXPECT_FALSE(Empty().reserved());
}

TEST(SerializableJsonObject, TakesMembersOverAndGivesDeepCopies)
{
	json::Object members = makeObject();
	SerializableJsonObject object(std::move(members));
	EXPECT_TRUE(members.Empty());
	json::Object out;
	out["second"] = json::Number(2);
	out["surplus"] = json::Number(3);
	EXPECT_TRUE(object.toJson(out));
	EXPECT_EQ(out, object);
	out["second"]["inside"] = json::Null();
	EXPECT_TRUE(object.toJson(object)) << "given itself";
	EXPECT_EQ(textOf(object), ObjectText);
	EXPECT_TRUE(object.toJson(object["second"])) << "given its own part";
	EXPECT_EQ(object["second"], json::Object(makeObject()));
}
} // namespace
