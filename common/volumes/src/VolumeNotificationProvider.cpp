// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <kiln/LockGuard.h>
#include <kiln/VolumeNotificationProvider.h>

namespace Kiln
{
void VolumeNotificationProvider::notifyVolumeMounted(const VolumeMountedNotification& notification)
{
	const LockGuard guard(lock_);
	for (VolumeObserver* observer : observers_)
	{
		observer->volumeMounted(notification);
	}
}

void VolumeNotificationProvider::notifyVolumeUnmounted(const VolumeUnmountedNotification& notification)
{
	const LockGuard guard(lock_);
	for (VolumeObserver* observer : observers_)
	{
		observer->volumeUnmounted(notification);
	}
}

void VolumeNotificationProvider::addObserver(VolumeObserver* observer)
{
	const LockGuard guard(lock_);
	if (observer)
	{
		observers_.insert(observer);
	}
}

void VolumeNotificationProvider::removeObserver(VolumeObserver* observer)
{
	const LockGuard guard(lock_);
	observers_.erase(observer);
}
} // namespace Kiln
