// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Failing.h"
#include <algorithm>
#include <kiln/Drives.h>
#include <vector>
#include <winioctl.h>

namespace
{
TEST(Drives, NumberRootAndDevice)
{
	const std::pair<std::string, int> rows[] = {
		{"A:", 0},
		{"z:/\xC3\xBC", 25},
		{"\\\\?\\D:\\x", 3},
		{"\\\\server\\share", -1},
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

TEST(EjectDrive, StepsEndAtTheFirstThatFailsAndTheLockIsTriedTwentyTimes)
{
	constexpr DWORD lock = FSCTL_LOCK_VOLUME;
	constexpr DWORD dismount = FSCTL_DISMOUNT_VOLUME;
	constexpr DWORD allow = IOCTL_STORAGE_MEDIA_REMOVAL;
	constexpr DWORD eject = IOCTL_STORAGE_EJECT_MEDIA;
	using Steps = std::vector<DWORD>;
	struct Row
	{
		std::size_t failedLocks;
		DWORD failing;
		int result;
		Steps locked;
	};
	const Row rows[] = {
		{0, 0, 1, {dismount, allow, eject}},
		{0, eject, 1, {dismount, allow, eject}},
		{0, allow, 1, {dismount, allow}},
		{0, dismount, 0, {dismount}},
		{19, 0, 1, {dismount, allow, eject}},
		{20, 0, 0, {}},
	};
	for (const Row& row : rows)
	{
		SCOPED_TRACE(std::to_string(row.failedLocks) + " " + std::to_string(row.failing));
		const HANDLE handle = CreateEventW(nullptr, TRUE, FALSE, nullptr);
		Steps asked;
		Steps slept;
		const ImportOverride open("CreateFileW", &CreateFileW,
			[&](const wchar_t* name, DWORD access, DWORD share, SECURITY_ATTRIBUTES*, DWORD creation, auto...)
			{
				EXPECT_STREQ(name, L"\\\\.\\C:");
				EXPECT_EQ(access, GENERIC_READ);
				EXPECT_EQ(share, static_cast<DWORD>(FILE_SHARE_READ | FILE_SHARE_WRITE));
				EXPECT_EQ(creation, static_cast<DWORD>(OPEN_EXISTING));
				return handle;
			});
		const ImportOverride control("DeviceIoControl", &DeviceIoControl,
			[&](HANDLE device, DWORD code, void* input, DWORD size, auto...) -> BOOL
			{
				EXPECT_EQ(device, handle);
				EXPECT_EQ(size, code == allow ? 1u : 0u);
				EXPECT_TRUE(code != allow || *static_cast<const unsigned char*>(input) == 0);
				asked.push_back(code);
				return code == lock ? asked.size() > row.failedLocks : code != row.failing;
			});
		ImportOverride sleep("Sleep", &Sleep, [&](DWORD milliseconds) { slept.push_back(milliseconds); });
		sleep.allowNoCall();
		EXPECT_EQ(Kiln::ejectDrive("c:/\xC3\xBC"), row.result);
		const std::size_t locks = std::min<std::size_t>(row.failedLocks + 1, 20);
		EXPECT_EQ(slept, Steps(locks - 1, 500)) << "half a second between two of them";
		Steps expected(locks, lock);
		expected.insert(expected.end(), row.locked.begin(), row.locked.end());
		EXPECT_EQ(asked, expected);
		EXPECT_TRUE(isClosed(handle));
	}
}

TEST(EjectDrive, WithoutADevice)
{
	EXPECT_EQ(Kiln::ejectDrive("\\\\server\\share"), -256);
	const auto refused = failing("CreateFileW", &CreateFileW, ERROR_ACCESS_DENIED, INVALID_HANDLE_VALUE);
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
