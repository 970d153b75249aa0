// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The keys of all texts that the editor module shows; the texts stand in the string files.
#pragma once

namespace TextKeys
{
inline constexpr const char* AssetName = "AssetTypeActions_TonalithObject.AssetTypeActions_Tonalith";
inline constexpr const char* AssetDescription =
	"AssetTypeActions_TonalithObject.AssetTypeActions_TonalithObject_Description";

inline constexpr const char* ColorManagement = "TonalithEditorModule.ColorManagement_Label";
inline constexpr const char* DisplaySubMenu = "TonalithEditorModule.TNLDisplaySubMenu_Label";
inline constexpr const char* DisplaySubMenuToolTip = "TonalithEditorModule.TNLDisplaySubMenu_ToolTip";
inline constexpr const char* DisplayConfiguration = "TonalithEditorModule.DisplayConfiguration_Label";

inline constexpr const char* EnableDisplay = "STonalithWidget.EnableDisplay_Label";
inline constexpr const char* EnableDisplayToolTip = "STonalithWidget.EnableDisplay_ToolTip";
inline constexpr const char* AssetSelection = "STonalithWidget.TNLAssetSelection_Label";
/** Spelt as in the string files. */
inline constexpr const char* AssetSelectionToolTip = "STonalithWidget.TNLAssetSelection_Tooltip";
inline constexpr const char* AssetSelectionSection = "STonalithWidget.TNLAssetSelection2_Label";
} // namespace TextKeys
