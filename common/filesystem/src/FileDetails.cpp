// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <kiln/FileDetails.h>
#include <kiln/FileInformation.h>
#include <kiln/Paths.h>

namespace Kiln
{
FileDetails::FileDetails(const std::string& path)
{
	const std::uint64_t size = fileSize(path);
	json::Object& members = *this;
	members["path"] = json::String(path);
	members["extension"] = json::String(extensionOf(path));
	members["filesize_human"] = json::String(formatFileSize(size));
	members["filesize"] = json::Number(static_cast<double>(size));
	members["modtime"] = json::Number(static_cast<double>(fileModificationTime(path)));
	members["createTime"] = json::Number(static_cast<double>(fileCreationTime(path)));
}
} // namespace Kiln
