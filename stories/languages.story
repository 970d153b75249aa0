# Labels come from the string files, in the editor's language.
put file ../Plugins/Tonalith/Translations/table_en-US.json ProgramData/Vantor/com.vantor.look/translations/unreal/table_en-US.json
put file ../Plugins/Tonalith/Translations/table_fr.json ProgramData/Vantor/com.vantor.look/translations/unreal/table_fr-CA.json

# French, with a file for Canada only.
start fr
layout OnePane
create asset "Look Tonalith" /Game/Looks/Chaud
open menu View TNLDisplaySubMenu
expect menu "Gestion des couleurs"
expect menu "Look Tonalith >"
expect menu "Look de cette vue"
expect menu "[ ] Afficher le look"
expect menu "Choisir un look >"
quit

# A language without a file.
start nl
layout OnePane
create asset "Tonalith Look" /Game/Looks/Warm
open menu View TNLDisplaySubMenu
expect menu "[ ] Show Look"
quit
