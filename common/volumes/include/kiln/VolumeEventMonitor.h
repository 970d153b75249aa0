// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <kiln/VolumeInfo.h>
#include <kiln/VolumeNotificationProvider.h>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace Kiln
{
/**
 * Watches the volumes of the computer: reports those present at the start as mounted, then what the shell announces. All
 * reports come from a thread of the monitor's own, which also does the queries, without a lock. Warnings go to the log
 * component "VolumeEventMonitor".
 *
 * Lifetime: the destructor ends the thread and waits for it, at most for what runs at that moment: one query, an observer's
 * call, the listing of all mount points, or a call of the shell or of COM that sets the thread up. It must not run on the
 * monitor's thread, nor with a lock that an observer takes, nor while the system loads or unloads a library: so a monitor
 * started by a library is destroyed before that is unloaded, not by its global objects. When the process ends, the thread is
 * gone before, and nothing is waited for. The destructor calls CoUninitialize on the thread that it runs on. A class that
 * overrides an operation calls stop() in its own destructor.
 *
 * One monitor works in a process at a time. A second one warns, reports nothing and may be destroyed at any moment; the log
 * component goes with the last one.
 */
class VolumeEventMonitor : public VolumeNotificationProvider
{
public:
	/** Nothing runs yet. Throws what Logger::instance does. */
	VolumeEventMonitor();
	~VolumeEventMonitor() override;

	/**
	 * Starts the thread. What fails on it is logged; the monitor then reports nothing.
	 * @return false when it was started or stopped before
	 * @throws std::system_error with std::errc::resource_unavailable_try_again when there is no thread to be had
	 */
	bool start();

	/** Enters the volume in the table of mounted volumes under its volumeKey, in place of any other, then tells observers. */
	void notifyVolumeMounted(const VolumeMountedNotification& notification) override;

	/** Takes what has the volume's volumeKey out of the table, then tells observers. */
	void notifyVolumeUnmounted(const VolumeUnmountedNotification& notification) override;

	/**
	 * The table of mounted volumes, in the order of its keys. Queries leave the key empty, so that of the volumes that the
	 * monitor itself reports, the table holds the one mounted last, and none after any unmount. Safe on any thread.
	 */
	std::vector<std::shared_ptr<const VolumeInfo>> mountedVolumes() const;

	/**
	 * Replaces the list by the mount paths of all volumes: those of local volumes, then the roots of network drives; a drive
	 * as "E:\". What cannot be read is logged and left out. Safe on any thread.
	 * @return their number
	 */
	std::size_t listMountPoints(std::vector<std::string>& out) const;

	/**
	 * Fills a record for the volume that holds a path. May take seconds for a drive of a network; holds no lock. Safe on any
	 * thread.
	 * @return 1; 0 when the volume cannot be read, with a record that has its mountPath alone; a negative number for a path
	 *         without a drive letter, with the record as it was
	 */
	static int queryVolumeInfo(const std::wstring& path, VolumeInfo& out);

	/** The name of the record's fsType, as "ntfs"; empty when it is unknown. */
	static std::string fileSystemTypeName(const VolumeInfo& volume);

protected:
	/** Ends the thread, as the destructor does, and for good. Not on the monitor's thread. */
	void stop();

private:
	class Listener;

	mutable Lock tableLock_;
	std::map<std::string, std::shared_ptr<const VolumeInfo>> mounted_ KILN_GUARDED_BY(tableLock_);
	const std::unique_ptr<Listener> listener_;
};
} // namespace Kiln
