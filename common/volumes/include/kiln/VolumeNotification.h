// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <kiln/VolumeInfo.h>
#include <string>

namespace Kiln
{
/** A volume came or went. */
class VolumeNotification
{
public:
	/** Copies the record and takes the time. */
	explicit VolumeNotification(const VolumeInfo& changedVolume);
	virtual ~VolumeNotification() = default;

	/** UTF-8; empty in all notifications of VolumeEventMonitor. */
	std::string text;

	VolumeInfo volume;

	/** When the notification was made, in seconds since the epoch (1970-01-01 00:00 UTC). */
	std::int64_t timestamp;
};

class VolumeMountedNotification : public VolumeNotification
{
public:
	using VolumeNotification::VolumeNotification;
};

class VolumeUnmountedNotification : public VolumeNotification
{
public:
	using VolumeNotification::VolumeNotification;
};
} // namespace Kiln
