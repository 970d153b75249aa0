// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A test that runs one editor session.
#pragma once

#include "EditorDriver.h"
#include "Misc/OutputDevice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using FLines = std::vector<std::string>;

class FEditorTest
	: public testing::Test
	, private FOutputDevice
{
protected:
	/** A project folder of its own; the plug-in of this program (EDITOR_TEST_PLUGINS). */
	FEditorTest();
	~FEditorTest() override;

	/** Leaves the session if it still runs. Warnings that nobody took from the log then are failures. */
	void TearDown() override;

	/** The lines of the host's trace since the last call. */
	FLines TakeTrace();

	/** The lines that the category got since the last call, as "Verbosity: text". */
	FLines TakeLog(const std::string& Category);

	FEngineLoopOptions Options;
	FEditorDriver Driver;

	/** Lines of the log that may stay there. */
	FLines Harmless;

private:
	struct FLine
	{
		std::string Category;
		std::string Text;
	};

	void Serialize(const TCHAR* Text, ELogVerbosity::Type Verbosity, const FName& Category) override;

	std::vector<FLine> Lines;
};
