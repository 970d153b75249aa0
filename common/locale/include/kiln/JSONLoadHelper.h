// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <kiln/DeserializableRapidJson.h>
#include <kiln/Loader.h>

namespace Kiln::Locale
{
/**
 * Takes a string file's content over into a table. A text's key is the names of the members that lead to it, joined by
 * ".": nested objects and dots in a name give the same key. Of equal keys the last one in the document wins. Whatever is
 * neither text nor object is skipped. Memory does not grow with the depth of nesting beyond the keys themselves.
 */
class JSONLoadHelper : public DeserializableRapidJson
{
public:
	/** The table must outlive the helper. */
	explicit JSONLoadHelper(StringTable& table);

	/** @return true */
	bool fromRapidJson(const rapidjson::Value& in) override;

private:
	StringTable& table_;
};
} // namespace Kiln::Locale
