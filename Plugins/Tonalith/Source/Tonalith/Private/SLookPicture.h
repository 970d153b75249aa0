// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The picture of a look's window: a frame with the look on it, and a slider that draws the frame without it over that.
#pragma once

#include "LookFrame.h"
#include "UObject/WeakObjectPtr.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SImage;
class UTonalithObject;
struct FSlateDynamicImageBrush;
struct FTonalithAPI_ImageDesc;

/** Draws at most once a frame, however often it is asked to. Does not keep the look alive; without it, nothing changes. */
class SLookPicture final : public SCompoundWidget
{
public:
	// clang-format off
	SLATE_BEGIN_ARGS(SLookPicture) : _Look(nullptr) {}
		/** Not null. */
		SLATE_ARGUMENT(UTonalithObject*, Look)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs);

	/** Shows a frame instead of the one before. @param Image consistent; copied before the call returns */
	void ShowFrame(const FTonalithAPI_ImageDesc& Image);

	/** The look has changed. */
	void Regrade();

private:
	/** Has the picture drawn in the next frame. */
	void RequestDrawing();
	EActiveTimerReturnType Draw(double CurrentTime, float DeltaTime);

	void OnLineMoved(float InLine);

	FWeakObjectPtr Look;
	FLookFrame Frame;

	/** How much of the width, from the left, shows the frame without the look. */
	float Line = 0.0f;

	bool bIsGraded = false;
	bool bIsDrawingDue = false;

	TSharedPtr<SImage> Image;
	TSharedPtr<FSlateDynamicImageBrush> Brush;
};
