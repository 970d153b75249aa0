// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <filesystem>
#include <kiln/FileStreams.h>
#include <kiln/Paths.h>

// The standard streams take a wide path by no other type, on all compilers.
namespace Kiln
{
std::ifstream openInput(const std::string& path, std::ios::openmode mode)
{
	return std::ifstream(std::filesystem::path(widePath(path)), mode);
}

std::ofstream openOutput(const std::string& path, std::ios::openmode mode)
{
	return std::ofstream(std::filesystem::path(widePath(path)), mode);
}
} // namespace Kiln
