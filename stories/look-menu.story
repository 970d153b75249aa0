# A look is picked, shown, hidden and cleared.
new project
put file ../Plugins/Tonalith/Translations ProgramData/Vantor/com.vantor.look/translations/unreal
asset /Script/Tonalith.TonalithObject /Game/Looks/Warm.Warm
asset /Script/Tonalith.TonalithObject /Game/Looks/Cold.Cold
start
layout TwoPanesHoriz
activate pane "TwoPanesHoriz.Viewport 1.Viewport0"
open menu View TNLDisplaySubMenu TNLAssetSelection
expect menu Cold
click Warm
expect log "close menu TonalithWidget.DisplayConfiguration.TNLAssetSelection"
open menu TNLDisplaySubMenu
expect menu "[ ] Show Look"
expect menu "Warm >"
click EnableDisplay
open menu View TNLDisplaySubMenu
expect menu "[x] Show Look"
click EnableDisplay
open menu View TNLDisplaySubMenu
expect menu "[ ] Show Look"

# What is clicked goes to the pane that is active when it is clicked.
activate pane "TwoPanesHoriz.Viewport 1.Viewport1"
click EnableDisplay
open menu View TNLDisplaySubMenu
expect menu "[x] Show Look"
expect menu "Warm >"

# Without a look there is nothing to clear.
open menu TNLAssetSelection
expect menu Cold
click Clear
open menu View TNLDisplaySubMenu TNLAssetSelection
expect menu "Choose a Look >"
expect menu Warm
expect menu Cold
quit
