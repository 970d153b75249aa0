// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "FakeComputer.h"

#include <gtest/gtest.h>
#include <kiln/VolumeEventMonitor.h>
#include <sstream>
#include <winioctl.h>

namespace
{
using Kiln::VolumeEventMonitor;
using Kiln::VolumeInfo;

/** The result of a query and the whole record; what is false or empty leaves nothing. */
std::string query(const std::wstring& path)
{
	VolumeInfo volume;
	volume.name = volume.volumeKey = "of before";
	volume.canEject = true;
	std::ostringstream text;
	text << VolumeEventMonitor::queryVolumeInfo(path, volume) << " " << volume.mountPath << " '" << volume.name << "' "
		 << volume.identifier << " " << VolumeEventMonitor::fileSystemTypeName(volume) << " " << volume.availableBytes
		 << " of " << volume.capacity << (volume.isRemovable ? " removable" : "") << (volume.isReadOnly ? " fixed" : "")
		 << (volume.isNetwork ? " network" : "") << (volume.canEject ? " ejects" : "") << volume.auxiliaryText1
		 << volume.volumeKey;
	return text.str();
}

struct Row
{
	std::wstring path;
	std::string text;
};

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
	const Row rows[] = {
		{L"c:\\Users\\x", "1 C: 'System' WD-1;3 ntfs 10 of 1000"},
		// No partition number, and no text that is not UTF-8.
		{L"E:", "1 E: 'Untitled' S\xEF\xBF\xBD;1 fat 0 of 0 removable"},
		{L"\\\\?\\F:\\x", "1 F: '\xEF\xBF\xBD \xC3\xBC'   0 of 0 fixed"},
		{L"Z:\\", "1 Z: 'share'  ntfs 18446744073709551615 of 18446744073709551615 network"},
		{L"\\\\?\\Volume{1}\\", "-256  'of before'   0 of 0 ejectsof before"},
		{L"\\\\server\\share", "-256  'of before'   0 of 0 ejectsof before"},
	};
	for (const Row& row : rows)
	{
		EXPECT_EQ(query(row.path), row.text);
	}
}

TEST(VolumeQuery, FileSystemsHaveNumbersAndTexts)
{
	const std::pair<std::wstring, std::string> rows[] = {{L"HFS", "hfs 1"}, {L"nTfS", "ntfs 2"}, {L"MSDOS", "fat 3"},
		{L"FAT32", "fat 3"}, {L"fat", "fat 3"}, {L"Nfs", "nfs 4"}, {L"SMB", "smb 5"}, {L"AFP", "afp 6"},
		{L"exFAT", " 0"}, {L"NTFS ", " 0"}};
	for (const auto& [name, type] : rows)
	{
		const FakeComputer computer({FakeVolume{.paths = {L"C:\\"}, .fileSystem = name}});
		VolumeInfo volume;
		VolumeEventMonitor::queryVolumeInfo(L"C:\\", volume);
		EXPECT_EQ(VolumeEventMonitor::fileSystemTypeName(volume) + " " + std::to_string(int(volume.fsType)), type);
	}
}

TEST(VolumeQuery, SerialNumbersComeFromWithinTheAnswerAlone)
{
	constexpr DWORD head = sizeof(STORAGE_DEVICE_DESCRIPTOR);
	const std::pair<FakeDevice, std::string> rows[] = {
		{{"", true, 1}, ";1"},
		{{"text", true, 2, 0}, ";2"},
		{{"text", true, 2, head + 2}, "xt;2"},
		{{"text", true, 2, 0xFFFFFFFF}, ";2"},
		{{std::string("a\0b", 3), true, 4294967295}, "a;4294967295"},
		{{std::string(2000, 'x'), true, 2}, std::string(1024 - head, 'x') + ";2"},
	};
	for (const auto& [device, identifier] : rows)
	{
		const FakeComputer computer({FakeVolume{.paths = {L"C:\\"}, .device = device}});
		EXPECT_EQ(query(L"C:\\"), "1 C: 'Untitled' " + identifier + " ntfs 0 of 0 removable");
	}
}

TEST(VolumeQuery, WhatCannotBeReadIsLeftOut)
{
	FakeComputer computer({
		{.paths = {L"C:\\"},
			.label = L"a",
			.capacity = 1,
			.available = 1,
			.device = FakeDevice{.serial = "s", .isRemovable = true, .partition = 7}},
		{.paths = {L"D:\\"}, .label = std::wstring(260, L'x')},
		{.paths = {L"E:\\"}, .fileSystem = std::wstring(255, L'x')},
		{.paths = {L"F:\\"}, .label = std::wstring(259, L'x'), .fileSystem = std::wstring(254, L'x')},
	});
	const Row volumes[] = {
		{L"D:\\", "0 D: ''   0 of 0"},
		{L"E:\\", "0 E: ''   0 of 0"},
		{L"F:", "1 F: '" + std::string(259, 'x') + "'   0 of 0"},
	};
	for (const Row& row : volumes)
	{
		EXPECT_EQ(query(row.path), row.text);
	}
	const std::pair<const char*, const char*> failures[] = {
		{"GetVolumeInformationW", "0 C: ''   0 of 0"},
		{"GetDiskFreeSpaceExW", "1 C: 'a' s;7 ntfs 0 of 0 removable"},
		{"CreateFileW", "1 C: 'a'  ntfs 1 of 1"},
	};
	for (const auto& [function, text] : failures)
	{
		computer.fail(function, ERROR_NOT_READY);
		EXPECT_EQ(query(L"C:"), text) << function;
	}
	computer.failControl(IOCTL_STORAGE_QUERY_PROPERTY, ERROR_NOT_SUPPORTED);
	EXPECT_EQ(query(L"C:"), "1 C: 'a'  ntfs 1 of 1");
	computer.failControl(IOCTL_DISK_GET_PARTITION_INFO_EX, ERROR_NOT_SUPPORTED);
	EXPECT_EQ(query(L"C:"), "1 C: 'a' s;1 ntfs 1 of 1 removable");
}

TEST(VolumeQuery, NoWindowAsksForAMediumAndTheThreadIsLeftAsItWas)
{
	FakeComputer computer({FakeVolume{.paths = {L"C:\\"}}});
	DWORD during = 0;
	computer.onQuery = [&](const std::wstring&) { during = GetThreadErrorMode(); };
	for (const int failures : {0, 1})
	{
		computer.fail("GetVolumeInformationW", ERROR_NOT_READY, failures);
		SetThreadErrorMode(SEM_NOOPENFILEERRORBOX, nullptr);
		query(L"C:");
		EXPECT_EQ(during, static_cast<DWORD>(SEM_FAILCRITICALERRORS));
		EXPECT_EQ(GetThreadErrorMode(), static_cast<DWORD>(SEM_NOOPENFILEERRORBOX));
	}
	SetThreadErrorMode(0, nullptr);
}
} // namespace
