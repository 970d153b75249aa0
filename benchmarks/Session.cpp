// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Session.h"

#include "EditorDriver.h"

#include <filesystem>

FEditorDriver& Bench::session()
{
	static FEditorDriver* const driver = []
	{
		FEngineLoopOptions options;
		options.ProjectFolder = (std::filesystem::temp_directory_path() / "tonalith-bench").generic_wstring().c_str();
		options.PluginFolders.Add(TEXT(BENCH_PLUGINS));
		FEditorDriver* const started = new FEditorDriver();
		started->Start(options);
		return started;
	}();
	return *driver;
}
