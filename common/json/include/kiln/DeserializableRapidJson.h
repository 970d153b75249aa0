// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>
#include <kiln/Deserializable.h>
#include <rapidjson/fwd.h>

namespace Kiln
{
/** An object that reads parsed documents. Subclasses override fromRapidJson, fromJson, or both. */
class DeserializableRapidJson : public Deserializable
{
public:
	/** Converts the object into a document and hands that to fromRapidJson. @return what fromRapidJson returns */
	bool fromJson(const json::Object& in) override;

	/** @return whether the object accepted the data; false in this class */
	virtual bool fromRapidJson(const rapidjson::Value& in);

	/**
	 * Parses the whole stream, at any depth of nesting. Integers of up to 64 bits are exact; any
	 * other number becomes the nearest double, zero where none is nearer, or the error kParseErrorNumberTooBig. A stream that failed
	 * before, or is at its end, counts as empty text. The text should be UTF-8 without a byte-order mark; its encoding is
	 * not checked. NUL bytes are errors, as is "\u" with the first half of a surrogate pair alone.
	 * @return the document; it holds the error, if any
	 */
	virtual rapidjson::Document& parse(rapidjson::Document& document, std::istream& in);
};
} // namespace Kiln
