# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
# Installs the library, builds the program with the installed package alone, runs it and judges what it prints.
# Needs BUILD (the tree to install from), SOURCE, WORK, RUN (what runs the program) and OPTIONS (of the configuration).
function(step)
	execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
	if(NOT result EQUAL 0)
		message(FATAL_ERROR "${ARGN}\n${output}")
	endif()
	set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${WORK})
step(${CMAKE_COMMAND} --install ${BUILD} --component Kiln --prefix ${WORK}/package)
step(${CMAKE_COMMAND} -S ${SOURCE} -B ${WORK}/build -DKiln_DIR=${WORK}/package/lib/cmake/Kiln ${OPTIONS})
step(${CMAKE_COMMAND} --build ${WORK}/build)
step(${RUN} ${WORK}/build/consumer.exe)
foreach(expected "\"extension\" : \"exe\"" "MB\"" "\nconsumer.exe\n?" "error: directory_iterator::directory_iterator: ")
	string(REPLACE "\r" "" output "${output}")
	if(NOT output MATCHES "${expected}")
		message(FATAL_ERROR "${expected} is missing in:\n${output}")
	endif()
endforeach()

# A package names no folder of the machine that built it.
file(GLOB_RECURSE files ${WORK}/package/*.cmake)
foreach(file IN LISTS files)
	file(READ ${file} text)
	string(FIND "${text}" "${BUILD}" found)
	if(found GREATER -1)
		message(FATAL_ERROR "${file} names ${BUILD}")
	endif()
endforeach()
