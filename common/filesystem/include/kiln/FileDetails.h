// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <kiln/SerializableJsonObject.h>
#include <string>

namespace Kiln
{
/**
 * A JSON object that describes one file as it was at construction: "path" (as given), "extension" (without dot),
 * "filesize_human", "filesize" (bytes), "modtime" and "createTime" (seconds since the epoch), in this order.
 * Of a missing file it has the path, the extension, "0 B" and zeros.
 */
class FileDetails : public SerializableJsonObject
{
public:
	/** @param path UTF-8 */
	explicit FileDetails(const std::string& path);
};
} // namespace Kiln
