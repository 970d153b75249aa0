# An artist makes a look in the content browser; it opens at once. Later two looks are opened together.
put file ../Plugins/Tonalith/Translations ProgramData/Vantor/com.vantor.look/translations/unreal
put file content/Looks/Warm.asset Content/Looks/Warm.asset
start
open pane "OnePane.Viewport 1.Viewport0"
save picture plain

create asset "Tonalith Look" /Game/Looks/Night
expect log "create asset /Game/Looks/Night.Night"
expect log "draw viewport"
expect log "read pixels"
open assets /Game/Looks/Night.Night /Game/Looks/Warm.Warm
expect log "read pixels"
expect picture like plain
quit
expect log "save asset /Game/Looks/Night.Night"

# The new look is part of the project now.
start
open pane "OnePane.Viewport 1.Viewport0"
open assets /Game/Looks/Night.Night
expect log "read pixels"
quit
