// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What can be wrong with the string files of a product.
#pragma once

#include "StringFile.h"

#include <set>

/** The keys in a source file: every text of the form "<namespace>.<key>" in double quotes. */
std::set<std::string> keysInCode(const std::string& path);

/**
 * All faults of the files, one line each. The American English file, when it is among them, is what the others are
 * measured by.
 * @param codeKeys the keys that the code uses; empty when none are known
 */
std::vector<std::string> check(const std::vector<StringFile>& files, const std::set<std::string>& codeKeys);
