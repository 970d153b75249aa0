# A pane shows a look, is closed, and the editor is left. In the next session the pane shows the look again.
put file content/Looks/Warm.asset Content/Looks/Warm.asset
start
layout FourPanes2x2
open pane "FourPanes2x2.Viewport 1.Viewport2"
open menu View TNLDisplaySubMenu TNLAssetSelection
click Warm
open menu TNLDisplaySubMenu
click EnableDisplay
close pane "FourPanes2x2.Viewport 1.Viewport2"
expect log "LogTemp: OnLevelViewportClientListChanged"
layout OnePane
quit
expect file "Saved/Config/WindowsEditor/EditorPerProjectUserSettings.ini" "expected/remembered-look.ini"

start
open pane "FourPanes2x2.Viewport 1.Viewport2"
expect log "LogTemp: SetupViewportDisplaySettings"
open menu View TNLDisplaySubMenu
expect menu "[x] STonalithWidget.EnableDisplay_Label"
expect menu "Warm >"
quit
