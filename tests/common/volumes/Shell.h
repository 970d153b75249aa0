// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "ImportOverride.h"

#include <shlobj.h>
#include <string>

/** Announces a change of a drive, as L"E:\\", by the shell's own means. */
inline void announce(LONG event, const std::wstring& path)
{
	SHChangeNotify(event, SHCNF_PATHW, path.c_str(), nullptr);
}

/** Calls the hook before each call of a platform function, which is passed on. */
template <class Result, class... Arguments, class Hook>
auto hooked(const char* name, Result (*function)(Arguments...), Hook hook)
{
	return ImportOverride(name, function,
		[function, hook](Arguments... arguments)
		{
			hook();
			return function(arguments...);
		});
}

/** Counts the calls of a platform function. */
template <class Result, class... Arguments>
auto counted(const char* name, Result (*function)(Arguments...))
{
	return hooked(name, function, [] {});
}

/**
 * Has registrations with the shell include all that is below the folder: Wine announces to those alone what happens to the
 * folder's direct children. Everything else is passed on as it is.
 */
inline auto watchBelow()
{
	return ImportOverride("SHChangeNotifyRegister", &SHChangeNotifyRegister,
		[real = &SHChangeNotifyRegister](
			HWND window, int sources, LONG events, UINT message, int count, const SHChangeNotifyEntry* entry)
		{
			EXPECT_NE(window, nullptr);
			EXPECT_EQ(sources, 0x8003);
			EXPECT_EQ(events, 0x1E0);
			EXPECT_EQ(message, 0x4C8u);
			EXPECT_EQ(count, 1);
			EXPECT_EQ(entry->fRecursive, FALSE);
			SHChangeNotifyEntry all = *entry;
			all.fRecursive = TRUE;
			return real(window, sources, events, message, 1, &all);
		});
}

inline HWND monitorWindow()
{
	return FindWindowW(L"VolumeEventMonitor", nullptr);
}
