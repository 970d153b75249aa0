// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/Log.h"

#include "Containers/StringConv.h"
#include "CoreGlobals.h"
#include "Misc/OutputDeviceRedirector.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <share.h>

namespace
{
std::atomic<bool> bTimeStamps = false;

/** Time in UTC and frame. */
FString TimeStamp()
{
	using namespace std::chrono;
	const auto Now = floor<milliseconds>(system_clock::now());
	const auto Today = floor<days>(Now);
	const year_month_day Date(Today);
	const hh_mm_ss Time(Now - Today);
	return FString::Printf(TEXT("[%04d.%02u.%02u-%02d.%02d.%02d:%03d][%3d]"), static_cast<int32>(Date.year()),
		static_cast<uint32>(Date.month()), static_cast<uint32>(Date.day()), static_cast<int32>(Time.hours().count()),
		static_cast<int32>(Time.minutes().count()), static_cast<int32>(Time.seconds().count()),
		static_cast<int32>(Time.subseconds().count()), static_cast<int32>(GFrameCounter % 1000));
}

/** A line as all devices show it. Only the first line of a message has a head. */
FString FormatLine(const TCHAR* Text, ELogVerbosity::Type Verbosity, const FName& Category)
{
	FString Line = bTimeStamps ? TimeStamp() : FString();
	Line += Category.ToString() + TEXT(": ");
	if (Verbosity != ELogVerbosity::Log)
	{
		Line += FString(ToString(Verbosity)) + TEXT(": ");
	}
	return Line + Text + TEXT("\n");
}

class FFileDevice final : public FOutputDevice
{
public:
	/** Takes over the file, empty and open in binary mode. */
	explicit FFileDevice(std::FILE* InFile) : File(InFile)
	{
		std::fputs("\xEF\xBB\xBF", File);
		GLog->AddOutputDevice(this);
	}

	~FFileDevice() override
	{
		GLog->RemoveOutputDevice(this);
		std::fclose(File);
	}

	FFileDevice(const FFileDevice&) = delete;
	FFileDevice& operator=(const FFileDevice&) = delete;

	void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		const FString Line = FormatLine(V, Verbosity, Category).Replace(TEXT("\n"), TEXT("\r\n"));
		std::fputs(TCHAR_TO_UTF8(*Line), File);
		std::fflush(File);
	}

private:
	std::FILE* File;
};

class FStandardOutputDevice final : public FOutputDevice
{
public:
	void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		if (bAll || Verbosity <= ELogVerbosity::Display)
		{
			std::fputs(TCHAR_TO_UTF8(*FormatLine(V, Verbosity, Category)), stdout);
			std::fflush(stdout);
		}
	}

	std::atomic<bool> bAll = false;
};

std::unique_ptr<FFileDevice>& LogFile()
{
	static std::unique_ptr<FFileDevice> Device;
	return Device;
}
} // namespace

bool HostLog::OpenFile(const FString& Path)
{
	CloseFile();
	std::error_code Ignored;
	std::filesystem::create_directories(std::filesystem::path(*Path).parent_path(), Ignored);
	std::FILE* File = _wfsopen(*Path, L"wb", _SH_DENYNO);
	if (!File)
	{
		return false;
	}
	LogFile() = std::make_unique<FFileDevice>(File);
	return true;
}

void HostLog::CloseFile()
{
	LogFile().reset();
}

void HostLog::ShowOnStandardOutput(bool bAll)
{
	static FStandardOutputDevice* const Device = []
	{
		auto* New = new FStandardOutputDevice();
		GLog->AddOutputDevice(New);
		return New;
	}();
	Device->bAll = bAll;
}

void HostLog::StartTimeStamps()
{
	bTimeStamps = true;
}
