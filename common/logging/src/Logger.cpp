// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <atomic>
#include <iostream>
#include <kiln/FileStreams.h>
#include <kiln/Folders.h>
#include <kiln/LockGuard.h>
#include <kiln/Logger.h>
#include <kiln/Paths.h>
#include <new>
#include <stdexcept>

namespace Kiln
{
namespace
{
/** Set once. Not owned: threads may log until the very end of the process. */
std::atomic<Logger*> installed = nullptr;

/** Makes the logger the process-wide one unless there is one already. */
bool install(Logger& logger)
{
	Logger* none = nullptr;
	return installed.compare_exchange_strong(none, &logger);
}
} // namespace

Logger& Logger::instance()
{
	if (!installed)
	{
		std::unique_ptr<Logger> made(new (std::nothrow) Logger);
		if (!made)
		{
			throw std::runtime_error("Could not construct logger");
		}
		if (install(*made))
		{
			made.release();
		}
	}
	return *installed;
}

void Logger::setInstance(Logger& logger)
{
	if (!install(logger))
	{
		throw std::runtime_error("Logger has already been initialized with an class instance");
	}
}

Logger::~Logger()
{
	const LockGuard guard(registryLock_);
	components_.clear();
	openFiles_.clear();
}

LoggingComponent* Logger::component(const std::string& name)
{
	const LockGuard guard(registryLock_);
	if (const auto known = components_.find(name); known != components_.end())
	{
		return known->second.get();
	}
	// Entered last: what fails before leaves no half-made component.
	auto created = std::make_unique<LoggingComponent>(*this, name);
	if (OpenFile* const file = openFile(fileOf(name)))
	{
		created->setStream(file->stream, file->lock);
	}
	created->setLevel(defaultLevel_);
	return components_.emplace(name, std::move(created)).first->second.get();
}

bool Logger::removeComponent(LoggingComponent* component)
{
	// By copy: the name goes with the component.
	return component && removeComponent(std::string(component->name()));
}

bool Logger::removeComponent(const std::string& name)
{
	const LockGuard guard(registryLock_);
	return components_.erase(name) > 0;
}

void Logger::redirectToConsole(const std::string& name)
{
	redirect(name, std::cout);
}

void Logger::redirectToErrorConsole(const std::string& name)
{
	redirect(name, std::cerr);
}

void Logger::setDefaultLogFile(const std::string& path)
{
	const LockGuard guard(registryLock_);
	defaultLogFile_ = path;
}

void Logger::setComponentFile(const std::string& name, const std::string& path)
{
	const LockGuard guard(registryLock_);
	componentFiles_[name] = path;
}

void Logger::setDefaultLevel(std::uint32_t level)
{
	const LockGuard guard(registryLock_);
	defaultLevel_ = level;
}

std::uint32_t Logger::defaultLevel()
{
	const LockGuard guard(registryLock_);
	return defaultLevel_;
}

void Logger::closeAllFiles()
{
	const LockGuard guard(registryLock_);
	openFiles_.clear();
}

const std::string& Logger::fileOf(const std::string& name)
{
	const auto own = componentFiles_.find(name);
	return own != componentFiles_.end() ? own->second : defaultLogFile_;
}

Logger::OpenFile* Logger::openFile(const std::string& path)
{
	if (path.empty())
	{
		return nullptr;
	}
	const std::string key = pathKey(path);
	if (const auto known = openFiles_.find(key); known != openFiles_.end())
	{
		return &known->second;
	}
	const std::string absolute = absolutePath(path);
	createFolders(parentOf(absolute));
	std::ofstream stream = openOutput(absolute, std::ios::out | std::ios::app);
	if (!stream.is_open())
	{
		return nullptr;
	}
	OpenFile& file = openFiles_[key];
	file.stream = std::move(stream);
	return &file;
}

void Logger::redirect(const std::string& name, std::ostream& console)
{
	const LockGuard guard(registryLock_);
	auto known = components_.find(name);
	if (known == components_.end())
	{
		known = components_.emplace(name, std::make_unique<LoggingComponent>(*this, name)).first;
	}
	known->second->setStream(console, consoleLock_);
	known->second->setLevel(defaultLevel_);
}
} // namespace Kiln
