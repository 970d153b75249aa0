// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <kiln/Loader.h>

namespace Kiln::Locale
{
/**
 * Loads one string file: a JSON object in UTF-8; a byte-order mark is skipped, and so are numbers, whatever they
 * say. Memory grows with the file's size. A file
 * that cannot be read or is no such object adds nothing to the table, and error() tells why.
 */
class JSONLoader : public Loader
{
public:
	/** @param path UTF-8 */
	explicit JSONLoader(std::string path);

	/** The file's strings, whatever the locale. */
	StringTable& load(StringTable& result, const std::string& locale) override;

	/**
	 * What was wrong with the last load: file, line and column (counted from 1, in bytes) where they are known, reason.
	 * Empty after success.
	 */
	const std::string& error() const { return error_; }

private:
	std::string path_;
	std::string error_;
};
} // namespace Kiln::Locale
