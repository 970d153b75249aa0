// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <kiln/Lock.h>
#include <kiln/VolumeObserver.h>
#include <set>

namespace Kiln
{
/**
 * Tells registered observers of volumes that come and go. Any thread may call any operation; each holds the provider's lock
 * until it returns, so that an observer is not called any more once removeObserver has returned.
 */
class VolumeNotificationProvider
{
public:
	VolumeNotificationProvider() = default;
	VolumeNotificationProvider(const VolumeNotificationProvider&) = delete;
	VolumeNotificationProvider& operator=(const VolumeNotificationProvider&) = delete;
	virtual ~VolumeNotificationProvider() = default;

	/** Calls volumeMounted of all observers in the order of their addresses. What one throws passes through at once. */
	virtual void notifyVolumeMounted(const VolumeMountedNotification& notification);

	/** The same with volumeUnmounted. */
	virtual void notifyVolumeUnmounted(const VolumeUnmountedNotification& notification);

	/** Adds an observer, which stays the caller's and must live until it is removed; does nothing for null or a second time. */
	virtual void addObserver(VolumeObserver* observer);

	/** Removes an observer; does nothing when it is not there. */
	virtual void removeObserver(VolumeObserver* observer);

private:
	Lock lock_;
	std::set<VolumeObserver*, std::less<>> observers_ KILN_GUARDED_BY(lock_);
};
} // namespace Kiln
