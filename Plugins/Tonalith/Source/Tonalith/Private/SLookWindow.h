// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The window of a look: a frame with the look on it and, in the editor, the look's controls.
#pragma once

#include "UObject/WeakObjectPtr.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWindow.h"

class SLookPicture;
class UTonalithObject;
struct FTonalithAPI_ImageDesc;

/** Titled with the look's name; does not keep the look alive, which closes the window when it goes. */
class SLookWindow final : public SWindow
{
public:
	// clang-format off
	SLATE_BEGIN_ARGS(SLookWindow) : _Look(nullptr) {}
		/** Not null. */
		SLATE_ARGUMENT(UTonalithObject*, Look)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs);

	/** Shows a frame instead of the one before. @param Image consistent; copied before the call returns */
	void ShowFrame(const FTonalithAPI_ImageDesc& Image);

	/** The picture follows in the next frame. */
	void OnLookChanged();

private:
	FText GetLookName() const;

	FWeakObjectPtr Look;
	TSharedPtr<SLookPicture> Picture;
};
