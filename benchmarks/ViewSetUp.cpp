// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What each frame of a pane costs that shows a look, beside one that shows none: the view extensions asked and run.
#include "EditorDriver.h"
#include "Engine/Engine.h"
#include "SLevelViewport.h"
#include "SceneView.h"
#include "Session.h"
#include "Subject.h"
#include "TonalithDisplayManager.h"
#include "TonalithObject.h"
#include "UObject/UObjectGlobals.h"

namespace
{
void setUp(benchmark::State& state, bool showsLook)
{
	const FString pane = TEXT("Bench.Viewport 1.View");
	Bench::session().OpenPane(pane);
	FViewport* const viewport = Bench::session().Pane(pane).GetActiveViewport();
	FTonalithDisplayConfiguration& record =
		Bench::displayRecords().FindOrAddDisplayConfiguration(viewport->GetClient());
	record.bDisplay = showsLook;
	record.Look = GetMutableDefault<UTonalithObject>();
	FSceneViewFamily family;
	family.RenderTarget = viewport;
	FSceneView view;
	for (auto _ : state)
	{
		for (const auto& extension : GEngine->ViewExtensions->GatherActiveExtensions({viewport}))
		{
			extension->SetupView(family, view);
		}
		benchmark::DoNotOptimize(view);
	}
	Bench::session().ClosePane(pane);
}

void withLook(benchmark::State& state)
{
	setUp(state, true);
}

void withoutLook(benchmark::State& state)
{
	setUp(state, false);
}

const bool added = Bench::add({"view of a frame set up with a look", &withLook, &withoutLook});
} // namespace
