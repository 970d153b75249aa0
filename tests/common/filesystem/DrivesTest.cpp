// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Failing.h"
#include <kiln/Drives.h>
#include <winioctl.h>

namespace
{
TEST(Drives, NumberRootAndDevice)
{
	const std::pair<std::string, int> rows[] = {
		{"z:/\xC3\xBC", 25},
		{"\\\\?\\D:\\x", 3},
		{"\\\\server\\share", -1},
		{std::string("C\0:", 3), -1},
	};
	for (const auto& [path, number] : rows)
	{
		EXPECT_EQ(Kiln::driveNumber(path), number) << path;
	}
	EXPECT_EQ(Kiln::driveRoot(0) + Kiln::driveRoot(25), "A:\\Z:\\");
	EXPECT_EQ(Kiln::devicePath(2), "\\\\.\\C:");
	EXPECT_EQ(Kiln::driveRoot(-1) + Kiln::driveRoot(26) + Kiln::devicePath(-1) + Kiln::devicePath(26), "");
}

TEST(EjectDrive, StepsEndAtTheFirstThatFailsAndTheLockIsTriedTwentyTimes)
{
	const std::map<DWORD, std::string> names = {{FSCTL_LOCK_VOLUME, "lock "}, {FSCTL_DISMOUNT_VOLUME, "dismount "},
		{IOCTL_STORAGE_MEDIA_REMOVAL, "allow "}, {IOCTL_STORAGE_EJECT_MEDIA, "eject "}};
	struct Row
	{
		int failedLocks;
		std::string failing;
		int result;
		std::string steps;
	};
	std::string nineteen;
	for (int attempt = 0; attempt < 19; ++attempt)
	{
		nineteen += "lock 500 ";
	}
	const Row rows[] = {
		{0, "eject ", 1, "lock dismount allow eject "},
		{0, "allow ", 1, "lock dismount allow "},
		{0, "dismount ", 0, "lock dismount "},
		{19, "none", 1, nineteen + "lock dismount allow eject "},
		{20, "none", 0, nineteen + "lock "},
	};
	for (const Row& row : rows)
	{
		const HANDLE handle = CreateEventW(nullptr, TRUE, FALSE, nullptr);
		std::string steps;
		int locks = 0;
		const ImportOverride open("CreateFileW", &CreateFileW,
			[&](const wchar_t* name, DWORD access, DWORD share, SECURITY_ATTRIBUTES*, DWORD creation, auto...)
			{
				EXPECT_EQ(std::tuple(std::wstring(name), access, share, creation),
					std::tuple(L"\\\\.\\C:", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING));
				return handle;
			});
		const ImportOverride control("DeviceIoControl", &DeviceIoControl,
			[&](HANDLE device, DWORD code, void* input, DWORD size, auto...) -> BOOL
			{
				const std::string& name = names.at(code);
				steps += name;
				const bool isAllowed = size == 1 && *static_cast<const unsigned char*>(input) == 0;
				EXPECT_TRUE(device == handle && (name == "allow " ? isAllowed : size == 0)) << name;
				return name == "lock " ? locks++ >= row.failedLocks : name != row.failing;
			});
		ImportOverride sleep("Sleep", &Sleep, [&](DWORD milliseconds) { steps += std::to_string(milliseconds) + " "; });
		sleep.allowNoCall();
		EXPECT_EQ(Kiln::ejectDrive("c:/\xC3\xBC"), row.result);
		EXPECT_EQ(steps, row.steps);
		EXPECT_TRUE(isClosed(handle));
	}
}

} // namespace
