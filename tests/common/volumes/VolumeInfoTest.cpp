// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <chrono>
#include <gtest/gtest.h>
#include <kiln/UrlException.h>
#include <kiln/VolumeNotification.h>
#include <sstream>

namespace
{
using Kiln::FileSystemType;
using Kiln::VolumeInfo;

std::string text(const json::Object& object, const std::string& name)
{
	return static_cast<const json::String&>(object[name]).Value();
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
	std::ostringstream stream;
	EXPECT_TRUE(volume.serialize(stream));
	EXPECT_EQ(stream.str(), "{\n"
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
	for (int type = 0; type < 8; ++type)
	{
		for (const int drive : {0, 1, 2, 3})
		{
			VolumeInfo volume;
			volume.fsType = static_cast<FileSystemType>(type);
			volume.isRemovable = drive & 1;
			volume.isNetwork = drive & 2;
			json::Object object;
			EXPECT_TRUE(volume.toJson(object));
			const std::string ending = drive == 0 ? endings[type] : "";
			EXPECT_EQ(text(object, "displayIcon"), "/content/images/Hard_Disk_White" + ending + ".png");
			EXPECT_EQ(text(object, "preferredTransferMode"), drive == 0 ? "reference" : "copy");
			EXPECT_EQ(object["fsType"], json::Number(type));
		}
	}
}

TEST(VolumeInfo, AMountPathThatIsAUrlIsRefused)
{
	VolumeInfo volume;
	volume.mountPath = "file://localhost/E:";
	std::ostringstream stream;
	EXPECT_THROW(volume.serialize(stream), Kiln::UrlException);
	EXPECT_EQ(stream.str(), "");
}

TEST(VolumeInfo, ClonesAndNotificationsAreCopiesOfTheirOwn)
{
	VolumeInfo volume;
	volume.name = "before";
	volume.volumeKey = "key";
	volume.isNetwork = true;
	const std::unique_ptr<VolumeInfo> clone = volume.clone();
	const auto now = [] { return std::chrono::system_clock::now().time_since_epoch() / std::chrono::seconds(1); };
	const std::int64_t earliest = now();
	const Kiln::VolumeMountedNotification notification(volume);
	EXPECT_GE(notification.timestamp, earliest);
	EXPECT_LE(notification.timestamp, now());
	EXPECT_EQ(notification.text, "");
	volume.name = "after";
	for (const VolumeInfo& copy : {*clone, notification.volume})
	{
		EXPECT_EQ(copy.name, "before");
		EXPECT_EQ(copy.volumeKey, "key");
		EXPECT_TRUE(copy.isNetwork);
	}
}
} // namespace
