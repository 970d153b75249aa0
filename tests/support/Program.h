// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Runs the headless editor as a user would and takes its output.
#pragma once

#include <string>

struct FProgramResult
{
	unsigned long ExitCode;

	/** Standard output and error together, with plain line ends. */
	std::string Output;
};

/** @param Arguments the command line behind the program's name */
FProgramResult RunHeadlessEditor(const std::wstring& Arguments);
