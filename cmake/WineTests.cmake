# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
# Tests that are Windows programs share one running Wine server; it is started before the first and stopped after the last.
enable_testing()
add_test(NAME wine_up COMMAND ${CMAKE_SOURCE_DIR}/cmake/wine-server up)
add_test(NAME wine_down COMMAND ${CMAKE_SOURCE_DIR}/cmake/wine-server down)
set_tests_properties(wine_up PROPERTIES FIXTURES_SETUP wine TIMEOUT 180)
set_tests_properties(wine_down PROPERTIES FIXTURES_CLEANUP wine)

# tonalith_add_test(<name> <target or command> [<argument>...])
# Adds a test that runs under Wine in the folder of the built programs. More properties: set_tests_properties.
function(tonalith_add_test name)
	add_test(NAME ${name} COMMAND ${ARGN} WORKING_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
	set_tests_properties(${name} PROPERTIES FIXTURES_REQUIRED wine)
endfunction()
