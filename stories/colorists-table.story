# A colorist hands over a look as a file. Dropped into the content browser, it becomes an asset.
put file ../Plugins/Tonalith/Translations ProgramData/Vantor/com.vantor.look/translations/unreal
put file ../Plugins/Tonalith/Resources/Looks/Amber.cube Saved/Mail/Amber.cube
start
open pane "OnePane.Viewport 1.Viewport0"
save picture plain
import Saved/Mail/Amber.cube /Game/Looks
expect log "import asset /Game/Looks/Amber.Amber"

# The pane picks it like any other look.
open menu View TNLDisplaySubMenu TNLAssetSelection
click Amber
open menu View TNLDisplaySubMenu
click EnableDisplay
expect picture unlike plain
save picture amber

# Its window shows the table in full, beside the frame as it was.
open assets /Game/Looks/Amber.Amber
slide Amber 0.5
save picture "half plain, half amber" Amber

# The same file again changes nothing.
import Saved/Mail/Amber.cube /Game/Looks
expect picture like amber

# The artist tunes the look by its controls, in front of the table, and hands it back as one table.
edit Amber Gain "(X=0.9,Y=0.9,Z=1,W=0.8)"
edit Amber Contrast "(X=1,Y=1,Z=1,W=1.2)"
save picture "amber, tuned" Amber
export /Game/Looks/Amber.Amber Saved/Mail/Tuned.cube

# The colorist changes the table and sends it again under its old name. The controls stay as they are tuned.
put file ../Plugins/Tonalith/Resources/Looks/Silver.cube Saved/Mail/Amber.cube
import Saved/Mail/Amber.cube /Game/Looks
expect picture unlike amber
save picture "silver, tuned"
quit
expect log "save asset /Game/Looks/Amber.Amber"

# The next morning the look is as it was left, and the tuned table is there to compare.
start
open pane "OnePane.Viewport 1.Viewport0"
expect picture like "silver, tuned"
import Saved/Mail/Tuned.cube /Game/Looks
open menu View TNLDisplaySubMenu TNLAssetSelection
click Tuned
save picture tuned
quit
