# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
# Fails unless the library exports exactly the wanted names (demangled, in any order).
#   cmake -DOBJDUMP=... -DCXXFILT=... -DLIBRARY=... -DWANT="a;b" -P CheckExports.cmake
execute_process(COMMAND ${OBJDUMP} -p ${LIBRARY} COMMAND ${CXXFILT} OUTPUT_VARIABLE dump COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCH "\\[Ordinal/Name Pointer\\] Table.*" table "${dump}")
string(REGEX MATCHALL "\n\t\\[ *[0-9]+\\] [^\n]+" rows "${table}")
list(TRANSFORM rows REPLACE "\n\t\\[ *[0-9]+\\] " "")
# One constructor is two symbols of one name here.
list(REMOVE_DUPLICATES rows)
list(SORT rows)
list(SORT WANT)
if(NOT rows STREQUAL WANT)
	list(JOIN rows "\n  " rows)
	list(JOIN WANT "\n  " WANT)
	message(FATAL_ERROR "${LIBRARY} exports\n  ${rows}\nbut should export\n  ${WANT}")
endif()
