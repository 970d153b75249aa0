// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The printed table of figures.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Bench
{
/** One line of the table. Times are nanoseconds an iteration. */
struct Row
{
	std::string subject;
	double ours;
	std::optional<double> baseline;
	/** Shown only beside a baseline. A higher ratio of ours to the baseline is marked "over". */
	std::optional<double> target;
};

/** The table as aligned text, one line a row below the heading; each row in the unit that fits its shorter time. */
std::string table(const std::vector<Row>& rows);
} // namespace Bench
