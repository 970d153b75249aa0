// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <cajun/json/writer.h>
#include <kiln/DeserializableRapidJson.h>
#include <kiln/JsonConversion.h>
#include <kiln/StringStreamBuf.h>
#include <rapidjson/document.h>
#include <sstream>
#include <string>

inline std::string textOf(const json::UnknownElement& element)
{
	std::ostringstream stream;
	json::Writer::Write(element, stream);
	return stream.str();
}

inline rapidjson::Document parse(std::istream& stream)
{
	rapidjson::Document document;
	Kiln::DeserializableRapidJson().parse(document, stream);
	return document;
}

inline rapidjson::Document parse(std::string_view text)
{
	Kiln::StringStreamBuf buffer(text);
	std::istream stream(&buffer);
	return parse(stream);
}

inline json::UnknownElement tree(std::string_view text)
{
	return Kiln::toCajun(parse(text));
}
