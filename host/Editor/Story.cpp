// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Story.h"

#include <algorithm>
#include <fstream>
#include <regex>
#include <utility>

FStory::FStory(const std::filesystem::path& InFile) : File(InFile)
{
	std::ifstream Stream(File);
	FStoryStep Step{};
	if (!Stream)
	{
		throw Error(Step, 0, "cannot be read");
	}
	size_t Starts = 0;
	while (std::getline(Stream, Step.Source))
	{
		++Step.Line;
		Step.Words = Split(Step);
		if (Step.Words.empty())
		{
			const size_t Text = Step.Source.find_first_not_of("# \t");
			Step.Narration += Text == std::string::npos ? "" : Step.Source.substr(Text) + " ";
			continue;
		}
		Starts += Step.Words[0].Text == "start";
		Step.Session = Starts > 0 ? Starts - 1 : 0;
		AllSteps.push_back(Step);
		Step.Narration.clear();
	}
}

std::string FStory::Title() const
{
	std::string Words = File.stem().string();
	std::replace(Words.begin(), Words.end(), '-', ' ');
	return Words;
}

FStoryError FStory::Error(const FStoryStep& Step, size_t Column, const std::string& Reason) const
{
	const std::u8string Name = File.generic_u8string();
	const std::string Place = Step.Line ? std::to_string(Step.Line) + ":" + std::to_string(Column) + ": " : " ";
	return FStoryError(std::string(Name.begin(), Name.end()) + ":" + Place + Reason);
}

std::vector<FStoryWord> FStory::Split(const FStoryStep& Step) const
{
	static const std::regex Word(R"re("([^"]*)"|[^ \t\r]+)re");
	std::vector<FStoryWord> Words;
	for (std::sregex_iterator At(Step.Source.begin(), Step.Source.end(), Word), End; At != End; ++At)
	{
		const bool bIsQuoted = (*At)[1].matched;
		const std::string Text = (*At)[bIsQuoted ? 1 : 0];
		const size_t Column = static_cast<size_t>(At->position()) + 1;
		if (Words.empty() && Text.starts_with('#'))
		{
			break;
		}
		if (!bIsQuoted && Text.starts_with('"'))
		{
			throw Error(Step, Column, "the text has no closing quote");
		}
		Words.push_back({Text, Column});
	}
	return Words;
}
