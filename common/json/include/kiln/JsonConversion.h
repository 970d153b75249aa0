// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Conversion between trees that are built and documents that are parsed. Both ways work at any depth of nesting.
#pragma once

#include <cajun/json/elements.h>
#include <rapidjson/fwd.h>

namespace Kiln
{
/**
 * Makes the document a copy of the tree. A number without fraction within 64 bits becomes an integer, any other one a
 * double. Texts and names keep all their bytes.
 */
void toRapidJson(const json::Object& in, rapidjson::Document& out);
void toRapidJson(const json::UnknownElement& in, rapidjson::Document& out);

/**
 * A copy of the value as a tree. Integers become the nearest double (up to 2^53 that is the same number) with a precision
 * that writes all their digits. Of members with the same name the last one counts, at the place of the first.
 */
json::UnknownElement toCajun(const rapidjson::Value& in);
} // namespace Kiln
