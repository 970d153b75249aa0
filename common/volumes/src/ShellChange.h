// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What the shell tells a window of drives and media.
#pragma once

#include "../../platform/ItemList.h"
#include <optional>
#include <string>

namespace Kiln
{
/** The message by which a window is told. */
constexpr UINT shellChangeMessage = WM_USER + 200;

/** The folder of all drives; null when the shell does not know it. */
ItemList computerFolder();

/** Has a window told of drives and media that come and go in the folder. @return an identifier; 0 on failure */
ULONG registerForShellChanges(HWND window, PCIDLIST_ABSOLUTE folder);

/** A change, by the parameters of its message. The shell keeps it as long as the object lives. */
class ShellChange
{
public:
	ShellChange(WPARAM first, LPARAM second);

	/** Leaves this thread without windows for critical errors. */
	~ShellChange();
	ShellChange(const ShellChange&) = delete;
	ShellChange& operator=(const ShellChange&) = delete;

	/** One of the SHCNE_ codes; 0 for a message that is not the shell's. */
	LONG event() const { return event_; }

	/** Where it happened; nothing for a message that is not the shell's, and for a place outside the file system. */
	std::optional<std::wstring> path() const;

private:
	PIDLIST_ABSOLUTE item_ = nullptr;
	LONG event_ = 0;
	HANDLE lock_ = nullptr;
};
} // namespace Kiln
