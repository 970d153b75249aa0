// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The library's own log: named components that write lines to files or to the console.
#pragma once

#include <cstdint>
#include <fstream>
#include <kiln/LoggingComponent.h>
#include <map>
#include <memory>
#include <string>

namespace Kiln
{
/**
 * Owns the components and the files they write to. Any thread may call any operation; each holds the registry lock, which
 * comes before a component's lock, which comes before the lock of a file or of the console. Names and paths are UTF-8;
 * names are told apart byte by byte, and an empty one is a name like others.
 */
class Logger
{
public:
	/**
	 * The process-wide logger: the installed one, or one made at the first call and never destroyed. Process-wide means
	 * once for each image that holds this library. Holds no lock.
	 * @throws std::runtime_error "Could not construct logger" when memory is out
	 */
	static Logger& instance();

	/**
	 * Installs a logger of the caller's own as the process-wide one. It stays the caller's, and must outlive all use.
	 * @throws std::runtime_error "Logger has already been initialized with an class instance" when there is one already,
	 *         installed or made by instance()
	 */
	static void setInstance(Logger& logger);

	Logger() = default;
	Logger(const Logger&) = delete;
	Logger& operator=(const Logger&) = delete;

	/**
	 * The component of that name, created at the first call with the default level and the file set for its name, else the
	 * default file. It stays the logger's. Without a file, and with one that cannot be opened, it is silent; the next
	 * component for the same file tries again.
	 * @return never null here; a logger derived from this one may return null for "do not log"
	 */
	virtual LoggingComponent* component(const std::string& name);

	/** Destroys the component that has the given one's name; no other thread may use it any more. @return false for null */
	virtual bool removeComponent(LoggingComponent* component);

	/** Destroys the component of that name; no other thread may use it any more. @return whether there was one */
	virtual bool removeComponent(const std::string& name);

	/**
	 * Makes a component, created if needed, write to the standard output, or error, at the default level. Lines of all
	 * components on the console share one lock.
	 */
	virtual void redirectToConsole(const std::string& name);
	virtual void redirectToErrorConsole(const std::string& name);

	/** Destroys all components and closes all files. */
	virtual ~Logger();

	/** The file of components that have none of their own; empty for none. Counts for components created later. */
	void setDefaultLogFile(const std::string& path);

	/**
	 * The file of one component, by name; an empty path for none. Counts for components created later. Files are extended,
	 * their missing folders are created. Components share a file when their paths are the same once absolute and in lower
	 * case; links are not followed. The C library bounds how many files are open, 512 by default.
	 */
	void setComponentFile(const std::string& name, const std::string& path);

	/** The level that components get when they are created or redirected; 0 at first. */
	void setDefaultLevel(std::uint32_t level);
	std::uint32_t defaultLevel();

	/**
	 * Closes all log files. The components that wrote to one are left with a stream that is gone: they must not log until
	 * they are redirected, given a stream, or removed and made anew.
	 */
	void closeAllFiles();

private:
	struct OpenFile
	{
		std::ofstream stream;
		Lock lock;
	};

	const std::string& fileOf(const std::string& name) KILN_REQUIRES(registryLock_);
	OpenFile* openFile(const std::string& path) KILN_REQUIRES(registryLock_);
	void redirect(const std::string& name, std::ostream& console);

	std::map<std::string, std::unique_ptr<LoggingComponent>> components_ KILN_GUARDED_BY(registryLock_);
	Lock registryLock_;
	Lock consoleLock_;
	std::string defaultLogFile_ KILN_GUARDED_BY(registryLock_);
	std::map<std::string, std::string> componentFiles_ KILN_GUARDED_BY(registryLock_);

	/** By pathKey. */
	std::map<std::string, OpenFile> openFiles_ KILN_GUARDED_BY(registryLock_);
	std::uint32_t defaultLevel_ KILN_GUARDED_BY(registryLock_) = LogLevel::debug;
};
} // namespace Kiln
