// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <kiln/SerializableJsonObject.h>
#include <sstream>
#include <utility>

namespace
{
using Kiln::SerializableJsonObject;

/** What was flushed. */
std::string serialized(const Kiln::Serializable& object)
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
	EXPECT_EQ(serialized(Kiln::Serializable()), "not serialised");
	EXPECT_EQ(serialized(Failing()), "not serialised");
	EXPECT_EQ(serialized(SerializableJsonObject()), "{}");
}

TEST(SerializableJsonObject, TakesMembersOverAndGivesDeepCopies)
{
	json::Object members;
	members["second"]["inside"] = json::String("a");
	SerializableJsonObject object(std::move(members));
	EXPECT_TRUE(members.Empty());
	const json::Object whole = object;
	json::Object out;
	out["surplus"] = json::Number(3);
	EXPECT_TRUE(object.toJson(out));
	EXPECT_EQ(out, whole);
	out["second"]["inside"] = json::Null();
	EXPECT_TRUE(object.toJson(object)) << "given itself";
	EXPECT_EQ(serialized(object), "{\n\t\"second\" : {\n\t\t\"inside\" : \"a\"\n\t}\n}");
	EXPECT_TRUE(object.toJson(object["second"])) << "given its own part";
	EXPECT_EQ(object["second"], whole);
}
} // namespace
