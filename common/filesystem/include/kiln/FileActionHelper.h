// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace Kiln
{
/**
 * What a user does with files through the shell. Texts are UTF-8 and reach the shell as they are given: no quotes are
 * added, no environment variables are filled in. An empty path, or a text that holds a NUL, gives false before the shell is
 * asked. The calls may show windows and run for long; they are safe on any thread.
 */
class FileActionHelper
{
public:
	/** Flags of runProgram. */
	static constexpr std::uint32_t Elevated = 1;
	static constexpr std::uint32_t WaitForEnd = 2;

	virtual ~FileActionHelper() = default;

	/** Opens a document in its program. @return whether the shell found and started one */
	static bool openDocument(const std::string& path);

	/** Opens a document, or a program with command-line parameters. */
	static bool openDocument(const std::string& path, const std::string& parameters);

	/** Opens the file's folder with the file selected. @return false also when the file is missing */
	static bool revealInFolder(const std::string& path);

	/**
	 * Runs a program in a visible window. Where it cannot be started, the shell tells the user in a window of its own.
	 * @param parameters the command line behind the program's name, may be empty
	 * @param directory the program's current folder, this process's if empty
	 * @param flags Elevated asks the user for an administrator's rights, WaitForEnd returns after the program's end
	 * @return whether the program was started
	 */
	static bool runProgram(
		const std::string& program, const std::string& parameters, const std::string& directory, std::uint32_t flags);

	/**
	 * Has the shell move a file or folder to the recycle bin, without a question or an error window; where the drive has no
	 * bin, the shell deletes it. The shell's flags (0x1654) include the one against recursion, FOF_NORECURSION, which is
	 * described for patterns alone: a folder that is moved to the bin takes its content along. Whether one that is deleted
	 * does is not known.
	 * @return false, with nothing done, for the root of a drive or share, for a drive alone, for a path whose last name is
	 *         of dots and blanks alone, for one with "*" or "?" (which the shell would take for a pattern, so also for one
	 *         that begins with "\\?\") and for one of more than 259 characters
	 */
	static bool moveToRecycleBin(const std::string& path);
};
} // namespace Kiln
