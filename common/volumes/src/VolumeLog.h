// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Kiln
{
/**
 * The log component of all monitors in the image: there from the beginning of the first object's life to the end of the
 * last one's. Safe on any thread.
 */
class VolumeLog
{
public:
	VolumeLog();
	~VolumeLog();
	VolumeLog(const VolumeLog&) = delete;
	VolumeLog& operator=(const VolumeLog&) = delete;

	/** Writes a warning, or nothing where the logger has no component. To be called while an object lives. */
	static void warn(const std::string& text) noexcept;
};
} // namespace Kiln
