// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The parts of the platform that its main header leaves out: COM and the shell, storage devices, limits of names.
#pragma once

#include "Platform.h"

#include <lmcons.h>
#include <objbase.h>
#include <shellapi.h>
#include <shlobj.h>
#include <shlwapi.h>
#include <shobjidl.h>
#include <winioctl.h>
