// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "EditorTest.h"

#include "Misc/OutputDeviceRedirector.h"

#include <algorithm>
#include <filesystem>
#include <windows.h>

namespace
{
constexpr const char* TraceCategory = "LogHostTrace";
}

FEditorTest::FEditorTest()
{
	const std::wstring Name = L"tonalith-test-" + std::to_wstring(GetCurrentProcessId());
	const std::filesystem::path Project = std::filesystem::temp_directory_path() / Name;
	std::filesystem::remove_all(Project);
	Options.ProjectFolder = Project.generic_wstring().c_str();
	Options.PluginFolders.Add(TEXT(EDITOR_TEST_PLUGINS));
	GLog->AddOutputDevice(this);
}

FEditorTest::~FEditorTest()
{
	GLog->RemoveOutputDevice(this);
	std::error_code Ignored;
	std::filesystem::remove_all(*Options.ProjectFolder, Ignored);
}

void FEditorTest::TearDown()
{
	if (Driver.IsRunning())
	{
		Driver.Quit();
	}
	for (const FLine& Line : Lines)
	{
		const bool bIsFault = Line.Text.starts_with("Warning: ") || Line.Text.starts_with("Error: ");
		EXPECT_FALSE(bIsFault && std::ranges::find(Harmless, Line.Text) == Harmless.end())
			<< Line.Category << ": " << Line.Text;
	}
}

void FEditorTest::Serialize(const TCHAR* Text, ELogVerbosity::Type Verbosity, const FName& Category)
{
	const std::string Name = TCHAR_TO_UTF8(*Category.ToString());
	const std::string Line = TCHAR_TO_UTF8(Text);
	Lines.push_back(
		{Name, Name == TraceCategory ? Line : std::string(TCHAR_TO_UTF8(ToString(Verbosity))) + ": " + Line});
}

FLines FEditorTest::TakeTrace()
{
	return TakeLog(TraceCategory);
}

FLines FEditorTest::TakeLog(const std::string& Category)
{
	FLines Taken;
	std::erase_if(Lines,
		[&](const FLine& Line)
		{
			if (Line.Category == Category)
			{
				Taken.push_back(Line.Text);
			}
			return Line.Category == Category;
		});
	return Taken;
}
