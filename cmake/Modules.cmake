# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
# How engine modules and plug-in modules are compiled here. The definitions are those that the engine's build tool makes.

# Warnings for the project's own code; third-party headers come in as system headers.
function(tonalith_warnings target)
	target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
endfunction()

# Objects, exceptions and type information cross images here, so all of them share the one runtime, which lies beside the
# programs.
foreach(library libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll libssp-0.dll)
	execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library} OUTPUT_VARIABLE file
		OUTPUT_STRIP_TRAILING_WHITESPACE)
	file(COPY ${file} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
endforeach()

# Where plug-ins are staged: one folder a plug-in, laid out as in an engine project.
set(TONALITH_STAGE ${CMAKE_BINARY_DIR}/stage)

find_program(PYTHON python3 REQUIRED)
set(HEADER_TOOL_FILES ${CMAKE_CURRENT_LIST_DIR}/../host/HeaderTool/header_tool.py
	${CMAKE_CURRENT_LIST_DIR}/../host/HeaderTool/header_reader.py)
list(GET HEADER_TOOL_FILES 0 HEADER_TOOL)

# reflect(<module> SOURCE <folder> [KNOWN <modules>...])
# Runs the header tool over the reflected headers below the folder; KNOWN are the modules whose types they may name.
function(reflect module)
	cmake_parse_arguments(ARG "" "SOURCE" "KNOWN" ${ARGN})
	set(out ${CMAKE_BINARY_DIR}/reflection/${module})
	set(headers "")
	set(outputs ${out}/${module}.types)
	file(GLOB_RECURSE candidates CONFIGURE_DEPENDS ${ARG_SOURCE}/*.h)
	foreach(header IN LISTS candidates)
		file(STRINGS ${header} include REGEX "#include .*\\.generated\\.h\"" LIMIT_COUNT 1)
		if(include)
			get_filename_component(stem ${header} NAME_WE)
			list(APPEND headers ${header})
			list(APPEND outputs ${out}/${stem}.generated.h ${out}/${stem}.gen.cpp)
			set_source_files_properties(${out}/${stem}.gen.cpp PROPERTIES COMPILE_OPTIONS -Wno-invalid-offsetof)
		endif()
	endforeach()
	list(TRANSFORM ARG_KNOWN REPLACE "(.+)" "${CMAKE_BINARY_DIR}/reflection/\\1/\\1.types" OUTPUT_VARIABLE known)
	list(TRANSFORM known PREPEND "--known=" OUTPUT_VARIABLE known_arguments)
	add_custom_command(OUTPUT ${outputs}
		COMMAND ${PYTHON} ${HEADER_TOOL} --module ${module} --source ${ARG_SOURCE} --out ${out} ${known_arguments} ${headers}
		DEPENDS ${HEADER_TOOL_FILES} ${headers} ${known} VERBATIM)
	target_sources(${module} PRIVATE ${outputs})
	target_include_directories(${module} PUBLIC ${out})
endfunction()

# add_plugin_module(<name> PLUGIN <name> SOURCE <folder> STAGE <folder> [LINK <targets>...])
# Builds UnrealEditor-<name>.dll from all sources below the folder, as the engine's build tool would.
function(add_plugin_module name)
	cmake_parse_arguments(ARG "" "PLUGIN;SOURCE;STAGE" "LINK" ${ARGN})
	file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${ARG_SOURCE}/*.cpp ${ARG_SOURCE}/*.h)
	add_library(${name} SHARED ${sources})
	tonalith_warnings(${name})
	string(TOUPPER ${name} upper)
	target_compile_definitions(${name}
		PRIVATE UE_MODULE_NAME="${name}" UE_PLUGIN_NAME="${ARG_PLUGIN}" ${upper}_API=DLLEXPORT
		INTERFACE ${upper}_API=DLLIMPORT)
	target_include_directories(${name} PUBLIC ${ARG_SOURCE}/Public PRIVATE ${ARG_SOURCE}/Private)
	target_link_libraries(${name} PUBLIC HeadlessEditor PRIVATE ${ARG_LINK})
	reflect(${name} SOURCE ${ARG_SOURCE} KNOWN ${ARG_LINK})
	set_target_properties(${name} PROPERTIES
		OUTPUT_NAME UnrealEditor-${name}
		RUNTIME_OUTPUT_DIRECTORY ${ARG_STAGE}/Binaries/Win64)
endfunction()

# stage_plugin(<name> SOURCE <folder> STAGE <folder> MODULES <names>... [CONTENT <paths below the folder>...])
# Copies the descriptor and the content, and writes the module list that the engine's build tool writes beside the DLLs.
function(stage_plugin name)
	cmake_parse_arguments(ARG "" "SOURCE;STAGE" "MODULES;CONTENT" ${ARGN})
	set(entries "")
	foreach(module IN LISTS ARG_MODULES)
		list(APPEND entries "\t\t\"${module}\": \"UnrealEditor-${module}.dll\"")
	endforeach()
	list(JOIN entries ",\n" entries)
	file(GENERATE OUTPUT ${ARG_STAGE}/Binaries/Win64/UnrealEditor.modules
		CONTENT "{\n\t\"BuildId\": \"headless\",\n\t\"Modules\": {\n${entries}\n\t}\n}\n")
	set(copies "")
	foreach(item ${name}.uplugin ${ARG_CONTENT})
		file(GLOB_RECURSE found CONFIGURE_DEPENDS RELATIVE ${ARG_SOURCE} ${ARG_SOURCE}/${item})
		foreach(file IN LISTS found)
			add_custom_command(OUTPUT ${ARG_STAGE}/${file}
				COMMAND ${CMAKE_COMMAND} -E copy ${ARG_SOURCE}/${file} ${ARG_STAGE}/${file}
				DEPENDS ${ARG_SOURCE}/${file} VERBATIM)
			list(APPEND copies ${ARG_STAGE}/${file})
		endforeach()
	endforeach()
	add_custom_target(stage_${name} ALL DEPENDS ${copies} ${ARG_MODULES})
endfunction()
