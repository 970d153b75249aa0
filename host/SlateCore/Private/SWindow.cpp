// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Widgets/SWindow.h"

#include "Host/Trace.h"

void SWindow::Construct(const FArguments& InArgs)
{
	Title = InArgs._Title;
	ChildSlot[InArgs._Content.ToSharedRef()];
}

void SWindow::BringToFront(bool)
{
	HostTrace::Line(TEXT("bring window %s to front"), *GetTitle().ToString());
}
