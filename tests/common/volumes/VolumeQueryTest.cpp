// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "FakeComputer.h"

#include <gtest/gtest.h>
#include <kiln/VolumeEventMonitor.h>
#include <winioctl.h>

namespace
{
using Kiln::FileSystemType;
using Kiln::VolumeEventMonitor;
using Kiln::VolumeInfo;

VolumeInfo query(const std::wstring& path, int expectedResult = 1)
{
	VolumeInfo volume;
	volume.name = volume.identifier = volume.volumeKey = "of before";
	volume.canEject = true;
	EXPECT_EQ(VolumeEventMonitor::queryVolumeInfo(path, volume), expectedResult);
	return volume;
}

TEST(VolumeQuery, FillsTheRecordOfTheDriveThatHoldsThePath)
{
	const FakeComputer computer({
		{.paths = {L"C:\\"},
			.label = L"System",
			.capacity = 1000,
			.available = 10,
			.device = FakeDevice{"WD-1", false, 3}},
		{.paths = {L"E:\\"}, .fileSystem = L"FAT32", .device = FakeDevice{"S\xFF", true}},
		{.paths = {L"F:\\"}, .label = L"\xD800 \u00FC", .fileSystem = L"CDFS", .flags = FILE_READ_ONLY_VOLUME},
		{.paths = {L"Z:\\"}, .label = L"share", .driveType = DRIVE_REMOTE, .capacity = ~0ull, .available = ~0ull},
	});
	const VolumeInfo fixed = query(L"c:\\Users\\x");
	EXPECT_EQ(fixed.name, "System");
	EXPECT_EQ(fixed.identifier, "WD-1;3");
	EXPECT_EQ(fixed.mountPath, "C:");
	EXPECT_EQ(fixed.fsType, FileSystemType::ntfs);
	EXPECT_EQ(fixed.capacity, 1000u);
	EXPECT_EQ(fixed.availableBytes, 10u);
	EXPECT_FALSE(fixed.isRemovable || fixed.isReadOnly || fixed.isNetwork || fixed.canEject);
	EXPECT_EQ(fixed.auxiliaryText1 + fixed.volumeKey, "");

	const VolumeInfo stick = query(L"E:");
	EXPECT_EQ(stick.name, "Untitled");
	EXPECT_EQ(stick.identifier, "S\xEF\xBF\xBD;1") << "no partition number, and no text that is not UTF-8";
	EXPECT_EQ(stick.fsType, FileSystemType::fat);
	EXPECT_TRUE(stick.isRemovable);

	const VolumeInfo disc = query(L"\\\\?\\F:\\x");
	EXPECT_EQ(disc.name, "\xEF\xBF\xBD \xC3\xBC");
	EXPECT_EQ(disc.identifier, "");
	EXPECT_TRUE(disc.isReadOnly);

	const VolumeInfo share = query(L"Z:\\");
	EXPECT_EQ(share.mountPath, "Z:");
	EXPECT_EQ(share.capacity, ~0ull);
	EXPECT_TRUE(share.isNetwork);
}

TEST(VolumeQuery, WithoutADriveLetterTheRecordStaysAsItIs)
{
	for (const wchar_t* path : {L"", L"x", L"\\\\server\\share", L"\\\\?\\Volume{1}\\", L"\\", L"1:\\"})
	{
		const VolumeInfo volume = query(path, -256);
		EXPECT_EQ(volume.name, "of before");
		EXPECT_TRUE(volume.canEject);
	}
}

TEST(VolumeQuery, FileSystemsHaveNumbersAndTexts)
{
	struct Row
	{
		const wchar_t* name;
		FileSystemType type;
		const char* text;
	};
	const Row rows[] = {
		{L"HFS", FileSystemType::hfs, "hfs"},
		{L"MSDOS", FileSystemType::fat, "fat"},
		{L"NTFS", FileSystemType::ntfs, "ntfs"},
		{L"nTfS", FileSystemType::ntfs, "ntfs"},
		{L"FAT32", FileSystemType::fat, "fat"},
		{L"fat", FileSystemType::fat, "fat"},
		{L"Nfs", FileSystemType::nfs, "nfs"},
		{L"SMB", FileSystemType::smb, "smb"},
		{L"AFP", FileSystemType::afp, "afp"},
		{L"", FileSystemType::unknown, ""},
		{L"exFAT", FileSystemType::unknown, ""},
		{L"ReFS", FileSystemType::unknown, ""},
		{L"FAT3", FileSystemType::unknown, ""},
		{L"NTFS ", FileSystemType::unknown, ""},
	};
	for (const Row& row : rows)
	{
		const FakeComputer computer({FakeVolume{.paths = {L"C:\\"}, .fileSystem = row.name}});
		const VolumeInfo volume = query(L"C:\\");
		EXPECT_EQ(volume.fsType, row.type) << row.text;
		EXPECT_EQ(VolumeEventMonitor::fileSystemTypeName(volume), row.text);
	}
	VolumeInfo odd;
	odd.fsType = static_cast<FileSystemType>(7);
	EXPECT_EQ(VolumeEventMonitor::fileSystemTypeName(odd), "");
}

TEST(VolumeQuery, SerialNumbersComeFromWithinTheAnswerAlone)
{
	constexpr DWORD head = sizeof(STORAGE_DEVICE_DESCRIPTOR);
	struct Row
	{
		FakeDevice device;
		std::string identifier;
	};
	const Row rows[] = {
		{{"", true, 1}, ";1"},
		{{"text", false, 2, 0}, ";2"},
		{{"text", false, 2, head + 2}, "xt;2"},
		{{"text", false, 2, head + 4}, ";2"},
		{{"text", false, 2, 1023}, ";2"},
		{{"text", false, 2, 1024}, ";2"},
		{{"text", false, 2, 0xFFFFFFFF}, ";2"},
		{{std::string("a\0b", 3), false, 4294967295}, "a;4294967295"},
		{{std::string(2000, 'x'), false, 2}, std::string(1024 - head, 'x') + ";2"},
	};
	for (const Row& row : rows)
	{
		const FakeComputer computer({FakeVolume{.paths = {L"C:\\"}, .device = row.device}});
		const VolumeInfo volume = query(L"C:\\");
		EXPECT_EQ(volume.identifier, row.identifier);
		EXPECT_EQ(volume.isRemovable, row.device.isRemovable);
	}
}

TEST(VolumeQuery, AVolumeThatCannotBeReadHasItsMountPathAlone)
{
	FakeComputer computer(
		{FakeVolume{.paths = {L"C:\\"}, .label = L"a", .capacity = 1, .device = FakeDevice{"1", true}},
			{.paths = {L"D:\\"}, .label = std::wstring(260, L'x')},
			{.paths = {L"E:\\"}, .fileSystem = std::wstring(255, L'x')},
			{.paths = {L"F:\\"}, .label = std::wstring(259, L'x'), .fileSystem = std::wstring(254, L'x')}});
	computer.fail("GetVolumeInformationW", ERROR_NOT_READY);
	for (const wchar_t* path : {L"C:\\", L"D:\\", L"E:\\", L"Q:\\"})
	{
		const VolumeInfo volume = query(path, 0);
		EXPECT_EQ(volume.mountPath, std::string(1, static_cast<char>(*path)) + ":");
		EXPECT_EQ(volume.name + volume.identifier + volume.volumeKey, "");
		EXPECT_EQ(volume.capacity, 0u);
		EXPECT_FALSE(volume.isRemovable || volume.canEject);
	}
	EXPECT_EQ(query(L"F:").name, std::string(259, 'x'));
}

TEST(VolumeQuery, WhatFailsLaterLeavesItsMembersEmpty)
{
	FakeComputer computer({FakeVolume{
		.paths = {L"C:\\"}, .label = L"a", .capacity = 1, .available = 1, .device = FakeDevice{"s", true, 7}}});
	computer.fail("GetDiskFreeSpaceExW", ERROR_NOT_READY);
	const VolumeInfo withoutSpace = query(L"C:");
	EXPECT_EQ(withoutSpace.capacity + withoutSpace.availableBytes, 0u);
	EXPECT_EQ(withoutSpace.identifier, "s;7");

	computer.fail("CreateFileW", ERROR_ACCESS_DENIED);
	const VolumeInfo withoutDevice = query(L"C:");
	EXPECT_EQ(withoutDevice.identifier, "");
	EXPECT_FALSE(withoutDevice.isRemovable);
	EXPECT_EQ(withoutDevice.capacity, 1u);

	computer.failControl(IOCTL_STORAGE_QUERY_PROPERTY, ERROR_NOT_SUPPORTED);
	EXPECT_EQ(query(L"C:").identifier, "");
	computer.failControl(IOCTL_DISK_GET_PARTITION_INFO_EX, ERROR_NOT_SUPPORTED);
	EXPECT_EQ(query(L"C:").identifier, "s;1");
	EXPECT_EQ(query(L"C:").identifier, "s;7");
}

TEST(VolumeQuery, NoWindowAsksForAMediumAndTheThreadIsLeftAsItWas)
{
	FakeComputer computer({FakeVolume{.paths = {L"C:\\"}}});
	DWORD during = 0;
	computer.onQuery = [&](const std::wstring&) { during = GetThreadErrorMode(); };
	for (const int result : {1, 0})
	{
		computer.fail("GetVolumeInformationW", ERROR_NOT_READY, 1 - result);
		SetThreadErrorMode(SEM_NOOPENFILEERRORBOX, nullptr);
		query(L"C:", result);
		EXPECT_EQ(during, static_cast<DWORD>(SEM_FAILCRITICALERRORS));
		EXPECT_EQ(GetThreadErrorMode(), static_cast<DWORD>(SEM_NOOPENFILEERRORBOX));
	}
	SetThreadErrorMode(0, nullptr);
}
} // namespace
