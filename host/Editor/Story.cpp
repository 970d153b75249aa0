// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Story.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <utility>

FStory::FStory(const std::string& File) : Name(File)
{
	std::ifstream Stream(std::filesystem::path(std::u8string(File.begin(), File.end())));
	if (!Stream)
	{
		throw FStoryError(File + ": cannot be read");
	}
	size_t Number = 0;
	size_t Starts = 0;
	std::string Narration;
	for (std::string Line; std::getline(Stream, Line);)
	{
		if (!Line.empty() && Line.back() == '\r')
		{
			Line.pop_back();
		}
		FStoryStep Step{++Number, {}, Line, {}, 0};
		Step.Words = Split(Step);
		Starts += !Step.Words.empty() && Step.Words[0].Text == "start";
		Step.Session = Starts > 0 ? Starts - 1 : 0;
		Narration += CommentOf(Line);
		if (!Step.Words.empty())
		{
			Step.Narration = std::exchange(Narration, {});
			AllSteps.push_back(Step);
		}
	}
}

std::string FStory::CommentOf(const std::string& Line)
{
	const size_t Text = Line.starts_with('#') ? Line.find_first_not_of("# \t") : std::string::npos;
	return Text == std::string::npos ? std::string() : Line.substr(Text) + " ";
}

std::string FStory::Folder() const
{
	const size_t Slash = Name.find_last_of("/\\");
	return Slash == std::string::npos ? std::string() : Name.substr(0, Slash);
}

std::string FStory::Title() const
{
	std::string Words = Name.substr(Folder().empty() ? 0 : Folder().size() + 1);
	Words.erase(Words.rfind('.') == std::string::npos ? Words.size() : Words.rfind('.'));
	std::replace(Words.begin(), Words.end(), '-', ' ');
	return Words;
}

FStoryError FStory::Error(const FStoryStep& Step, size_t Column, const std::string& Reason) const
{
	return FStoryError(Name + ":" + std::to_string(Step.Line) + ":" + std::to_string(Column) + ": " + Reason);
}

std::vector<FStoryWord> FStory::Split(const FStoryStep& Step) const
{
	const std::string Blanks = " \t";
	const std::string& Line = Step.Source;
	std::vector<FStoryWord> Words;
	size_t At = Line.find_first_not_of(Blanks);
	if (At != std::string::npos && Line[At] == '#')
	{
		return Words;
	}
	while (At != std::string::npos)
	{
		const bool bIsQuoted = Line[At] == '"';
		const size_t Begin = At + bIsQuoted;
		size_t End = bIsQuoted ? Line.find('"', Begin) : Line.find_first_of(Blanks, Begin);
		if (bIsQuoted && End == std::string::npos)
		{
			throw Error(Step, At + 1, "the text has no closing quote");
		}
		End = std::min(End, Line.size());
		Words.push_back({Line.substr(Begin, End - Begin), At + 1});
		At = Line.find_first_not_of(Blanks, End + bIsQuoted);
	}
	return Words;
}
