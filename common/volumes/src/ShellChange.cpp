// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "ShellChange.h"
#include <cstring>

namespace Kiln
{
namespace
{
constexpr int sources = SHCNRF_InterruptLevel | SHCNRF_ShellLevel | SHCNRF_NewDelivery;
constexpr LONG events = SHCNE_MEDIAINSERTED | SHCNE_MEDIAREMOVED | SHCNE_DRIVEREMOVED | SHCNE_DRIVEADD;

struct TextFreer
{
	void operator()(wchar_t* text) const { CoTaskMemFree(text); }
};

struct InterfaceReleaser
{
	void operator()(IUnknown* object) const { object->Release(); }
};
} // namespace

ItemList computerFolder()
{
	PIDLIST_ABSOLUTE folder = nullptr;
	const HRESULT result = SHGetFolderLocation(nullptr, CSIDL_DRIVES, nullptr, 0, &folder);
	return ItemList(SUCCEEDED(result) ? folder : nullptr);
}

ULONG registerForShellChanges(HWND window, PCIDLIST_ABSOLUTE folder)
{
	const SHChangeNotifyEntry entry{folder, FALSE}; // not what is below its items
	return SHChangeNotifyRegister(window, sources, events, shellChangeMessage, 1, &entry);
}

ShellChange::ShellChange(WPARAM first, LPARAM second)
{
	PIDLIST_ABSOLUTE* items = nullptr;
	lock_ = SHChangeNotification_Lock(reinterpret_cast<HANDLE>(first), static_cast<DWORD>(second), &items, &event_);
	if (lock_ && items)
	{
		// The shell's memory need not be aligned for pointers.
		std::memcpy(&item_, static_cast<const void*>(items), sizeof item_);
	}
}

ShellChange::~ShellChange()
{
	if (lock_)
	{
		SHChangeNotification_Unlock(lock_);
		SetThreadErrorMode(SEM_FAILCRITICALERRORS, nullptr);
	}
}

std::optional<std::wstring> ShellChange::path() const
{
	if (!item_)
	{
		return {};
	}
	SetThreadErrorMode(SEM_FAILCRITICALERRORS, nullptr);
	IShellItem2* item = nullptr;
	if (FAILED(SHCreateItemFromIDList(item_, IID_PPV_ARGS(&item))))
	{
		return {};
	}
	const std::unique_ptr<IShellItem2, InterfaceReleaser> releaser(item);
	wchar_t* text = nullptr;
	if (FAILED(item->GetDisplayName(SIGDN_FILESYSPATH, &text)))
	{
		return {};
	}
	return std::unique_ptr<wchar_t, TextFreer>(text).get();
}
} // namespace Kiln
