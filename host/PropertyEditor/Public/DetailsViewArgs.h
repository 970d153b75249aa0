// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

struct FDetailsViewArgs
{
	enum ENameAreaSettings
	{
		HideNameArea,
		ObjectsUseNameArea
	};

	/** Whether there is no text that asks for an object while none is shown. */
	bool bHideSelectionTip = false;

	/** Who the area with the object's name is for. */
	ENameAreaSettings NameAreaSettings = ObjectsUseNameArea;
};
