// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "RandomTree.h"

#include <algorithm>
#include <cajun/json/elements.h>
#include <gmock/gmock.h>
#include <string>
#include <utility>
#include <vector>

namespace
{
using json::UnknownElement;
using testing::ElementsAre;

json::Array arrayOf(std::initializer_list<UnknownElement> elements)
{
	json::Array array;
	for (const UnknownElement& element : elements)
	{
		array.Insert(element);
	}
	return array;
}

json::Array numbers(std::initializer_list<double> values)
{
	json::Array array;
	for (const double value : values)
	{
		array.Insert(json::Number(value));
	}
	return array;
}

std::vector<UnknownElement> oneOfEachKind()
{
	json::Object object;
	object["a"] = json::Null();
	return {json::Null(), json::Boolean(true), json::String("1"), json::Number(1), object, numbers({1})};
}

std::vector<std::string> namesIn(const json::Object& object)
{
	std::vector<std::string> names;
	for (const json::Object::Member& member : object)
	{
		names.push_back(member.name);
	}
	return names;
}

template <class Kind>
bool casts(UnknownElement element)
{
	const UnknownElement constant = element;
	const auto cast = [](auto& from)
	{
		try
		{
			static_cast<void>(static_cast<const Kind&>(from));
			return true;
		}
		catch (const json::Exception& error)
		{
			EXPECT_STREQ(error.what(), "Bad cast");
			return false;
		}
	};
	const bool result = cast(constant);
	// A Null that may be changed casts to everything.
	EXPECT_EQ(cast(element), result || constant == json::Null());
	return result;
}

TEST(Elements, OnlyTheHeldKindIsHadByACast)
{
	const std::vector<UnknownElement> elements = oneOfEachKind();
	for (std::size_t held = 0; held < elements.size(); ++held)
	{
		const UnknownElement& element = elements[held];
		const std::vector<bool> results{casts<json::Null>(element), casts<json::Boolean>(element),
			casts<json::String>(element), casts<json::Number>(element), casts<json::Object>(element),
			casts<json::Array>(element)};
		for (std::size_t asked = 0; asked < results.size(); ++asked)
		{
			EXPECT_EQ(results[asked], asked == held) << "held " << held << " asked " << asked;
			EXPECT_EQ(element == elements[asked], asked == held) << "held " << held << " other " << asked;
		}
	}
}

TEST(Elements, NullBecomesWhatIsAskedFor)
{
	UnknownElement root;
	root["list"][2]["name"] = json::String("x");
	json::Number& number = root["number"];
	number.Value() += 2.5;

	json::Object third;
	third["name"] = json::String("x");
	json::Object expected;
	expected["list"] = arrayOf({json::Null(), json::Null(), third});
	expected["number"] = json::Number(2.5);
	EXPECT_EQ(root, expected);
	EXPECT_THROW(root[0], json::Exception);
	EXPECT_THROW(std::as_const(root)["other"], json::Exception);
	EXPECT_THROW(std::as_const(root)["list"][3], json::Exception);
}

TEST(Elements, VisitorsAreShownTheHeldKind)
{
	struct Recorder
		: json::ConstVisitor
		, json::Visitor
	{
		void Visit(const json::Null&) override { seen += "n"; }
		void Visit(const json::Boolean&) override { seen += "b"; }
		void Visit(const json::String&) override { seen += "s"; }
		void Visit(const json::Number&) override { seen += "d"; }
		void Visit(const json::Object&) override { seen += "o"; }
		void Visit(const json::Array&) override { seen += "a"; }
		void Visit(json::Null&) override { seen += "N"; }
		void Visit(json::Boolean&) override { seen += "B"; }
		void Visit(json::String& string) override { string.Value() = seen += "S"; }
		void Visit(json::Number&) override { seen += "D"; }
		void Visit(json::Object&) override { seen += "O"; }
		void Visit(json::Array&) override { seen += "A"; }
		std::string seen;
	};
	Recorder recorder;
	std::vector<UnknownElement> elements = oneOfEachKind();
	for (UnknownElement& element : elements)
	{
		std::as_const(element).Accept(recorder);
		element.Accept(static_cast<json::Visitor&>(recorder));
	}
	EXPECT_EQ(recorder.seen, "nNbBsSdDoOaA");
	EXPECT_EQ(elements[2], json::String("nNbBsS"));
}

TEST(Elements, TextsBecomeStringsAndNothingElse)
{
	const UnknownElement text("text");
	EXPECT_EQ(text, json::String("text"));
	EXPECT_EQ(UnknownElement(5), json::Number(5));
	static_assert(!std::is_constructible_v<json::Boolean, const char*>);
	static_assert(!std::is_constructible_v<json::Boolean, int>);
	const json::String string = "text";
	EXPECT_TRUE(string == "text" && string == std::string("text") && !(string == "Text"));
	const json::Number number = 5;
	EXPECT_TRUE(number == 5 && number + 1 == 6 && number == json::Number(5, 3));
	UnknownElement element = number;
	const json::Number copied = element;
	const json::Number constructed(element);
	EXPECT_TRUE(element == number && copied == constructed && number == element);
}

TEST(Object, KeepsOrderThroughInsertAndErase)
{
	json::Object object;
	const auto b = object.Insert(json::Object::Member("b", json::Number(2)));
	object.Insert(json::Object::Member("d", json::Number(4)));
	object.Insert(json::Object::Member("c", json::Number(3)), std::next(b));
	object.Insert(json::Object::Member("a", json::Number(1)), object.Begin());
	EXPECT_THAT(namesIn(object), ElementsAre("a", "b", "c", "d"));
	EXPECT_THROW(object.Insert(json::Object::Member("c", json::Number(0))), json::Exception);
	EXPECT_THROW(object.Insert(json::Object::Member("c", json::Number(0)), object.Begin()), json::Exception);
	EXPECT_EQ(object.Erase(object.Find("b"))->name, "c");
	EXPECT_EQ(object.Find("b"), object.End());
	object["b"];
	EXPECT_THAT(namesIn(object), ElementsAre("a", "c", "d", "b"));
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
			ASSERT_EQ(member->name, name);
			ASSERT_EQ(member->element, json::Number(value));
			ASSERT_EQ(object.Find(name), member++);
		}
	}
}

