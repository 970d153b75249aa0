# An artist's first session: two panes, one of them with a look, which goes along into play.
new project
asset /Script/Tonalith.TonalithObject /Game/Looks/Warm.Warm
start
expect log "broadcast FCoreDelegates::OnFEngineLoopInitComplete"
open pane "FourPanes2x2.Viewport 1.Viewport0"
open pane "FourPanes2x2.Viewport 1.Viewport1"

# The second pane shows a look; the first one stays plain.
console "Tonalith.Show /Game/Looks/Warm.Warm"
console Tonalith.Describe
expect log "active viewport: shown yes, look Warm"
activate pane "FourPanes2x2.Viewport 1.Viewport0"
console Tonalith.Describe
expect log "active viewport: shown no, look none"

# Play starts with the look of the pane that was active when it was launched.
activate pane "FourPanes2x2.Viewport 1.Viewport1"
play in pane
console Tonalith.Describe
expect log "active viewport: shown yes, look Warm"
end play

close pane "FourPanes2x2.Viewport 1.Viewport1"
quit
expect log "shut down module TonalithEditor"
