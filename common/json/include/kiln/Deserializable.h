// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <cajun/json/elements.h>
#include <rapidjson/fwd.h>

namespace Kiln
{
/** An object that can take its state from JSON. */
class Deserializable
{
public:
	virtual ~Deserializable() = default;

	/** @return whether the object accepted the data */
	virtual bool fromJson(const json::Object& in) = 0;
};

/**
 * Feeds an object from a parsed document: through DeserializableRapidJson::fromRapidJson where the object has it, and if
 * that returns false or is not there, through fromJson with the value converted.
 * @return whether the object accepted the data; false for a value that is no object and that fromRapidJson does not accept
 */
bool deserialize(Deserializable& object, const rapidjson::Value& in);
} // namespace Kiln
