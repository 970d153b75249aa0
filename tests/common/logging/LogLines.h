// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <kiln/FileStreams.h>
#include <kiln/LoggingComponent.h>
#include <sstream>
#include <string>
#include <vector>

/** The lines of a log; what follows the last newline counts as one. */
inline std::vector<std::string> linesOf(std::istream&& stream)
{
	std::vector<std::string> lines;
	for (std::string line; std::getline(stream, line);)
	{
		lines.push_back(line);
	}
	return lines;
}

inline std::vector<std::string> linesOf(const std::string& path)
{
	return linesOf(Kiln::openInput(path));
}

/** Logs a warning as the library's own code does. */
inline void warn(Kiln::LoggingComponent& component, const std::string& text)
{
	std::ostringstream line;
	component.warning(line) << text;
	component.log(line.str(), Kiln::LogLevel::warning);
}
