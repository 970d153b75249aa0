// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <chrono>
#include <kiln/VolumeNotification.h>

namespace Kiln
{
VolumeNotification::VolumeNotification(const VolumeInfo& changedVolume)
	: volume(changedVolume)
	, timestamp(
		  std::chrono::duration_cast<std::chrono::seconds>(std::chrono::system_clock::now().time_since_epoch()).count())
{
}
} // namespace Kiln
