# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
# Fails when a source of the library uses a field without the lock that guards it, or a lock wrongly.
#   cmake -DCLANG=... "-DINCLUDES=a;b" "-DSYSTEM_INCLUDES=a;b" -DCOMMON=<folder> -DFAULT=<source with one> -P CheckLocks.cmake
set(command ${CLANG} -fsyntax-only -std=c++20 --target=x86_64-w64-windows-gnu -Wthread-safety -Werror=thread-safety
	-DNOMINMAX -DWIN32_LEAN_AND_MEAN -nostdinc++)
list(TRANSFORM INCLUDES PREPEND -I)
foreach(folder IN LISTS SYSTEM_INCLUDES)
	list(APPEND command -isystem ${folder})
endforeach()
list(APPEND command ${INCLUDES})

file(GLOB candidates ${COMMON}/*/src/*.cpp)
set(sources "")
foreach(source IN LISTS candidates)
	file(STRINGS ${source} uses REGEX "Lock" LIMIT_COUNT 1)
	if(uses)
		list(APPEND sources ${source})
	endif()
endforeach()
execute_process(COMMAND ${command} ${sources} RESULT_VARIABLE result ERROR_VARIABLE output)
if(NOT result EQUAL 0 OR NOT sources)
	message(FATAL_ERROR "${sources}\n${output}")
endif()

# The check itself: a fault is seen, and for its reason.
execute_process(COMMAND ${command} ${FAULT} RESULT_VARIABLE result ERROR_VARIABLE output)
if(result EQUAL 0 OR NOT output MATCHES "requires holding mutex 'lock_'")
	message(FATAL_ERROR "the fault in ${FAULT} is not seen:\n${output}")
endif()
list(LENGTH sources count)
message("${count} sources are clean")
