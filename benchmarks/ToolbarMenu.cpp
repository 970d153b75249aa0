// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The look's menu: the pane's "View" menu and the sub-menu in it opened, built and closed.
#include "EditorDriver.h"
#include "Session.h"
#include "Subject.h"
#include "UObject/Object.h"

namespace
{
void openAndClose(benchmark::State& state)
{
	const FString pane = TEXT("Bench.Viewport 1.Menu");
	Bench::session().OpenPane(pane);
	for (auto _ : state)
	{
		Bench::session().Menus().OpenViewMenu();
		Bench::session().Menus().OpenSubMenu(TEXT("TNLDisplaySubMenu"));
		Bench::session().Menus().CloseAll();
		CollectGarbage();
	}
	Bench::session().ClosePane(pane);
}

const bool added = Bench::add({"toolbar menu opened, built and closed", &openAndClose});
} // namespace
