// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <kiln/CajunTypeResolver.h>
#include <kiln/JsonConversion.h>
#include <rapidjson/document.h>
#include <string>
#include <variant>
#include <vector>

namespace Kiln
{
namespace
{
constexpr double TwoTo63 = 9223372036854775808.0;

/** Enough for every 64-bit integer to be written without an exponent. */
constexpr int IntegerPrecision = 20;

/** Tells a document's handler a tree from the front to the back. */
class CajunReader
{
public:
	explicit CajunReader(rapidjson::Document& out) : out_(out) {}

	void read(const json::Object& object)
	{
		enter(object);
		readInside();
	}

	void read(const json::UnknownElement& element)
	{
		put(element);
		readInside();
	}

private:
	/** An object or array under way: what is left of it. */
	template <class Container>
	struct Level
	{
		const Container& container;
		typename Container::const_iterator next = container.Begin();
	};

	void enter(const json::Object& object)
	{
		out_.StartObject();
		levels_.push_back(Level<json::Object>{object});
	}

	void enter(const json::Array& array)
	{
		out_.StartArray();
		levels_.push_back(Level<json::Array>{array});
	}

	/** May end the level or begin another; the reference is of no use afterwards. */
	template <class Container>
	void putNext(Level<Container>& level)
	{
		if (level.next == level.container.End())
		{
			leave(level.container);
			levels_.pop_back();
		}
		else
		{
			put(*level.next++);
		}
	}

	void leave(const json::Object& object) { out_.EndObject(static_cast<rapidjson::SizeType>(object.Size())); }
	void leave(const json::Array& array) { out_.EndArray(static_cast<rapidjson::SizeType>(array.Size())); }

	void readInside()
	{
		while (!levels_.empty())
		{
			std::visit([this](auto& level) { putNext(level); }, levels_.back());
		}
	}

	void put(const json::Object::Member& member)
	{
		out_.Key(member.name.data(), static_cast<rapidjson::SizeType>(member.name.size()), true);
		put(member.element);
	}

	void put(const json::UnknownElement& element)
	{
		CajunTypeResolver kind;
		element.Accept(kind);
		if (kind.isObject)
		{
			enter(static_cast<const json::Object&>(element));
		}
		else if (kind.isArray)
		{
			enter(static_cast<const json::Array&>(element));
		}
		else if (kind.isString)
		{
			const std::string& text = static_cast<const json::String&>(element).Value();
			out_.String(text.data(), static_cast<rapidjson::SizeType>(text.size()), true);
		}
		else if (kind.isNumber)
		{
			put(static_cast<const json::Number&>(element).Value());
		}
		else if (kind.isBoolean)
		{
			out_.Bool(static_cast<const json::Boolean&>(element).Value());
		}
		else
		{
			out_.Null();
		}
	}

	void put(double value)
	{
		// Minus zero has no integer.
		const bool isInteger = value == std::trunc(value) && !(value == 0 && std::signbit(value));
		if (isInteger && value >= -TwoTo63 && value < TwoTo63)
		{
			out_.Int64(static_cast<std::int64_t>(value));
		}
		else if (isInteger && value > 0 && value < 2 * TwoTo63)
		{
			out_.Uint64(static_cast<std::uint64_t>(value));
		}
		else
		{
			out_.Double(value);
		}
	}

	rapidjson::Document& out_;
	std::vector<std::variant<Level<json::Object>, Level<json::Array>>> levels_;
};

template <class In>
void readInto(rapidjson::Document& out, const In& in)
{
	const auto tell = [&](rapidjson::Document& handler)
	{
		CajunReader(handler).read(in);
		return true;
	};
	out.Populate(tell);
}

std::string textOf(const rapidjson::Value& value)
{
	return {value.GetString(), value.GetStringLength()};
}

/** Builds a tree from the front to the back. */
class CajunBuilder
{
public:
	json::UnknownElement build(const rapidjson::Value& in)
	{
		json::UnknownElement root;
		put(in, root);
		while (!levels_.empty())
		{
			putNext(levels_.back());
		}
		return root;
	}

private:
	/** An object or array under way. */
	struct Level
	{
		const rapidjson::Value& source;
		json::UnknownElement& target;
		rapidjson::SizeType next;
	};

	/** May end the level or begin another; the reference is of no use afterwards. */
	void putNext(Level& level)
	{
		const rapidjson::Value& source = level.source;
		const rapidjson::SizeType at = level.next++;
		if (at == (source.IsObject() ? source.MemberCount() : source.Size()))
		{
			levels_.pop_back();
		}
		else if (source.IsObject())
		{
			const auto& member = source.MemberBegin()[static_cast<std::ptrdiff_t>(at)];
			put(member.value, level.target[textOf(member.name)]);
		}
		else
		{
			put(source[at], level.target[at]);
		}
	}

	void put(const rapidjson::Value& in, json::UnknownElement& out)
	{
		switch (in.GetType())
		{
		case rapidjson::kNullType:
			out = json::Null();
			break;
		case rapidjson::kFalseType:
		case rapidjson::kTrueType:
			out = json::Boolean(in.GetBool());
			break;
		case rapidjson::kStringType:
			out = json::String(textOf(in));
			break;
		case rapidjson::kNumberType:
			out = in.IsDouble() ? json::Number(in.GetDouble()) : json::Number(in.GetDouble(), IntegerPrecision);
			break;
		case rapidjson::kObjectType:
			out = json::Object();
			levels_.push_back({in, out, 0});
			break;
		case rapidjson::kArrayType:
			out = json::Array();
			levels_.push_back({in, out, 0});
			break;
		}
	}

	std::vector<Level> levels_;
};
} // namespace

void toRapidJson(const json::Object& in, rapidjson::Document& out)
{
	readInto(out, in);
}

void toRapidJson(const json::UnknownElement& in, rapidjson::Document& out)
{
	readInto(out, in);
}

json::UnknownElement toCajun(const rapidjson::Value& in)
{
	return CajunBuilder().build(in);
}
} // namespace Kiln
