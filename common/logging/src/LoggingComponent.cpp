// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "TimeStamp.h"

#include <kiln/LockGuard.h>
#include <kiln/LoggingComponent.h>
#include <ostream>
#include <utility>

namespace Kiln
{
namespace
{
std::ostream& writeHead(std::ostream& stream, std::string_view mark, const std::string& name)
{
	return stream << timeStamp() << mark << name << ": ";
}
} // namespace

LoggingComponent::LoggingComponent(Logger& logger, std::string name) : logger_(logger), name_(std::move(name)) {}

LoggingComponent::~LoggingComponent()
{
	releaseStream();
}

void LoggingComponent::log(const std::string& message, std::uint32_t level)
{
	const LockGuard guard(lock_);
	if (level < level_ || !stream_)
	{
		return;
	}
	const LockGuard streamGuard(*streamLock_);
	*stream_ << message << std::endl << std::flush;
}

std::ostream& LoggingComponent::info(std::ostream& stream)
{
	return writeHead(stream, "[INF] ", name_);
}

std::ostream& LoggingComponent::debug(std::ostream& stream)
{
	return writeHead(stream, "[DBG] ", name_);
}

std::ostream& LoggingComponent::critical(std::ostream& stream)
{
	return writeHead(stream, "[CRT] ", name_);
}

std::ostream& LoggingComponent::error(std::ostream& stream)
{
	return writeHead(stream, "[ERR] ", name_);
}

std::ostream& LoggingComponent::warning(std::ostream& stream)
{
	return writeHead(stream, "[WRN] ", name_);
}

void LoggingComponent::setLevel(std::uint32_t level)
{
	const LockGuard guard(lock_);
	level_ = level;
}

std::uint32_t LoggingComponent::level()
{
	const LockGuard guard(lock_);
	return level_;
}

void LoggingComponent::setStream(std::unique_ptr<std::ostream> stream)
{
	std::unique_ptr<Lock> lock = stream ? std::make_unique<Lock>() : nullptr;
	replaceStream(stream.release(), lock.release(), true);
}

void LoggingComponent::setStream(std::ostream& stream, Lock& lock)
{
	replaceStream(&stream, &lock, false);
}

void LoggingComponent::replaceStream(std::ostream* stream, Lock* lock, bool owns)
{
	const LockGuard guard(lock_);
	releaseStream();
	stream_ = stream;
	streamLock_ = lock;
	ownsStream_ = owns;
}

void LoggingComponent::releaseStream()
{
	if (ownsStream_)
	{
		delete stream_;
		delete streamLock_;
	}
}
} // namespace Kiln
