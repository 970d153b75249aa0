// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <istream>
#include <kiln/BufferedInputStream.h>
#include <kiln/DeserializableRapidJson.h>
#include <kiln/JsonConversion.h>
#include <rapidjson/document.h>

namespace Kiln
{
bool DeserializableRapidJson::fromJson(const json::Object& in)
{
	rapidjson::Document document;
	toRapidJson(in, document);
	return fromRapidJson(document);
}

bool DeserializableRapidJson::fromRapidJson(const rapidjson::Value&)
{
	return false;
}

rapidjson::Document& DeserializableRapidJson::parse(rapidjson::Document& document, std::istream& in)
{
	constexpr unsigned Flags = rapidjson::kParseIterativeFlag | rapidjson::kParseFullPrecisionFlag;
	BufferedInputStream input(in);
	document.ParseStream<Flags>(input);
	return document;
}

bool deserialize(Deserializable& object, const rapidjson::Value& in)
{
	auto* const reader = dynamic_cast<DeserializableRapidJson*>(&object);
	if (reader && reader->fromRapidJson(in))
	{
		return true;
	}
	if (!in.IsObject())
	{
		return false;
	}
	const json::UnknownElement converted = toCajun(in);
	return object.fromJson(converted);
}
} // namespace Kiln
