// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Measures all subjects and prints the table. Exit codes: 0 measured, 1 a loop gave up or an argument is bad.
#include "Subject.h"

#include <cstdio>

int main(int count, char** arguments)
{
	if (Bench::count() == 0)
	{
		std::puts("no subject to measure");
		return 0;
	}

	// Before the caller's own arguments, which therefore win.
	std::string interleave = "--benchmark_enable_random_interleaving=true";
	std::string repetitions = "--benchmark_repetitions=9";
	std::string duration = "--benchmark_min_time=0.1";
	std::vector<char*> all{arguments[0], interleave.data(), repetitions.data(), duration.data()};
	all.insert(all.end(), arguments + 1, arguments + count);
	int allCount = static_cast<int>(all.size());
	all.push_back(nullptr);
	benchmark::Initialize(&allCount, all.data());
	if (benchmark::ReportUnrecognizedArguments(allCount, all.data()))
	{
		return 1;
	}

	std::printf("measuring %zu subjects\n", Bench::count());
	std::fflush(stdout);
	const Bench::Measurement measurement = Bench::measure();
	std::fputs(Bench::table(measurement.rows).c_str(), stdout);
	for (const std::string& error : measurement.errors)
	{
		std::fprintf(stderr, "%s\n", error.c_str());
	}
	return measurement.errors.empty() ? 0 : 1;
}
