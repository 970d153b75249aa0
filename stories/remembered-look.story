# A pane shows a look, is closed, and the editor is left. In the next session the pane shows the look again.
new project
asset /Script/Tonalith.TonalithObject /Game/Looks/Warm.Warm
start
layout FourPanes2x2
activate pane "FourPanes2x2.Viewport 1.Viewport2"
console "Tonalith.Show /Game/Looks/Warm.Warm"
close pane "FourPanes2x2.Viewport 1.Viewport2"
expect log "LogTemp: OnLevelViewportClientListChanged"
layout OnePane
quit
expect file "Saved/Config/WindowsEditor/EditorPerProjectUserSettings.ini" "expected/remembered-look.ini"

start
open pane "FourPanes2x2.Viewport 1.Viewport2"
expect log "LogTemp: SetupViewportDisplaySettings"
console Tonalith.Describe
expect log "active viewport: shown yes, look Warm"
quit
