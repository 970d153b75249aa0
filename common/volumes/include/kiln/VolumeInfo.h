// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <kiln/Serializable.h>
#include <memory>
#include <string>

namespace Kiln
{
/** What a volume is formatted as. The numbers are those of the JSON member "fsType". */
enum class FileSystemType : std::uint32_t
{
	unknown = 0,
	hfs = 1,
	ntfs = 2,
	fat = 3,
	nfs = 4,
	smb = 5,
	afp = 6,
};

/** A mounted volume, as a user interface shows it. Texts are UTF-8. Not safe for use by several threads while one writes. */
class VolumeInfo : public Serializable
{
public:
	/**
	 * Fills an object with "name", "resource" (the mount path as a file URL), "isRemovable", "isNetwork", "isReadOnly",
	 * "canEject", "capacity", "availableBytes", "fsType" (a number), "displayIcon", "supportsReferenceTransfers" and
	 * "preferredTransferMode", in this order.
	 * @return true
	 * @throws UrlException when the mount path holds "://"
	 */
	bool toJson(json::Object& out) const override;

	/** A copy on the heap, of the object's own class where that overrides this. */
	virtual std::unique_ptr<VolumeInfo> clone() const;

	/** The label; "Untitled" for a volume without one. */
	std::string name;

	/** The device's serial number, ";" and the partition's number; empty when the device does not answer. */
	std::string identifier;

	/** Not filled by queries and not part of the JSON text. */
	std::string auxiliaryText1;

	/** The key of the monitor's table of mounted volumes. Not filled by queries and not part of the JSON text. */
	std::string volumeKey;

	/** Without a separator at its end, as "E:". */
	std::string mountPath;

	FileSystemType fsType = FileSystemType::unknown;

	/** The device's media can be taken out. */
	bool isRemovable = false;
	bool isReadOnly = false;
	bool isNetwork = false;

	/** Not filled by queries. */
	bool canEject = false;

	/** Bytes in all, and bytes that this process's user may still use; 0 when unknown. */
	std::uint64_t capacity = 0;
	std::uint64_t availableBytes = 0;
};
} // namespace Kiln
