// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <unordered_map>

/**
 * A text with its placeholders "{{name}}" filled, from the first to the last; one of an unknown name stays as it stands.
 * @param Text UTF-8
 * @param Arguments values by name, UTF-8; a value is not searched for placeholders
 */
inline std::string FillPlaceholders(std::string Text, const std::unordered_map<std::string, std::string>& Arguments)
{
	constexpr size_t MarkLength = 2;
	size_t Open = Text.find("{{");
	while (Open != std::string::npos)
	{
		const size_t Close = Text.find("}}", Open + MarkLength);
		if (Close == std::string::npos)
		{
			break;
		}
		const size_t End = Close + MarkLength;
		const auto Argument = Arguments.find(Text.substr(Open + MarkLength, Close - Open - MarkLength));
		if (Argument == Arguments.end())
		{
			Open = Text.find("{{", End);
			continue;
		}
		Text.replace(Open, End - Open, Argument->second);
		Open = Text.find("{{", Open + Argument->second.size());
	}
	return Text;
}
