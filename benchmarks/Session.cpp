// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Session.h"

#include "EditorDriver.h"
#include "Modules/ModuleManager.h"
#include "TonalithModuleInterface.h"

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

FTonalithDisplayManager& Bench::displayRecords()
{
	session();
	return FModuleManager::LoadModuleChecked<ITonalithModule>("Tonalith").GetDisplayManager();
}
