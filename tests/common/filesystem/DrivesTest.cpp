// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "ImportOverride.h"
#include <algorithm>
#include <kiln/Drives.h>
#include <map>
#include <vector>
#include <winioctl.h>

namespace
{
TEST(Drives, NumberRootAndDevice)
{
	const std::pair<std::string, int> rows[] = {
		{"A:", 0},
		{"c:\\x", 2},
		{"Z:/\xC3\xBC", 25},
		{"\\\\?\\D:\\x", 3},
		{"\\\\server\\share", -1},
		{"x", -1},
		{"", -1},
		{std::string("C\0:", 3), -1},
	};
	for (const auto& [path, number] : rows)
	{
		EXPECT_EQ(Kiln::driveNumber(path), number) << path;
	}
	EXPECT_EQ(Kiln::driveRoot(0), "A:\\");
	EXPECT_EQ(Kiln::driveRoot(25), "Z:\\");
	EXPECT_EQ(Kiln::devicePath(2), "\\\\.\\C:");
	for (const int number : {-1, 26, -256})
	{
		EXPECT_EQ(Kiln::driveRoot(number), "");
		EXPECT_EQ(Kiln::devicePath(number), "");
	}
}

/** A device that fails each control code so many times, and keeps what was asked of it. */
struct FakeDevice
{
	std::map<DWORD, int> failures;
	std::vector<DWORD> asked = {};
	std::vector<DWORD> slept = {};
	std::wstring opened = {};
	HANDLE handle = CreateEventW(nullptr, TRUE, FALSE, nullptr);

	/** @return the result of ejectDrive */
	int eject(const std::string& path)
	{
		const ImportOverride open("CreateFileW", &CreateFileW,
			[&](const wchar_t* name, DWORD access, DWORD share, SECURITY_ATTRIBUTES*, DWORD creation, DWORD, HANDLE)
			{
				opened = name;
				EXPECT_EQ(access, GENERIC_READ);
				EXPECT_EQ(share, static_cast<DWORD>(FILE_SHARE_READ | FILE_SHARE_WRITE));
				EXPECT_EQ(creation, static_cast<DWORD>(OPEN_EXISTING));
				return handle;
			});
		const ImportOverride control("DeviceIoControl", &DeviceIoControl,
			[&](HANDLE device, DWORD code, void* input, DWORD size, void*, DWORD, DWORD*, OVERLAPPED*) -> BOOL
			{
				EXPECT_EQ(device, handle);
				const bool removal = code == IOCTL_STORAGE_MEDIA_REMOVAL;
				EXPECT_EQ(size, removal ? 1u : 0u);
				EXPECT_TRUE(!removal || *static_cast<const unsigned char*>(input) == 0);
				asked.push_back(code);
				return --failures[code] < 0;
			});
		return Kiln::ejectDrive(path);
	}

	bool isClosed() const
	{
		DWORD flags = 0;
		return !GetHandleInformation(handle, &flags);
	}
};

TEST(EjectDrive, StepsEndAtTheFirstThatFails)
{
	constexpr DWORD lock = FSCTL_LOCK_VOLUME;
	constexpr DWORD dismount = FSCTL_DISMOUNT_VOLUME;
	constexpr DWORD allow = IOCTL_STORAGE_MEDIA_REMOVAL;
	constexpr DWORD eject = IOCTL_STORAGE_EJECT_MEDIA;
	struct Row
	{
		std::map<DWORD, int> failures;
		int result;
		std::vector<DWORD> asked;
	};
	const Row rows[] = {
		{{}, 1, {lock, dismount, allow, eject}},
		{{{eject, 1}}, 1, {lock, dismount, allow, eject}},
		{{{allow, 1}}, 1, {lock, dismount, allow}},
		{{{dismount, 1}}, 0, {lock, dismount}},
	};
	for (const Row& row : rows)
	{
		FakeDevice device{row.failures};
		EXPECT_EQ(device.eject("c:/\xC3\xBC"), row.result);
		EXPECT_EQ(device.asked, row.asked);
		EXPECT_EQ(device.opened, L"\\\\.\\C:");
		EXPECT_TRUE(device.isClosed());
	}
}

TEST(EjectDrive, TriesTwentyTimesHalfASecondApart)
{
	for (const int failures : {1, 19, 20, 1000})
	{
		FakeDevice device{{{FSCTL_LOCK_VOLUME, failures}}};
		const ImportOverride sleep("Sleep", &Sleep, [&](DWORD milliseconds) { device.slept.push_back(milliseconds); });
		const bool locked = failures < 20;
		EXPECT_EQ(device.eject("C:"), locked ? 1 : 0);
		EXPECT_EQ(
			std::count(device.asked.begin(), device.asked.end(), DWORD{FSCTL_LOCK_VOLUME}), locked ? failures + 1 : 20);
		EXPECT_EQ(device.slept, std::vector<DWORD>(locked ? static_cast<std::size_t>(failures) : 19, 500));
		EXPECT_TRUE(device.isClosed());
	}
}

TEST(EjectDrive, WithoutADevice)
{
	for (const char* path : {"", "x", "\\\\server\\share", "/"})
	{
		EXPECT_LT(Kiln::ejectDrive(path), 0);
	}
	EXPECT_EQ(Kiln::ejectDrive(""), -256);

	const ImportOverride refused("CreateFileW", &CreateFileW,
		[](const wchar_t*, DWORD, DWORD, SECURITY_ATTRIBUTES*, DWORD, DWORD, HANDLE)
		{
			SetLastError(ERROR_ACCESS_DENIED);
			return INVALID_HANDLE_VALUE;
		});
	EXPECT_EQ(Kiln::ejectDrive("C:"), 0);

	const ImportOverride network("GetDriveTypeW", &GetDriveTypeW,
		[](const wchar_t* root)
		{
			EXPECT_STREQ(root, L"N:\\");
			return static_cast<UINT>(DRIVE_REMOTE);
		});
	EXPECT_EQ(Kiln::ejectDrive("N:\\x"), 0);
	EXPECT_EQ(refused.calls(), 1);
}
} // namespace
