// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>
#include <kiln/FileStreams.h>
#include <kiln/Folders.h>
#include <kiln/NameVariants.h>
#include <kiln/Paths.h>
#include <string>

/** A new empty folder with a blank and a non-ASCII letter in its name; removed with its content at the end. */
class TemporaryFolder
{
public:
	TemporaryFolder() { EXPECT_TRUE(Kiln::createFolders(path)); }

	~TemporaryFolder()
	{
		boost::system::error_code error;
		boost::filesystem::remove_all(Kiln::widePath(path), error);
	}

	TemporaryFolder(const TemporaryFolder&) = delete;
	TemporaryFolder& operator=(const TemporaryFolder&) = delete;

	std::string operator/(const std::string& name) const { return path + "\\" + name; }

	/** Writes a file of the size and returns its path. */
	std::string file(const std::string& name, std::size_t size = 0) const
	{
		std::string filePath = *this / name;
		EXPECT_TRUE(Kiln::openOutput(filePath, std::ios::binary) << std::string(size, 'x')) << filePath;
		return filePath;
	}

	const std::string path = Kiln::uniqueTemporaryPath() + " \xC3\xBC";
};
