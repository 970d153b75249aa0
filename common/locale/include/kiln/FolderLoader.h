// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <kiln/FileChoice.h>
#include <kiln/Loader.h>

namespace Kiln::Locale
{
/** Loads the string file of a folder that serves a locale best; see chooseFile. */
class FolderLoader : public Loader
{
public:
	/**
	 * @param folder UTF-8
	 * @param prefix what the names of the files begin with, without "_"; may be empty
	 */
	FolderLoader(std::string folder, std::string prefix);

	/**
	 * Nothing is added when no file serves.
	 * @throws boost::filesystem::filesystem_error as listFiles does
	 */
	StringTable& load(StringTable& result, const std::string& locale) override;

	/**
	 * The file that load would take, among the folder's files in the order of their lower-case names; none when the
	 * folder does not exist.
	 * @throws boost::filesystem::filesystem_error as listFiles does
	 */
	FileChoice choose(const std::string& locale) const;

	/** What was wrong with the last file that load took; see JSONLoader::error. */
	const std::string& error() const { return error_; }

	/** The locale of the last request; empty before the first. */
	const std::string& requestedLocale() const { return locale_; }

private:
	std::string folder_;
	std::string prefix_;
	std::string locale_;
	std::string error_;
};
} // namespace Kiln::Locale
