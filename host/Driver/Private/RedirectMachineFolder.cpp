// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "RedirectMachineFolder.h"

#include <filesystem>
#include <windows.h>

namespace
{
/** A key that goes with the last process that uses it; null when it cannot be made. */
HKEY MakeKey(HKEY Parent, const std::wstring& Name)
{
	HKEY Key = nullptr;
	RegCreateKeyExW(Parent, Name.c_str(), 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS, nullptr, &Key, nullptr);
	return Key;
}
} // namespace

bool RedirectMachineFolder(const FString& Folder)
{
	std::error_code Ignored;
	const std::filesystem::path Path = std::filesystem::absolute(*Folder).make_preferred();
	std::filesystem::create_directories(Path, Ignored);

	// The platform reads the folder from the machine's registry: this process gets a registry of its own instead. The
	// platform would make the second key itself, but not a volatile one, which a volatile parent refuses.
	const std::wstring Explorer = L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";
	HKEY Machine = MakeKey(HKEY_CURRENT_USER, L"Software\\HeadlessEditor\\" + std::to_wstring(GetCurrentProcessId()));
	HKEY UserShellFolders = MakeKey(Machine, Explorer + L"User Shell Folders");
	HKEY ShellFolders = MakeKey(Machine, Explorer + L"Shell Folders");
	const std::wstring Value = Path.wstring();
	const bool bDone =
		Machine && UserShellFolders && ShellFolders &&
		RegSetValueExW(UserShellFolders, L"Common AppData", 0, REG_SZ, reinterpret_cast<const BYTE*>(Value.c_str()),
			static_cast<DWORD>((Value.size() + 1) * sizeof(wchar_t))) == ERROR_SUCCESS &&
		RegOverridePredefKey(HKEY_LOCAL_MACHINE, Machine) == ERROR_SUCCESS;
	for (HKEY Key : {ShellFolders, UserShellFolders, Machine})
	{
		RegCloseKey(Key);
	}
	return bDone;
}
