// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <cajun/json/writer.h>
#include <kiln/Serializable.h>
#include <kiln/SerializableJsonObject.h>
#include <ostream>
#include <utility>

namespace Kiln
{
bool Serializable::toJson(json::Object&) const
{
	return false;
}

bool Serializable::serialize(std::ostream& out) const
{
	json::Object members;
	if (!toJson(members))
	{
		return false;
	}
	json::Writer::Write(members, out);
	return true;
}

bool Serializable::reserved() const
{
	return false;
}

SerializableJsonObject::SerializableJsonObject(json::Object&& members) noexcept : json::Object(std::move(members)) {}

bool SerializableJsonObject::toJson(json::Object& out) const
{
	const json::Object& members = *this;
	if (&members != &out)
	{
		out = members;
	}
	return true;
}
} // namespace Kiln
