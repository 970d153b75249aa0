// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "VolumeListener.h"
#include <kiln/LockGuard.h>
#include <kiln/VolumeNotification.h>

namespace Kiln
{
VolumeEventMonitor::VolumeEventMonitor() : listener_(std::make_unique<Listener>(*this)) {}

VolumeEventMonitor::~VolumeEventMonitor()
{
	stop();
}

bool VolumeEventMonitor::start()
{
	return listener_->start();
}

void VolumeEventMonitor::stop()
{
	listener_->stop();
}

void VolumeEventMonitor::notifyVolumeMounted(const VolumeMountedNotification& notification)
{
	{
		// Declared before the guard, so that a replaced copy is released without the lock.
		std::shared_ptr<const VolumeInfo> volume = notification.volume.clone();
		const LockGuard guard(tableLock_);
		mounted_[volume->volumeKey].swap(volume);
	}
	VolumeNotificationProvider::notifyVolumeMounted(notification);
}

void VolumeEventMonitor::notifyVolumeUnmounted(const VolumeUnmountedNotification& notification)
{
	{
		const LockGuard guard(tableLock_);
		mounted_.erase(notification.volume.volumeKey);
	}
	VolumeNotificationProvider::notifyVolumeUnmounted(notification);
}

std::vector<std::shared_ptr<const VolumeInfo>> VolumeEventMonitor::mountedVolumes() const
{
	const LockGuard guard(tableLock_);
	std::vector<std::shared_ptr<const VolumeInfo>> volumes;
	volumes.reserve(mounted_.size());
	for (const auto& [key, volume] : mounted_)
	{
		volumes.push_back(volume);
	}
	return volumes;
}
} // namespace Kiln
