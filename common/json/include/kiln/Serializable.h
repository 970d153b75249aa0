// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <cajun/json/elements.h>
#include <iosfwd>

namespace Kiln
{
/** An object that can write itself as JSON text. */
class Serializable
{
public:
	virtual ~Serializable() = default;

	/**
	 * Fills an object with the members that stand for this one.
	 * @return whether it did; false in this class: an object that writes nothing cannot be serialised
	 */
	virtual bool toJson(json::Object& out) const;

	/**
	 * Writes the members that toJson gives, in the format of json::Writer, and flushes the stream.
	 * @return false, and nothing is written, when toJson fails; whether the stream took the text is told by its state
	 */
	virtual bool serialize(std::ostream& out) const;

	/** Reserved for subclasses. @return false in this class */
	virtual bool reserved() const;
};
} // namespace Kiln
