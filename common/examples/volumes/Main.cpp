// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// volumes: prints the mounted volumes as a JSON array.
// volumes --watch: prints each volume, those present first, when it is mounted and unmounted, as a JSON object with "event",
// "time" and "volume"; until it is interrupted. Objects follow each other, each with a newline behind it.
#include <cajun/json/writer.h>
#include <iostream>
#include <kiln/Logger.h>
#include <kiln/Unicode.h>
#include <kiln/VolumeEventMonitor.h>
#include <kiln/VolumeNotification.h>
#include <system_error>
#include <windows.h>

namespace
{
/** Stays set, however often the user interrupts. */
const HANDLE isInterrupted = CreateEventW(nullptr, TRUE, FALSE, nullptr);

BOOL WINAPI interrupt(DWORD)
{
	return SetEvent(isInterrupted);
}

void print(const json::UnknownElement& element)
{
	json::Writer::Write(element, std::cout);
	std::cout << std::endl;
}

/** Called on the monitor's thread, which alone prints once it runs. */
class Printer : public Kiln::VolumeObserver
{
public:
	void volumeMounted(const Kiln::VolumeMountedNotification& notification) override
	{
		report("mounted", notification);
	}

	void volumeUnmounted(const Kiln::VolumeUnmountedNotification& notification) override
	{
		report("unmounted", notification);
	}

private:
	static void report(const char* event, const Kiln::VolumeNotification& notification)
	{
		json::Object object;
		object["event"] = json::String(event);
		object["time"] = json::Number(static_cast<double>(notification.timestamp));
		notification.volume.toJson(object["volume"]);
		print(object);
	}
};

void list()
{
	const Kiln::VolumeEventMonitor monitor;
	std::vector<std::string> paths;
	monitor.listMountPoints(paths);
	json::Array volumes;
	for (const std::string& path : paths)
	{
		Kiln::VolumeInfo volume;
		if (Kiln::VolumeEventMonitor::queryVolumeInfo(Kiln::toWide(path), volume) == 1)
		{
			json::Object object;
			volume.toJson(object);
			volumes.Insert(std::move(object));
		}
	}
	print(volumes);
}

void watch()
{
	Printer printer;
	Kiln::VolumeEventMonitor monitor;
	monitor.addObserver(&printer);
	SetConsoleCtrlHandler(interrupt, TRUE);
	monitor.start();
	WaitForSingleObject(isInterrupted, INFINITE);
}
} // namespace

int main(int count, char** arguments)
{
	const std::string option = count > 1 ? arguments[1] : "";
	if (count > 2 || (count == 2 && option != "--watch"))
	{
		std::cerr << "usage: " << arguments[0] << " [--watch]\n";
		return 2;
	}
	Kiln::Logger::instance().redirectToErrorConsole("VolumeEventMonitor");
	try
	{
		count == 2 ? watch() : list();
		return 0;
	}
	catch (const std::system_error& error)
	{
		std::cerr << error.what() << '\n';
		return 1;
	}
}
