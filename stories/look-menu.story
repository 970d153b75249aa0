# A look is picked, shown, hidden and cleared.
put file ../Plugins/Tonalith/Translations ProgramData/Vantor/com.vantor.look/translations/unreal
put file content/Looks/Warm.asset Content/Looks/Warm.asset
put file content/Looks/Cold.asset Content/Looks/Cold.asset
start
layout TwoPanesHoriz
open pane "TwoPanesHoriz.Viewport 1.Viewport0"
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
open pane "TwoPanesHoriz.Viewport 1.Viewport1"
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
