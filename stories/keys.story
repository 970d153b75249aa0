# Without any string file the keys show.
start
layout OnePane
create asset "AssetTypeActions_TonalithObject.AssetTypeActions_Tonalith" /Game/Looks/Warm
open menu View TNLDisplaySubMenu
expect menu "TonalithEditorModule.ColorManagement_Label"
expect menu "[ ] STonalithWidget.EnableDisplay_Label"
quit
