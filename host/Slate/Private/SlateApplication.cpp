// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Framework/Application/SlateApplication.h"

/** Lives on at the end of a process that did not exit in order: its widgets could no longer die cleanly then. */
static TSharedPtr<FSlateApplication>& CurrentApplication = *new TSharedPtr<FSlateApplication>();

void FSlateApplication::Create()
{
	CurrentApplication = MakeShared<FSlateApplication>();
}

void FSlateApplication::Shutdown()
{
	Get().DismissAllMenus();
	for (const TSharedRef<SWindow>& Window : Get().GetTopLevelWindows())
	{
		Get().RequestDestroyWindow(Window);
	}
	CurrentApplication.Reset();
}

bool FSlateApplication::IsInitialized()
{
	return CurrentApplication.IsValid();
}

FSlateApplication& FSlateApplication::Get()
{
	check(CurrentApplication.IsValid());
	check(IsInGameThread());
	return *CurrentApplication;
}

void FSlateApplication::Tick()
{
	for (const TSharedRef<SWindow>& Window : GetTopLevelWindows())
	{
		Window->ForEachWidget([](SWidget& Widget) { Widget.ExecuteActiveTimers(); });
	}
}

TSharedRef<SWindow> FSlateApplication::AddWindow(TSharedRef<SWindow> InSlateWindow, const bool)
{
	HostTrace::Line(TEXT("open window %s"), *InSlateWindow->GetTitle().ToString());
	Windows.Add(InSlateWindow);
	return InSlateWindow;
}

void FSlateApplication::RequestDestroyWindow(TSharedRef<SWindow> WindowToDestroy)
{
	if (Windows.Remove(WindowToDestroy) > 0)
	{
		HostTrace::Line(TEXT("close window %s"), *WindowToDestroy->GetTitle().ToString());
	}
}

void FSlateApplication::PushMenu(FName Name, const TSharedRef<SWidget>& Parent, const FMakeMenuContent& MakeContent)
{
	DismissDownTo(DepthOf(*Parent));
	const TSharedRef<SWidget> Content = MakeContent.Execute();
	HostTrace::Line(TEXT("open menu %s"), *Name.ToString());
	OpenMenus.Add({Name, Parent, Content});
}

void FSlateApplication::DismissMenuByWidget(const TSharedRef<SWidget>& InWidgetInMenu)
{
	if (const int32 Depth = DepthOf(*InWidgetInMenu))
	{
		DismissDownTo(Depth - 1);
	}
}

void FSlateApplication::DismissMenusBelow(const SWidget& Widget)
{
	if (const int32 Depth = DepthOf(Widget))
	{
		DismissDownTo(Depth);
	}
}

int32 FSlateApplication::DepthOf(const SWidget& Widget) const
{
	for (int32 Depth = OpenMenus.Num(); Depth > 0; --Depth)
	{
		bool bIsInside = false;
		OpenMenus[Depth - 1].Content->ForEachWidget([&](SWidget& Each) { bIsInside |= &Each == &Widget; });
		if (bIsInside)
		{
			return Depth;
		}
	}
	return 0;
}

void FSlateApplication::DismissDownTo(int32 Count)
{
	while (OpenMenus.Num() > Count)
	{
		// Out of the list before its widgets die: they may look at it.
		const FOpenMenu Closing = OpenMenus.Last();
		OpenMenus.RemoveAt(OpenMenus.Num() - 1);
		HostTrace::Line(TEXT("close menu %s"), *Closing.Name.ToString());
	}
}
