// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Contained.h"
#include <kiln/Logger.h>
#include <locale>
#include <sstream>

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

	/**
	 * Writes a warning of texts and numbers one after the other, or nothing where the logger has no component, or no memory.
	 * To be called while an object lives.
	 */
	template <class... Parts>
	static void warn(const Parts&... parts) noexcept
	{
		contained(
			[&]
			{
				if (LoggingComponent* const log = Logger::instance().component(componentName))
				{
					std::ostringstream line;
					line.imbue(std::locale::classic());
					(log->warning(line) << ... << parts);
					log->log(line.str(), LogLevel::warning);
				}
			});
	}

private:
	static constexpr const char* componentName = "VolumeEventMonitor";
};
} // namespace Kiln
