// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Table.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace Bench
{
namespace
{
using Cells = std::array<std::string, 6>;

struct Unit
{
	const char* name;
	double nanoseconds;
};

Unit unitFor(double nanoseconds)
{
	constexpr std::array<Unit, 3> units{{{"ms", 1e6}, {"us", 1e3}, {"ns", 1}}};
	const auto fits = [&](const Unit& unit) { return nanoseconds >= unit.nanoseconds; };
	const auto found = std::find_if(units.begin(), units.end(), fits);
	return found == units.end() ? units.back() : *found;
}

std::string number(double value)
{
	std::array<char, 64> text{};
	std::snprintf(text.data(), text.size(), "%.2f", value);
	return text.data();
}

Cells cellsOf(const Row& row)
{
	const Unit unit = unitFor(std::min(row.ours, row.baseline.value_or(row.ours)));
	const auto time = [&](double nanoseconds) { return number(nanoseconds / unit.nanoseconds) + " " + unit.name; };
	if (!row.baseline)
	{
		return {row.subject, time(row.ours), "-", "-", "-", ""};
	}
	const double ratio = row.ours / *row.baseline;
	const std::string target = row.target ? number(*row.target) : "-";
	const bool over = row.target && ratio > *row.target;
	return {row.subject, time(row.ours), time(*row.baseline), number(ratio), target, over ? "over" : ""};
}

/** The first column is text and stands left, the others are figures and stand right. */
std::string line(const Cells& cells, const std::array<size_t, 6>& widths)
{
	std::string text = cells[0] + std::string(widths[0] - cells[0].size(), ' ');
	for (size_t column = 1; column < cells.size(); ++column)
	{
		text += "  " + std::string(widths[column] - cells[column].size(), ' ') + cells[column];
	}
	text.erase(text.find_last_not_of(' ') + 1);
	return text + "\n";
}
} // namespace

std::string table(const std::vector<Row>& rows)
{
	std::vector<Cells> lines{{"subject", "ours", "baseline", "ratio", "target", ""}};
	std::transform(rows.begin(), rows.end(), std::back_inserter(lines), cellsOf);
	std::array<size_t, 6> widths{};
	for (const Cells& cells : lines)
	{
		for (size_t column = 0; column < cells.size(); ++column)
		{
			widths[column] = std::max(widths[column], cells[column].size());
		}
	}
	std::string text;
	for (const Cells& cells : lines)
	{
		text += line(cells, widths);
	}
	return text;
}
} // namespace Bench
