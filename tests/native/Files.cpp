// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The file functions that the logger and the file choice call, for narrow paths of the build machine.
#include <filesystem>
#include <kiln/FileStreams.h>
#include <kiln/Folders.h>
#include <kiln/Paths.h>
#include <kiln/Unicode.h>

namespace Kiln
{
std::string absolutePath(const std::string& path)
{
	return path.empty() ? path : std::filesystem::absolute(path).lexically_normal().string();
}

std::string pathKey(const std::string& path)
{
	return lowerCase(absolutePath(path));
}

std::string parentOf(const std::string& path)
{
	return std::filesystem::path(path).parent_path().string();
}

bool createFolders(const std::string& path)
{
	std::error_code error;
	std::filesystem::create_directories(path, error);
	return std::filesystem::is_directory(path, error);
}

std::ifstream openInput(const std::string& path, std::ios::openmode mode)
{
	return std::ifstream(path, mode);
}

std::ofstream openOutput(const std::string& path, std::ios::openmode mode)
{
	return std::ofstream(path, mode);
}

/** Of the letters beyond ASCII those of Latin-1, which two bytes and one bit tell apart. */
std::string lowerCase(std::string_view utf8)
{
	std::string lower;
	for (const char c : utf8)
	{
		const bool isUpper = (c >= 'A' && c <= 'Z') || (lower.ends_with('\xC3') && c >= '\x80' && c <= '\x9E');
		lower += isUpper ? static_cast<char>(c + 32) : c;
	}
	return lower;
}
} // namespace Kiln
