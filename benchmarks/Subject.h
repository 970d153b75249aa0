// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What is measured: each subject beside a baseline that runs in the same process.
#pragma once

#include "Table.h"

#include <benchmark/benchmark.h>
#include <optional>
#include <string>
#include <vector>

namespace Bench
{
/** Measures one loop: "for (auto _ : state)". May call state.SkipWithError. */
using Loop = void (*)(benchmark::State& state);

struct Subject
{
	/** Unique; filters match it. */
	std::string name;
	Loop ours;
	/** Null: the subject is a figure alone. */
	Loop baseline = nullptr;
	/** The highest ratio of ours to the baseline that is meant to be. */
	std::optional<double> target{};
	/** The baseline is another program: it tells its time itself, and runs seldom, as it takes seconds. */
	bool isPeer = false;
};

/** Adds a subject; for the initialiser of a constant in the subject's file. @return true */
bool add(Subject subject);

/** @return how many subjects were added */
size_t count();

/** What was measured, and what could not be. */
struct Measurement
{
	/** In the order of the subjects' names. */
	std::vector<Row> rows;
	/** "<subject>/<ours or baseline>: <reason>" for each loop that gave up. */
	std::vector<std::string> errors;
};

/** Runs all subjects that the filter lets through, repetitions in random order, and takes medians of wall time. */
Measurement measure();
} // namespace Bench
