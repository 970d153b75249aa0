// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <chrono>
#include <gtest/gtest.h>
#include <kiln/VolumeNotification.h>
#include <sstream>

namespace
{
using Kiln::FileSystemType;
using Kiln::VolumeInfo;

std::string textOf(const VolumeInfo& volume)
{
	std::ostringstream stream;
	EXPECT_TRUE(volume.serialize(stream));
	return stream.str();
}

TEST(VolumeInfo, WritesItsMembersInOrder)
{
	VolumeInfo volume;
	volume.name = "S\xC3\xBC\xC3\x9F \"1\"";
	volume.identifier = volume.auxiliaryText1 = volume.volumeKey = "not written";
	volume.mountPath = "E:";
	volume.fsType = FileSystemType::fat;
	volume.isRemovable = volume.canEject = true;
	volume.capacity = 1ull << 52;
	volume.availableBytes = 123456789012345;
	EXPECT_EQ(textOf(volume), "{\n"
							  "\t\"name\" : \"S\xC3\xBC\xC3\x9F \\\"1\\\"\",\n"
							  "\t\"resource\" : \"file://localhost/E:\",\n"
							  "\t\"isRemovable\" : true,\n"
							  "\t\"isNetwork\" : false,\n"
							  "\t\"isReadOnly\" : false,\n"
							  "\t\"canEject\" : true,\n"
							  "\t\"capacity\" : 4503599627370496,\n"
							  "\t\"availableBytes\" : 123456789012345,\n"
							  "\t\"fsType\" : 3,\n"
							  "\t\"displayIcon\" : \"/content/images/Hard_Disk_White.png\",\n"
							  "\t\"supportsReferenceTransfers\" : true,\n"
							  "\t\"preferredTransferMode\" : \"copy\"\n"
							  "}");
}

TEST(VolumeInfo, IconAndTransferModeDependOnTheDriveThenOnTheFileSystem)
{
	// By the number of the file system.
	const char* const endings[] = {"", "_Apple", "_Windows", "_Windows", "", "", "", ""};
	for (int row = 0; row < 32; ++row)
	{
		const bool isFixed = row % 4 == 0;
		VolumeInfo volume;
		volume.fsType = static_cast<FileSystemType>(row / 4);
		volume.isRemovable = row & 1;
		volume.isReadOnly = volume.isNetwork = row & 2;
		json::Object object;
		EXPECT_TRUE(volume.toJson(object));
		EXPECT_EQ(object["fsType"], json::Number(row / 4));
		EXPECT_EQ(object["displayIcon"],
			json::String("/content/images/Hard_Disk_White" + std::string(isFixed ? endings[row / 4] : "") + ".png"));
		EXPECT_EQ(object["preferredTransferMode"], json::String(isFixed ? "reference" : "copy"));
	}
}

TEST(VolumeInfo, ClonesAndNotificationsAreCopiesOfTheirOwn)
{
	VolumeInfo volume;
	volume.name = volume.volumeKey = "before";
	volume.isNetwork = true;
	const std::string before = textOf(volume);
	const std::unique_ptr<VolumeInfo> clone = volume.clone();
	const auto now = [] { return std::chrono::system_clock::now().time_since_epoch() / std::chrono::seconds(1); };
	const std::int64_t earliest = now();
	const Kiln::VolumeMountedNotification notification(volume);
	EXPECT_GE(notification.timestamp, earliest);
	EXPECT_LE(notification.timestamp, now());
	EXPECT_EQ(notification.text, "");
	volume.name = volume.volumeKey = "after";
	EXPECT_EQ(textOf(*clone) + clone->volumeKey, before + "before");
	EXPECT_EQ(textOf(notification.volume), before);
}
} // namespace
