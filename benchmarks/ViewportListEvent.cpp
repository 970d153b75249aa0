// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What the editor module adds to a change of the level viewport list, beside an event that nobody listens to.
#include "Editor.h"
#include "EditorDriver.h"
#include "Session.h"
#include "Subject.h"

namespace
{
template <int32 Count>
void openPanes()
{
	while (GEditor->GetLevelViewportClients().Num() < Count)
	{
		Bench::session().OpenPane(
			FString::Printf(TEXT("Bench.Viewport 1.Viewport%d"), GEditor->GetLevelViewportClients().Num()));
	}
	while (GEditor->GetLevelViewportClients().Num() > Count)
	{
		Bench::session().ClosePane(
			FString::Printf(TEXT("Bench.Viewport 1.Viewport%d"), GEditor->GetLevelViewportClients().Num() - 1));
	}
}

template <int32 Count>
void event(benchmark::State& state)
{
	Bench::session();
	openPanes<Count>();
	for (auto _ : state)
	{
		GEditor->OnLevelViewportClientListChanged().Broadcast();
	}
}

template <int32 Count>
void unheard(benchmark::State& state)
{
	Bench::session();
	openPanes<Count>();
	const FSimpleMulticastDelegate event{TEXT("an event that nobody listens to")};
	for (auto _ : state)
	{
		event.Broadcast();
	}
}

const bool added = Bench::add({"level viewport list event, 1 pane", &event<1>, &unheard<1>}) &&
				   Bench::add({"level viewport list event, 8 panes", &event<8>, &unheard<8>}) &&
				   Bench::add({"level viewport list event, 64 panes", &event<64>, &unheard<64>});
} // namespace
