// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <kiln/FolderLoader.h>
#include <kiln/Folders.h>
#include <kiln/JSONLoader.h>
#include <utility>

namespace Kiln::Locale
{
FolderLoader::FolderLoader(std::string folder, std::string prefix)
	: folder_(std::move(folder)), prefix_(std::move(prefix))
{
}

FileChoice FolderLoader::choose(const std::string& locale) const
{
	const std::optional<std::vector<std::string>> names = listFiles(folder_);
	return names ? chooseFile(*names, prefix_, locale) : FileChoice();
}

StringTable& FolderLoader::load(StringTable& result, const std::string& locale)
{
	locale_ = locale;
	error_.clear();
	const FileChoice choice = choose(locale);
	if (choice.match == Match::none)
	{
		return result;
	}
	JSONLoader file(folder_ + "\\" + choice.file);
	file.load(result, locale);
	error_ = file.error();
	return result;
}
} // namespace Kiln::Locale
