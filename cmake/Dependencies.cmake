# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
# Third-party libraries, all from Debian's packages and sources; tools/setup puts them below build/deps.
# Headers of the build machine are offered one folder at a time: the cross compiler must never see /usr/include.
set(TONALITH_DEPS ${CMAKE_SOURCE_DIR}/build/deps)
if(NOT EXISTS ${TONALITH_DEPS}/ready)
	message(FATAL_ERROR "The third-party libraries are missing: run tools/setup first.")
endif()

function(tonalith_header_library name)
	add_library(${name} INTERFACE)
	target_include_directories(${name} SYSTEM INTERFACE ${TONALITH_DEPS}/include)
endfunction()

tonalith_header_library(rapidjson)
tonalith_header_library(stb)
tonalith_header_library(boost_headers)
target_compile_definitions(boost_headers INTERFACE BOOST_ALL_NO_LIB)

# Debian has these two for Linux only. One translation unit builds up to three times as fast as ten.
set(sources ${TONALITH_DEPS}/boost/libs/filesystem/src)
add_library(boost_filesystem STATIC
	${sources}/codecvt_error_category.cpp ${sources}/directory.cpp ${sources}/exception.cpp ${sources}/operations.cpp
	${sources}/path.cpp ${sources}/path_traits.cpp ${sources}/portability.cpp ${sources}/unique_path.cpp
	${sources}/utf8_codecvt_facet.cpp ${sources}/windows_file_codecvt.cpp)
target_link_libraries(boost_filesystem PUBLIC boost_headers PRIVATE bcrypt)
target_compile_definitions(boost_filesystem
	PUBLIC BOOST_FILESYSTEM_STATIC_LINK=1
	PRIVATE BOOST_FILESYSTEM_SOURCE BOOST_FILESYSTEM_HAS_INIT_PRIORITY BOOST_FILESYSTEM_HAS_BCRYPT
		BOOST_USE_WINDOWS_H WIN32_LEAN_AND_MEAN NOMINMAX)
target_compile_features(boost_filesystem PRIVATE cxx_std_20)
target_compile_options(boost_filesystem PRIVATE -w)

set(sources /usr/src/googletest)
add_library(gtest STATIC ${sources}/googletest/src/gtest-all.cc ${sources}/googlemock/src/gmock-all.cc
	${sources}/googlemock/src/gmock_main.cc)
target_include_directories(gtest SYSTEM PUBLIC ${sources}/googletest/include ${sources}/googlemock/include)
target_include_directories(gtest PRIVATE ${sources}/googletest ${sources}/googlemock)
target_compile_features(gtest PRIVATE cxx_std_20)
target_compile_options(gtest PRIVATE -w -O1 -fno-sanitize=undefined)
# Programs with a main function of their own leave this one in the archive.
set_source_files_properties(${sources}/googlemock/src/gmock_main.cc PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
set_target_properties(boost_filesystem gtest PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 0)

if(TONALITH_BENCH)
	file(GLOB sources ${TONALITH_DEPS}/benchmark/src/*.cc)
	list(FILTER sources EXCLUDE REGEX "benchmark_main\\.cc$")
	add_library(benchmark STATIC ${sources})
	target_include_directories(benchmark SYSTEM PUBLIC ${TONALITH_DEPS}/benchmark/include)
	target_compile_definitions(benchmark PUBLIC BENCHMARK_STATIC_DEFINE PRIVATE HAVE_STD_REGEX HAVE_STEADY_CLOCK)
	target_compile_features(benchmark PRIVATE cxx_std_20)
	target_compile_options(benchmark PRIVATE -w)
	target_link_libraries(benchmark PRIVATE shlwapi)
endif()
unset(sources)

include(${CMAKE_CURRENT_LIST_DIR}/WineTests.cmake)
