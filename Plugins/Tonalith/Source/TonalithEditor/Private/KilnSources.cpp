// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The part of the support library that this module needs, compiled into it: the engine's build tool compiles only what
// lies below a module. "kiln/../.." leads from the headers' folder to the sources beside it.
#include <kiln/../../src/BufferedInputStream.cpp>
#include <kiln/../../src/CajunTypeResolver.cpp>
#include <kiln/../../src/DeserializableRapidJson.cpp>
#include <kiln/../../src/FileChoice.cpp>
#include <kiln/../../src/FileStreams.cpp>
#include <kiln/../../src/FolderLoader.cpp>
#include <kiln/../../src/Folders.cpp>
#include <kiln/../../src/JSONLoadHelper.cpp>
#include <kiln/../../src/JSONLoader.cpp>
#include <kiln/../../src/JsonConversion.cpp>
#include <kiln/../../src/NumberText.cpp>
#include <kiln/../../src/Paths.cpp>
#include <kiln/../../src/Unicode.cpp>
