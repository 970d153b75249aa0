// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The names of all menus, sections and entries that the editor module extends or makes.
#pragma once

#include "UObject/NameTypes.h"

namespace MenuNames
{
/** The engine's menu "View" in the toolbar of every level viewport. */
inline const FName ViewMenu("LevelEditor.LevelViewportToolBar.View");

/** Shared with other extensions: whoever comes first makes it. */
inline const FName ColorManagement("ColorManagement");
inline const FName DisplaySubMenu("TNLDisplaySubMenu");

// In that sub-menu.
inline const FName DisplayConfiguration("DisplayConfiguration");
inline const FName ConfigurationWidget("TonalithConfigurationWidget");

/** The widget's own menu; its one section is DisplayConfiguration too. */
inline const FName WidgetMenu("TonalithWidget.DisplayConfiguration");
inline const FName EnableDisplay("EnableDisplay");

/** The entry, and the section behind it. */
inline const FName AssetSelection("TNLAssetSelection");
inline const FName AssetPicker("TNLAssetPickerWidget");
} // namespace MenuNames
