# An artist opens a project that holds five looks.
put file ../Plugins/Tonalith/Translations ProgramData/Vantor/com.vantor.look/translations/unreal
put file content Content
start
layout FourPanes2x2
open pane "FourPanes2x2.Viewport 1.Viewport0"
save picture plain

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
expect picture unlike plain
save picture warm
open menu View TNLDisplaySubMenu
expect menu "[x] Show Look"

# Another pane gets another look.
open pane "FourPanes2x2.Viewport 1.Viewport3"
open menu View TNLDisplaySubMenu
expect menu "[ ] Show Look"
open menu TNLAssetSelection
click Cold
open menu TNLDisplaySubMenu
expect menu "Cold >"
click EnableDisplay
save picture cold

# A play session starts with the look of the pane that was active.
open pane "FourPanes2x2.Viewport 1.Viewport0"
play
expect picture like warm
stop

# That pane still has its own look. The look that a pane shows is not offered to it again.
open menu View TNLDisplaySubMenu TNLAssetSelection
expect menu "Warm >"
expect menu Clear
expect menu Cold

# The other looks in the same pane.
click Faded
save picture faded
open menu View TNLDisplaySubMenu TNLAssetSelection
click Contrast
save picture contrast
open menu View TNLDisplaySubMenu TNLAssetSelection
click Monochrome
save picture monochrome

# Switched off, the pane is as it was.
open menu View TNLDisplaySubMenu
click EnableDisplay
expect picture like plain
open menu View TNLDisplaySubMenu
click EnableDisplay

# A new look is made in the content browser, and opens at once. It changes nothing yet.
create asset "Tonalith Look" /Game/Looks/Night
expect log "read pixels"
open menu View TNLDisplaySubMenu TNLAssetSelection
click Night
expect picture like plain

# Its controls are turned in its window. The frame there shows the look, and so does the pane.
edit Night Saturation "(X=1,Y=1,Z=1,W=0.6)"
edit Night Contrast "(X=1,Y=1,Z=1,W=1.3)"
edit Night Gain "(X=0.5,Y=0.7,Z=1.2,W=0.8)"
save picture "night in its window" Night
expect picture unlike plain
save picture night

# A slider draws the frame as it was over that.
slide Night 0.5
save picture "half plain, half night" Night
close pane "FourPanes2x2.Viewport 1.Viewport0"
expect log "LogTemp: OnLevelViewportClientListChanged"
quit

# The next morning every pane shows what it showed before.
start
layout FourPanes2x2
open pane "FourPanes2x2.Viewport 1.Viewport0"
open menu View TNLDisplaySubMenu
expect menu "[x] Show Look"
expect menu "Night >"
open pane "FourPanes2x2.Viewport 1.Viewport3"
open menu View TNLDisplaySubMenu
expect menu "[x] Show Look"
expect menu "Cold >"
open pane "FourPanes2x2.Viewport 1.Viewport1"
open menu View TNLDisplaySubMenu
expect menu "[ ] Show Look"
expect menu "Choose a Look >"
quit

# Settings may hold half a look.
put file half-weight.ini Saved/Config/WindowsEditor/EditorPerProjectUserSettings.ini
start
layout OnePane
expect picture unlike monochrome
save picture "monochrome at half weight"
quit
