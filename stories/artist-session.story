# An artist opens a project that holds two looks.
new project
put file ../Plugins/Tonalith/Translations ProgramData/Vantor/com.vantor.look/translations/unreal
asset /Script/Tonalith.TonalithObject /Game/Looks/Warm.Warm
asset /Script/Tonalith.TonalithObject /Game/Looks/Cold.Cold
start
layout FourPanes2x2
activate pane "FourPanes2x2.Viewport 1.Viewport0"
save picture "first pane"

# The pane's own View menu has a place for looks. None is chosen yet.
open menu View TNLDisplaySubMenu
expect menu "Color Management"
expect menu "Tonalith Look >"
expect menu "[ ] Show Look"
expect menu "Choose a Look >"

# All looks of the project are offered.
open menu TNLAssetSelection
expect menu Cold
expect menu Warm
click Warm

# The View menu stays open. The look is chosen; now it is switched on, which closes the menus.
open menu TNLDisplaySubMenu
expect menu "Warm >"
click EnableDisplay
open menu View TNLDisplaySubMenu
expect menu "[x] Show Look"

# Another pane gets another look.
activate pane "FourPanes2x2.Viewport 1.Viewport3"
open menu View TNLDisplaySubMenu
expect menu "[ ] Show Look"
open menu TNLAssetSelection
click Cold
open menu TNLDisplaySubMenu
expect menu "Cold >"
click EnableDisplay

# The first pane still has its own. The look that a pane shows is not offered to it again.
activate pane "FourPanes2x2.Viewport 1.Viewport0"
open menu View TNLDisplaySubMenu TNLAssetSelection
expect menu "Warm >"
expect menu Clear
expect menu Cold

# A play session starts with the look of the pane that was active.
play in pane
end play

# A new look is made in the content browser, and opens at once.
create asset "Tonalith Look" /Game/Looks/Night
expect log "read pixels"
open menu View TNLDisplaySubMenu TNLAssetSelection
click Night
close pane "FourPanes2x2.Viewport 1.Viewport0"
expect log "LogTemp: OnLevelViewportClientListChanged"
quit

# The next morning every pane shows what it showed before.
start
layout FourPanes2x2
activate pane "FourPanes2x2.Viewport 1.Viewport0"
open menu View TNLDisplaySubMenu
expect menu "[x] Show Look"
expect menu "Night >"
activate pane "FourPanes2x2.Viewport 1.Viewport3"
open menu View TNLDisplaySubMenu
expect menu "[x] Show Look"
expect menu "Cold >"
activate pane "FourPanes2x2.Viewport 1.Viewport1"
open menu View TNLDisplaySubMenu
expect menu "[ ] Show Look"
expect menu "Choose a Look >"
quit
