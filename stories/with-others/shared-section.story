# Another plug-in made the section for color management first: the look joins it, and the section keeps its label.
put file ../../Plugins/Tonalith/Translations ProgramData/Vantor/com.vantor.look/translations/unreal
start
layout OnePane
open menu View
expect menu "Color Tools"
expect menu "[ ] False Colors"
expect menu "Tonalith Look >"
open menu TNLDisplaySubMenu
expect menu "[ ] Show Look"
quit
