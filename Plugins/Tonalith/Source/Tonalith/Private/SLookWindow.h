// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The window of a look: a picture to judge the look by and, in the editor, the look's controls.
#pragma once

#include "UObject/WeakObjectPtr.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWindow.h"

class SImage;
class UTonalithObject;
struct FSlateDynamicImageBrush;
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

	/** Shows a picture instead of the one before. @param Image consistent; copied before the call returns */
	void ShowPicture(const FTonalithAPI_ImageDesc& Image);

private:
	FText GetLookName() const;

	FWeakObjectPtr Look;
	TSharedPtr<SImage> PictureWidget;
	TSharedPtr<FSlateDynamicImageBrush> PictureBrush;
};
