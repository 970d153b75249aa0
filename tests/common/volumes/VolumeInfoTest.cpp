// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <kiln/VolumeInfo.h>
#include <sstream>

namespace
{
using Kiln::FileSystemType;
using Kiln::VolumeInfo;

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
	std::ostringstream text;
	EXPECT_TRUE(volume.serialize(text));
	EXPECT_EQ(text.str(), "{\n"
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
		EXPECT_EQ(object["displayIcon"],
			json::String("/content/images/Hard_Disk_White" + std::string(isFixed ? endings[row / 4] : "") + ".png"));
		EXPECT_EQ(object["preferredTransferMode"], json::String(isFixed ? "reference" : "copy"));
	}
}
} // namespace
