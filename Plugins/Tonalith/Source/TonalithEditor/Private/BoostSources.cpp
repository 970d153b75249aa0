// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Boost.Filesystem, compiled into this module: the engine's own Boost is another version behind import libraries.
#include "HAL/Platform.h"

#define BOOST_FILESYSTEM_SOURCE
#define BOOST_USE_WINDOWS_H
// Else the platform's header defines macros named min and max, of which this library's sources know nothing.
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif

THIRD_PARTY_INCLUDES_START
#include <libs/filesystem/src/codecvt_error_category.cpp>
#include <libs/filesystem/src/directory.cpp>
#include <libs/filesystem/src/exception.cpp>
#include <libs/filesystem/src/operations.cpp>
#include <libs/filesystem/src/path.cpp>
#include <libs/filesystem/src/path_traits.cpp>
#include <libs/filesystem/src/portability.cpp>
#include <libs/filesystem/src/unique_path.cpp>
#include <libs/filesystem/src/utf8_codecvt_facet.cpp>
#include <libs/filesystem/src/windows_file_codecvt.cpp>
THIRD_PARTY_INCLUDES_END
