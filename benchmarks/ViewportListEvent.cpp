// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What the editor module adds to a change of the level viewport list, beside an event that nobody listens to.
#include "Editor.h"
#include "EditorDriver.h"
#include "Subject.h"

#include <filesystem>

namespace
{
/** The one editor session of this process; it ends with the process. */
FEditorDriver& session()
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

template <int32 Count>
void openPanes()
{
	while (GEditor->GetLevelViewportClients().Num() < Count)
	{
		session().OpenPane(
			FString::Printf(TEXT("Bench.Viewport 1.Viewport%d"), GEditor->GetLevelViewportClients().Num()));
	}
	while (GEditor->GetLevelViewportClients().Num() > Count)
	{
		session().ClosePane(
			FString::Printf(TEXT("Bench.Viewport 1.Viewport%d"), GEditor->GetLevelViewportClients().Num() - 1));
	}
}

template <int32 Count>
void event(benchmark::State& state)
{
	session();
	openPanes<Count>();
	for (auto _ : state)
	{
		GEditor->OnLevelViewportClientListChanged().Broadcast();
	}
}

template <int32 Count>
void unheard(benchmark::State& state)
{
	session();
	openPanes<Count>();
	for (auto _ : state)
	{
		GEditor->OnViewportClientListChanged().Broadcast();
	}
}

const bool added = Bench::add({"level viewport list event, 1 pane", &event<1>, &unheard<1>}) &&
				   Bench::add({"level viewport list event, 8 panes", &event<8>, &unheard<8>}) &&
				   Bench::add({"level viewport list event, 64 panes", &event<64>, &unheard<64>});
} // namespace
