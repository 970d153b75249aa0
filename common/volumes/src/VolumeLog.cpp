// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "VolumeLog.h"
#include "Contained.h"
#include <kiln/LockGuard.h>
#include <kiln/Logger.h>
#include <sstream>

namespace Kiln
{
namespace
{
constexpr const char* componentName = "VolumeEventMonitor";

struct Users
{
	Lock lock;
	int count KILN_GUARDED_BY(lock) = 0;
};

/** Made with the first user, and so destroyed after those that live until the process ends. */
Users& users()
{
	static Users all;
	return all;
}
} // namespace

VolumeLog::VolumeLog()
{
	const LockGuard guard(users().lock);
	Logger::instance().component(componentName);
	++users().count;
}

VolumeLog::~VolumeLog()
{
	const LockGuard guard(users().lock);
	if (--users().count == 0)
	{
		contained([] { Logger::instance().removeComponent(componentName); });
	}
}

void VolumeLog::warn(const std::string& text) noexcept
{
	contained(
		[&]
		{
			if (LoggingComponent* log = Logger::instance().component(componentName))
			{
				std::ostringstream line;
				log->warning(line) << text;
				log->log(line.str(), LogLevel::warning);
			}
		});
}
} // namespace Kiln
