// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

struct FDetailsViewArgs
{
	enum ENameAreaSettings
	{
		HideNameArea,
		ObjectsUseNameArea
	};

	/** Who the area with the object's name is for. */
	ENameAreaSettings NameAreaSettings = ObjectsUseNameArea;
};
