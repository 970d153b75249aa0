// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "JsonText.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <utility>
#include <vector>

namespace
{
using json::UnknownElement;

/** One of each kind, then objects that differ in little. */
const char* const texts[] = {"null", "true", "\"1\"", "1", R"({"a":1,"b":2})", "[1]", R"({"b":2,"a":1})", R"({"b":2})",
	R"({"a":1,"b":"2"})", R"({"a":1,"c":2})"};

/** A mark that an element of its own casts to the kind, or what the exception says. */
template <class Kind, class Element>
std::string cast(Element element)
{
	try
	{
		static_cast<void>(static_cast<const Kind&>(element));
		return "1";
	}
	catch (const json::Exception& error)
	{
		return error.what() == std::string("Bad cast") ? "-" : error.what();
	}
}

template <class Element>
std::string casts(const UnknownElement& element)
{
	return cast<json::Null, Element>(element) + cast<json::Boolean, Element>(element) +
		   cast<json::String, Element>(element) + cast<json::Number, Element>(element) +
		   cast<json::Object, Element>(element) + cast<json::Array, Element>(element);
}

TEST(Elements, OnlyTheHeldKindIsHadByACastAndOnlyTheSameIsEqual)
{
	for (std::size_t held = 0; held < 6; ++held)
	{
		const UnknownElement element = tree(texts[held]);
		std::string expected = "------";
		expected[held] = '1';
		EXPECT_EQ(casts<const UnknownElement>(element), expected);
		EXPECT_EQ(casts<UnknownElement>(element), held == 0 ? "111111" : expected);
	}
	for (const char* left : texts)
	{
		for (const char* right : texts)
		{
			EXPECT_EQ(tree(left) == tree(right), left == right) << left << right;
		}
	}
}

TEST(Elements, NullBecomesWhatIsAskedFor)
{
	UnknownElement root;
	root["list"][2]["name"] = json::String("x");
	json::Number& number = root["number"];
	number.Value() += 2.5;
	EXPECT_EQ(root, tree(R"({"list":[null,null,{"name":"x"}],"number":2.5})"));
	EXPECT_THROW(root[0], json::Exception);
	EXPECT_THROW(std::as_const(root)["other"], json::Exception);
	EXPECT_THROW(std::as_const(root)["list"][3], json::Exception);
}

TEST(Object, KeepsOrderThroughInsertAndErase)
{
	const auto member = [](const char* name) { return json::Object::Member(name, json::Number(1)); };
	json::Object object;
	const auto b = object.Insert(member("b"));
	object.Insert(member("d"));
	object.Insert(member("c"), std::next(b));
	object.Insert(member("a"), object.Begin());
	EXPECT_EQ(tree(R"({"a":1,"b":1,"c":1,"d":1})"), object);
	EXPECT_THROW(object.Insert(member("c")), json::Exception);
	EXPECT_THROW(object.Insert(member("c"), object.Begin()), json::Exception);
	EXPECT_EQ(object.Erase(object.Find("b"))->name, "c");
	object["b"];
	EXPECT_EQ(tree(R"({"a":1,"c":1,"d":1,"b":null})"), object);
	object.Clear();
	EXPECT_TRUE(object.Empty() && object.Find("a") == object.End());
}

TEST(Object, FindsEveryMemberWhateverWasDoneToIt)
{
	std::mt19937 random(1);
	json::Object object;
	// What it should hold, searched from the front.
	std::vector<std::pair<std::string, double>> model;
	for (int round = 0; round < 3000; ++round)
	{
		// Grows to some forty members and shrinks again, over and over.
		const bool isGrowing = round / 100 % 2 == 0;
		const std::string wanted = "member " + std::to_string(random() % 40);
		const auto expected = std::ranges::find_if(model, [&](const auto& member) { return member.first == wanted; });
		const auto found = object.Find(wanted);
		ASSERT_EQ(found == object.End(), expected == model.end());
		const bool isErased = random() % 4 == 0 ? isGrowing : !isGrowing;
		if (!isErased)
		{
			object[wanted] = json::Number(round);
			(expected == model.end() ? model.emplace_back(wanted, 0) : *expected).second = round;
		}
		else if (expected != model.end())
		{
			object.Erase(found);
			model.erase(expected);
		}
		if (round % 50 == 0)
		{
			const json::Object copy = object;
			json::Object moved = std::move(object);
			EXPECT_TRUE(object.Empty() && object.Find(wanted) == object.End());
			object["gone"];
			object = std::move(moved);
			EXPECT_EQ(copy, object);
		}
		ASSERT_EQ(object.Size(), model.size());
		auto member = object.Begin();
		for (const auto& [name, value] : model)
		{
			ASSERT_TRUE(member->name == name && member->element == json::Number(value));
			ASSERT_EQ(object.Find(name), member++);
		}
	}
}

TEST(Object, TakesItselfAndItsOwnPartsApart)
{
	const UnknownElement part = tree(R"({"x":1,"y":[2]})");
	json::Object object;
	object["part"] = part;
	json::Object& same = object;
	object = same;
	EXPECT_EQ(object["part"], part);
	UnknownElement nested = object;
	nested["part"] = nested;
	EXPECT_EQ(nested["part"]["part"], part);
	nested = std::move(nested["part"]["part"]);
	EXPECT_EQ(nested, part);
	object = std::move(static_cast<json::Object&>(object["part"]));
	EXPECT_EQ(part, object);
}

TEST(Array, GrowsWhereItMayAndThrowsWhereNot)
{
	json::Array array;
	array[1] = json::Number(1);
	UnknownElement& first = array[0];
	array.Insert(json::Number(3));
	array.Insert(json::Number(4));
	first = json::Number(0);
	array.Insert(json::Number(2), array.Begin() + 2);
	EXPECT_EQ(tree("[0,1,2,3,4]"), array);
	EXPECT_EQ(*array.Erase(array.Begin() + 1), json::Number(2));
	const auto behind = array.Erase(array.Begin(), array.Begin() + 2);
	EXPECT_EQ(behind, array.Begin());
	array.Resize(3);
	UnknownElement element = array;
	EXPECT_EQ(element, tree("[3,4,null]"));
	EXPECT_THROW(std::as_const(array)[3], json::Exception);
	EXPECT_THROW(array[std::size_t(-1)], json::Exception);
	EXPECT_THROW(element[-1], json::Exception);
	EXPECT_EQ(element, array);
	array.Clear();
	EXPECT_TRUE(array.Empty() && array.Begin() == array.End());
}

} // namespace
