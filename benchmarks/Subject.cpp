// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Subject.h"

#include <algorithm>
#include <map>
#include <set>

namespace Bench
{
namespace
{
/** Behind a function: subjects add themselves before main, in any order of files. */
std::vector<Subject>& subjects()
{
	static std::vector<Subject> all;
	return all;
}

std::string oursOf(const Subject& subject)
{
	return subject.name + "/ours";
}

std::string baselineOf(const Subject& subject)
{
	return subject.name + "/baseline";
}

/** Collects the times of the repetitions; prints nothing. */
class Collector : public benchmark::BenchmarkReporter
{
public:
	bool ReportContext(const Context&) override { return true; }

	void ReportRuns(const std::vector<Run>& runs) override
	{
		for (const Run& run : runs)
		{
			if (run.error_occurred)
			{
				errors.insert(run.run_name.function_name + ": " + run.error_message);
			}
			else if (run.run_type == Run::RT_Iteration)
			{
				nanoseconds[run.run_name.function_name].push_back(run.GetAdjustedRealTime());
			}
		}
	}

	/** The median of a loop's repetitions; nothing when it did not run. */
	std::optional<double> median(const std::string& loop)
	{
		std::vector<double>& times = nanoseconds[loop];
		if (times.empty())
		{
			return {};
		}
		const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
		std::nth_element(times.begin(), middle, times.end());
		return *middle;
	}

	/** What loops gave up with, each once for all repetitions. */
	std::set<std::string> errors;

private:
	std::map<std::string, std::vector<double>> nanoseconds;
};

benchmark::internal::Benchmark* enqueue(const std::string& name, Loop loop)
{
	return benchmark::RegisterBenchmark(name.c_str(), loop)->Unit(benchmark::kNanosecond);
}
} // namespace

bool add(Subject subject)
{
	subjects().push_back(std::move(subject));
	return true;
}

size_t count()
{
	return subjects().size();
}

Measurement measure()
{
	std::sort(subjects().begin(), subjects().end(),
		[](const Subject& left, const Subject& right) { return left.name < right.name; });
	for (const Subject& subject : subjects())
	{
		enqueue(oursOf(subject), subject.ours)->UseRealTime();
		if (subject.isPeer)
		{
			enqueue(baselineOf(subject), subject.baseline)->UseManualTime()->Iterations(1)->Repetitions(3);
		}
		else if (subject.baseline)
		{
			enqueue(baselineOf(subject), subject.baseline)->UseRealTime();
		}
	}
	Collector collector;
	benchmark::RunSpecifiedBenchmarks(&collector);

	Measurement result;
	result.errors.assign(collector.errors.begin(), collector.errors.end());
	for (const Subject& subject : subjects())
	{
		if (const std::optional<double> ours = collector.median(oursOf(subject)))
		{
			result.rows.push_back({subject.name, *ours, collector.median(baselineOf(subject)), subject.target});
		}
	}
	return result;
}
} // namespace Bench
