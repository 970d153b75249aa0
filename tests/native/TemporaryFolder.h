// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <string>

/** A new empty folder; removed with its content at the end. */
class TemporaryFolder
{
public:
	TemporaryFolder() { EXPECT_TRUE(mkdtemp(path_.data())); }
	~TemporaryFolder() { std::filesystem::remove_all(path_); }
	TemporaryFolder(const TemporaryFolder&) = delete;
	TemporaryFolder& operator=(const TemporaryFolder&) = delete;

	std::string operator/(const std::string& name) const { return path_ + "/" + name; }

private:
	std::string path_ = (std::filesystem::temp_directory_path() / "kiln-XXXXXX").string();
};
