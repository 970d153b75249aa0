// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A story: an editor session as text, one step a line. Words are separated by blanks; double quotes hold a text with
// blanks together; "#" begins a comment line.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

/** Something wrong with a story, as one line: file, line, column, reason. UTF-8. */
class FStoryError : public std::runtime_error
{
public:
	using std::runtime_error::runtime_error;
};

struct FStoryWord
{
	std::string Text;

	/** Counted in bytes from 1. */
	size_t Column;
};

struct FStoryStep
{
	size_t Line;
	std::vector<FStoryWord> Words;

	/** The line as it stands in the file. */
	std::string Source;

	/** The comment lines that stand above the step, as one text. */
	std::string Narration;

	/** Counted from 0: the editor that a second "start" starts belongs to session 1. */
	size_t Session;
};

class FStory
{
public:
	/** Reads a UTF-8 file. Throws FStoryError. */
	explicit FStory(const std::filesystem::path& InFile);

	/** Each session needs a process of its own: an editor starts once in a process. */
	size_t SessionCount() const { return AllSteps.empty() ? 0 : AllSteps.back().Session + 1; }

	const std::vector<FStoryStep>& Steps() const { return AllSteps; }

	/** The file's name without its extension, in words. */
	std::string Title() const;

	/** The folder that the story lies in; empty for the current one. */
	std::filesystem::path Folder() const { return File.parent_path(); }

	/** The error for a place in this story. */
	FStoryError Error(const FStoryStep& Step, size_t Column, const std::string& Reason) const;

private:
	std::vector<FStoryWord> Split(const FStoryStep& Step) const;

	std::filesystem::path File;
	std::vector<FStoryStep> AllSteps;
};
