// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The texts that the editor module shows, in the editor's language. One table for the whole process.
#pragma once

#include "Internationalization/Text.h"

#include <string>
#include <unordered_map>

/**
 * Puts the table for the locale in place, out of the string files in the machine-wide folder. The table that is there
 * stays if it is for the same file. Any thread.
 * @param Locale UTF-8, such as "fr" or "fr-CA"
 * @return false when no file serves the locale; the table is then empty
 * @throws boost::filesystem::filesystem_error when the folder cannot be read; a missing folder has no files
 */
bool LoadStringTable(const std::string& Locale);

/**
 * The text of a key, its placeholders "{{name}}" filled from the arguments; an unknown name stays as it stands. A key
 * that the table does not have is its own text. Any thread.
 * @param Key UTF-8, "<namespace>.<key>"; looked up whole, case counts
 * @param Arguments values by name, UTF-8; a value is not searched for placeholders
 */
FText LocalizedText(const std::string& Key, const std::unordered_map<std::string, std::string>& Arguments);

/** Loads the table for the language of the editor's culture; a failure is logged, and the keys show. */
void LoadEditorStrings();
