// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "FileSystemNames.h"
#include <algorithm>
#include <iterator>
#include <kiln/Unicode.h>
#include <kiln/VolumeEventMonitor.h>

namespace Kiln
{
namespace
{
struct NamedFileSystem
{
	const char* name;
	FileSystemType type;
};

/** In lower case. Of a type's names the last one is its text. */
constexpr NamedFileSystem fileSystems[] = {
	{"hfs", FileSystemType::hfs},
	{"msdos", FileSystemType::fat},
	{"ntfs", FileSystemType::ntfs},
	{"fat32", FileSystemType::fat},
	{"fat", FileSystemType::fat},
	{"nfs", FileSystemType::nfs},
	{"smb", FileSystemType::smb},
	{"afp", FileSystemType::afp},
};
} // namespace

FileSystemType fileSystemOf(const std::string& name)
{
	const std::string lowerName = lowerCase(name);
	const auto* found = std::find_if(std::begin(fileSystems), std::end(fileSystems),
		[&](const NamedFileSystem& fileSystem) { return fileSystem.name == lowerName; });
	return found == std::end(fileSystems) ? FileSystemType::unknown : found->type;
}

std::string VolumeEventMonitor::fileSystemTypeName(const VolumeInfo& volume)
{
	const auto found = std::find_if(std::rbegin(fileSystems), std::rend(fileSystems),
		[&](const NamedFileSystem& fileSystem) { return fileSystem.type == volume.fsType; });
	return found == std::rend(fileSystems) ? std::string() : found->name;
}
} // namespace Kiln
