// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <kiln/Url.h>
#include <kiln/VolumeInfo.h>

namespace Kiln
{
namespace
{
/** What comes and goes with its drive or connection. */
bool isPassing(const VolumeInfo& volume)
{
	return volume.isRemovable || volume.isNetwork;
}

const char* displayIcon(const VolumeInfo& volume)
{
	const FileSystemType type = isPassing(volume) ? FileSystemType::unknown : volume.fsType;
	switch (type)
	{
	case FileSystemType::hfs:
		return "/content/images/Hard_Disk_White_Apple.png";
	case FileSystemType::ntfs:
	case FileSystemType::fat:
		return "/content/images/Hard_Disk_White_Windows.png";
	default:
		return "/content/images/Hard_Disk_White.png";
	}
}
} // namespace

bool VolumeInfo::toJson(json::Object& out) const
{
	out["name"] = json::String(name);
	out["resource"] = json::String(pathToFileUrl(mountPath));
	out["isRemovable"] = json::Boolean(isRemovable);
	out["isNetwork"] = json::Boolean(isNetwork);
	out["isReadOnly"] = json::Boolean(isReadOnly);
	out["canEject"] = json::Boolean(canEject);
	out["capacity"] = json::Number(static_cast<double>(capacity));
	out["availableBytes"] = json::Number(static_cast<double>(availableBytes));
	out["fsType"] = json::Number(static_cast<double>(fsType));
	out["displayIcon"] = json::String(displayIcon(*this));
	out["supportsReferenceTransfers"] = json::Boolean(true);
	out["preferredTransferMode"] = json::String(isPassing(*this) ? "copy" : "reference");
	return true;
}

std::unique_ptr<VolumeInfo> VolumeInfo::clone() const
{
	return std::make_unique<VolumeInfo>(*this);
}
} // namespace Kiln
