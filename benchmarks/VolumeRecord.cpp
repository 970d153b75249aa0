// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A volume's record as JSON text, beside the same tree built and written by hand.
#include "Subject.h"

#include <cajun/json/writer.h>
#include <kiln/VolumeInfo.h>
#include <sstream>

namespace
{
Kiln::VolumeInfo makeVolume()
{
	Kiln::VolumeInfo volume;
	volume.name = "Gr\xC3\xBCner Stick";
	volume.mountPath = "E:";
	volume.fsType = Kiln::FileSystemType::fat;
	volume.isRemovable = true;
	volume.capacity = 64'013'467'648;
	volume.availableBytes = 1'234'567'890;
	return volume;
}

void ours(benchmark::State& state)
{
	const Kiln::VolumeInfo volume = makeVolume();
	for (auto _ : state)
	{
		std::ostringstream stream;
		benchmark::DoNotOptimize(volume.serialize(stream));
	}
}

void baseline(benchmark::State& state)
{
	const Kiln::VolumeInfo volume = makeVolume();
	for (auto _ : state)
	{
		std::ostringstream stream;
		json::Object object;
		object["name"] = json::String(volume.name);
		object["resource"] = json::String("file://localhost/" + volume.mountPath);
		object["isRemovable"] = json::Boolean(volume.isRemovable);
		object["isNetwork"] = json::Boolean(volume.isNetwork);
		object["isReadOnly"] = json::Boolean(volume.isReadOnly);
		object["canEject"] = json::Boolean(volume.canEject);
		object["capacity"] = json::Number(static_cast<double>(volume.capacity));
		object["availableBytes"] = json::Number(static_cast<double>(volume.availableBytes));
		object["fsType"] = json::Number(3);
		object["displayIcon"] = json::String("/content/images/Hard_Disk_White.png");
		object["supportsReferenceTransfers"] = json::Boolean(true);
		object["preferredTransferMode"] = json::String("copy");
		json::Writer::Write(object, stream);
		benchmark::DoNotOptimize(stream.good());
	}
}

const bool isAdded = Bench::add({"volume record to JSON text", ours, baseline, 1.2});
} // namespace
