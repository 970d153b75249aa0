// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "VolumeLog.h"
#include <kiln/LockGuard.h>

namespace Kiln
{
namespace
{
struct Users
{
	Lock lock;
	int count KILN_GUARDED_BY(lock) = 0;
};

/** Never destroyed: a monitor may live until the very end of the process. */
Users& users()
{
	static Users& all = *new Users;
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
} // namespace Kiln
