// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// One named part of a log: writes lines to a stream and drops those below its level. A line is built in a stream of the
// caller's own, then logged:
//
//     if (Kiln::LoggingComponent* log = Kiln::Logger::instance().component("VolumeEventMonitor"))
//     {
//         std::ostringstream line;
//         log->warning(line) << "Could not open " << path;
//         log->log(line.str(), Kiln::LogLevel::warning);
//     }
//
// gives "26-11-14 03:36:50 [WRN] VolumeEventMonitor: Could not open C:\x".
#pragma once

#include <cstdint>
#include <iosfwd>
#include <kiln/Lock.h>
#include <memory>
#include <string>

namespace Kiln
{
class Logger;

/** Levels of lines, and of components: a component drops what is below its own. A level above critical drops all. */
namespace LogLevel
{
inline constexpr std::uint32_t debug = 0;
inline constexpr std::uint32_t information = 1;
inline constexpr std::uint32_t warning = 2;
inline constexpr std::uint32_t error = 3;
inline constexpr std::uint32_t critical = 4;
} // namespace LogLevel

/**
 * Texts are written as they are: UTF-8, with the newlines that they hold. Any thread may call any operation, setStream
 * included, as long as the component exists.
 */
class LoggingComponent
{
public:
	/** A component without a stream: it writes nothing, until it gets one. The logger must outlive it. */
	LoggingComponent(Logger& logger, std::string name);
	LoggingComponent(const LoggingComponent&) = delete;
	LoggingComponent& operator=(const LoggingComponent&) = delete;

	/** Destroys the stream if the component owns it. Not while another thread uses the component. */
	virtual ~LoggingComponent();

	/**
	 * Writes the message and a newline, unless the level is below the component's. The line is with the system when the
	 * call returns, and whole, whatever other threads write. A failed write is told by nothing but the stream's state; a
	 * failed stream takes no further lines. Holds the component's lock and the stream's while it writes, so the stream
	 * itself must not call a logger.
	 */
	virtual void log(const std::string& message, std::uint32_t level);

	/**
	 * Writes the head of a line: the local time with a resolution of one second, the level's mark, the component's name and
	 * ": ". Takes no lock, whatever the component's level.
	 * @param stream the caller's own @return the same stream
	 */
	virtual std::ostream& info(std::ostream& stream);
	virtual std::ostream& debug(std::ostream& stream);
	virtual std::ostream& critical(std::ostream& stream);
	virtual std::ostream& error(std::ostream& stream);
	virtual std::ostream& warning(std::ostream& stream);

	/** The lowest level that is written; at first 0, which lets all through. */
	virtual void setLevel(std::uint32_t level);
	virtual std::uint32_t level();

	/** Takes over a stream, with a new lock for it; null makes the component silent. Destroys the one it owned before. */
	void setStream(std::unique_ptr<std::ostream> stream);

	/**
	 * Writes to a stream of somebody else's, holding a lock that all writers of the stream share. Both must stay until the
	 * component gets another stream or is destroyed. Destroys the stream that the component owned before.
	 */
	void setStream(std::ostream& stream, Lock& lock);

	Logger& logger() const { return logger_; }
	const std::string& name() const { return name_; }

private:
	void replaceStream(std::ostream* stream, Lock* lock, bool owns);
	void releaseStream() KILN_REQUIRES(lock_);

	Logger& logger_;
	const std::string name_;

	/** Guards the fields below; taken before the stream's lock. */
	Lock lock_;
	std::ostream* stream_ KILN_GUARDED_BY(lock_) = nullptr;
	Lock* streamLock_ KILN_GUARDED_BY(lock_) = nullptr;
	bool ownsStream_ KILN_GUARDED_BY(lock_) = false;
	std::uint32_t level_ KILN_GUARDED_BY(lock_) = LogLevel::debug;
};
} // namespace Kiln