TEST(Object, TakesItselfAndItsOwnPartsApart)
{
	json::Object object;
	object["part"]["x"] = json::Number(1);
	object["part"]["y"] = numbers({2});
	const json::Object part = object["part"];

	json::Object& same = object;
	object = same;
	EXPECT_EQ(object["part"], part);
	UnknownElement nested = object;
	nested["part"] = nested;
	EXPECT_EQ(nested["part"]["part"], part);
	nested = std::move(nested["part"]["part"]);
	EXPECT_EQ(nested, part);
	json::Object inside = object;
	inside = std::move(static_cast<json::Object&>(inside["part"]));
	EXPECT_EQ(inside, part);
}

TEST(Object, IsEqualOnlyWithTheSameMembersInTheSameOrder)
{
	json::Object left;
	left["a"] = json::Number(1);
	left["b"] = json::Number(2);
	json::Object right;
	right["b"] = json::Number(2);
	EXPECT_FALSE(left == right);
	right["a"] = json::Number(1);
	EXPECT_FALSE(left == right);
	right.Erase(right.Begin());
	right["b"] = json::Number(2);
	EXPECT_TRUE(left == right);
	right["b"] = json::String("2");
	EXPECT_FALSE(left == right);
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
	EXPECT_EQ(array, numbers({0, 1, 2, 3, 4}));
	EXPECT_EQ(*array.Erase(array.Begin() + 1), json::Number(2));
	const auto behind = array.Erase(array.Begin(), array.Begin() + 2);
	EXPECT_EQ(behind, array.Begin());
	array.Resize(3);
	EXPECT_EQ(array, arrayOf({json::Number(3), json::Number(4), json::Null()}));
	EXPECT_THROW(std::as_const(array)[3], json::Exception);
	array.Clear();
	EXPECT_TRUE(array.Empty() && array.Begin() == array.End());
}

TEST(Elements, CopiesAreDeepAndWhatWasMovedIsNull)
{
	for (unsigned seed = 0; seed < 30; ++seed)
	{
		UnknownElement original = RandomTree(seed).makeObject(4);
		UnknownElement copy = original;
		EXPECT_EQ(copy, original);
		copy["and one more"]["inside"] = json::Number(1);
		EXPECT_FALSE(copy == original);
		EXPECT_EQ(original, UnknownElement(RandomTree(seed).makeObject(4)));
		const UnknownElement moved = std::move(original);
		EXPECT_EQ(original, json::Null());
		EXPECT_EQ(moved, UnknownElement(RandomTree(seed).makeObject(4)));
	}
}
} // namespace
