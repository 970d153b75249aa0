// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

namespace Kiln
{
class VolumeMountedNotification;
class VolumeUnmountedNotification;

/**
 * Is told of volumes that come and go. Calls come on the thread that notifies (a monitor's own) with the provider's lock
 * held, one after the other; the notification is gone after the call. An observer must neither add nor remove observers from inside a call, nor
 * wait there for a thread that does, or that destroys the provider.
 */
class VolumeObserver
{
public:
	virtual ~VolumeObserver() = default;
	virtual void volumeMounted(const VolumeMountedNotification& notification) = 0;
	virtual void volumeUnmounted(const VolumeUnmountedNotification& notification) = 0;
};
} // namespace Kiln
