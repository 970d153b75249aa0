// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <cajun/json/elements.h>
#include <kiln/Serializable.h>

namespace Kiln
{
/** A JSON object that is its own serialised form. */
class SerializableJsonObject
	: public json::Object
	, public Serializable
{
public:
	SerializableJsonObject() = default;

	/** Takes the members over; the given object is left empty. */
	explicit SerializableJsonObject(json::Object&& members) noexcept;

	/** Makes the object a deep copy of the members, whatever it held. Given itself, it does nothing. @return true */
	bool toJson(json::Object& out) const override;
};
} // namespace Kiln
