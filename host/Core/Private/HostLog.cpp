// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/Log.h"

#include "Containers/StringConv.h"
#include "CoreGlobals.h"
#include "Misc/OutputDeviceRedirector.h"

#include <filesystem>
#include <fstream>
#include <windows.h>

namespace
{
/** Time in UTC and frame. */
FString TimeStamp()
{
	SYSTEMTIME Now;
	GetSystemTime(&Now);
	return FString::Printf(TEXT("[%04u.%02u.%02u-%02u.%02u.%02u:%03u][%3u]"), Now.wYear, Now.wMonth, Now.wDay,
		Now.wHour, Now.wMinute, Now.wSecond, Now.wMilliseconds, static_cast<uint32>(GFrameCounter % 1000));
}

class FFileDevice final : public FOutputDevice
{
public:
	/** Never destroyed: static destructors may log. */
	static FFileDevice& Get()
	{
		static FFileDevice* const Device = new FFileDevice();
		return *Device;
	}

	/** Only the first line of a message has a head. */
	void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		FString Line = TimeStamp() + Category.ToString() + TEXT(": ");
		if (Verbosity != ELogVerbosity::Log)
		{
			Line += FString(ToString(Verbosity)) + TEXT(": ");
		}
		File << TCHAR_TO_UTF8(*(Line + V)) << std::endl;
	}

	std::ofstream File;
};
} // namespace

bool HostLog::OpenFile(const FString& Path)
{
	CloseFile();
	std::ofstream& File = FFileDevice::Get().File;
	const std::filesystem::path Whole(*Path);
	std::error_code Ignored;
	std::filesystem::create_directories(Whole.parent_path(), Ignored);
	File.open(Whole);
	if (!File.is_open())
	{
		return false;
	}
	File << "\xEF\xBB\xBF";
	GLog->AddOutputDevice(&FFileDevice::Get());
	return true;
}

void HostLog::CloseFile()
{
	GLog->RemoveOutputDevice(&FFileDevice::Get());
	FFileDevice::Get().File.close();
}
