// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Where the string files of all users of the machine lie.
#pragma once

#include <string>

/** The folder, UTF-8; empty when the machine has no folder for application data. It need not exist. */
std::string StringFileFolder();
