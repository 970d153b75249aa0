// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "MachineFolder.h"

#include "CoreMinimal.h"

#include "Windows/AllowWindowsPlatformTypes.h"

#include <shlobj.h>

#include "Windows/HideWindowsPlatformTypes.h"

#include <string_view>

namespace
{
/** The product's name as a component of folder paths. */
constexpr std::string_view BundleIdentifier = "com.vantor.look";
static_assert(BundleIdentifier.size() == 15);

/** From the system's code page. */
std::string ToUtf8(const char* Narrow)
{
	wchar_t Wide[MAX_PATH] = {};
	MultiByteToWideChar(CP_ACP, 0, Narrow, -1, Wide, MAX_PATH);
	return TCHAR_TO_UTF8(Wide);
}
} // namespace

std::string StringFileFolder()
{
	char ApplicationData[MAX_PATH] = {};
	if (FAILED(SHGetFolderPathA(nullptr, CSIDL_COMMON_APPDATA, nullptr, SHGFP_TYPE_CURRENT, ApplicationData)))
	{
		return std::string();
	}
	return ToUtf8(ApplicationData) + "\\Vantor\\" + std::string(BundleIdentifier) + "\\translations\\unreal";
}
