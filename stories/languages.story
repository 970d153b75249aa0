# Labels come from the string files, in the editor's language.
new project
put file ../Plugins/Tonalith/Translations/table_en-US.json ProgramData/Vantor/com.vantor.look/translations/unreal/table_en-US.json
put file ../Plugins/Tonalith/Translations/table_fr.json ProgramData/Vantor/com.vantor.look/translations/unreal/table_fr-CA.json

# French, with a file for Canada only.
start fr
layout OnePane
create asset "Look Tonalith" /Game/Looks/Chaud
quit

# A language without a file.
start nl
layout OnePane
create asset "Tonalith Look" /Game/Looks/Warm
quit

# Without any file the keys show.
new project
start en
layout OnePane
create asset "AssetTypeActions_TonalithObject.AssetTypeActions_Tonalith" /Game/Looks/Warm
quit
