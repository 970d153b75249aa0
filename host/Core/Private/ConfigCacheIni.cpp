// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Misc/ConfigCacheIni.h"

#include <filesystem>
#include <fstream>

DEFINE_LOG_CATEGORY_STATIC(LogConfig, Log, All);

static FConfigCacheIni ConfigCache;
FConfigCacheIni* GConfig = &ConfigCache;

namespace
{
FString Trim(const FString& Text)
{
	const std::wstring_view View(*Text);
	const size_t Begin = std::min(View.find_first_not_of(L" \t\r"), View.size());
	const size_t End = View.find_last_not_of(L" \t\r") + 1;
	return Text.Mid(static_cast<int32>(Begin), static_cast<int32>(End - Begin));
}

/** Without the characters around it, if both are there. */
FString Unwrap(const FString& Text, const TCHAR* First, const TCHAR* Last)
{
	const bool bIsWrapped = Text.Len() > 1 && Text.StartsWith(First) && Text.EndsWith(Last);
	return bIsWrapped ? Text.Mid(1, Text.Len() - 2) : Text;
}
} // namespace

FConfigCacheIni::FFile FConfigCacheIni::Read(const FString& Filename)
{
	FFile File;
	FString Section;
	const auto EndSection = [&File, &Section]
	{
		if (!Section.IsEmpty() && !File.back().Text.IsEmpty())
		{
			File.push_back({FString(), Section});
		}
	};
	std::ifstream Stream{std::filesystem::path(*Filename), std::ios::binary};
	for (std::string Bytes; std::getline(Stream, Bytes);)
	{
		const bool bHasMark = File.empty() && Bytes.starts_with("\xEF\xBB\xBF");
		const FString Text = Trim(UTF8_TO_TCHAR(Bytes.c_str() + (bHasMark ? 3 : 0)));
		if (const FString Name = Unwrap(Text, TEXT("["), TEXT("]")); Name.Len() < Text.Len())
		{
			EndSection();
			Section = Name;
		}
		FLine& Line = File.emplace_back(FLine{Text, Section});
		// Neither "+" nor any other prefix means anything here: it is part of the key.
		const int32 Equals = Text.StartsWith(TEXT(";")) ? INDEX_NONE : Text.Find(TEXT("="));
		if (Equals != INDEX_NONE)
		{
			Line.Key = Trim(Text.Mid(0, Equals));
			Line.Value = Unwrap(Trim(Text.Mid(Equals + 1)), TEXT("\""), TEXT("\""));
		}
	}
	EndSection();
	return File;
}

FConfigCacheIni::FFile& FConfigCacheIni::Open(const FString& Filename)
{
	if (!Files.Contains(Filename))
	{
		Files.Add(Filename, Read(Filename));
	}
	return *Files.Find(Filename);
}

int32 FConfigCacheIni::GetArray(
	const TCHAR* Section, const TCHAR* Key, TArray<FString>& OutValues, const FString& Filename)
{
	OutValues.Empty();
	for (const FLine& Line : Open(Filename))
	{
		if (Line.Section == Section && Line.Key == Key)
		{
			OutValues.Add(Line.Value);
		}
	}
	return OutValues.Num();
}

void FConfigCacheIni::SetArray(
	const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Values, const FString& Filename)
{
	FFile& File = Open(Filename);
	const auto IsOurs = [&](const FLine& Line) { return Line.Section == Section && Line.Key == Key; };
	const auto IsText = [&](const FLine& Line) { return Line.Section == Section && !Line.Text.IsEmpty(); };
	if (std::none_of(File.begin(), File.end(), IsText))
	{
		File.push_back({FString(TEXT("[")) + Section + TEXT("]"), Section});
		File.push_back({FString(), Section});
	}
	// A new key goes before the empty lines that part its section from the next.
	const auto First = std::find_if(File.begin(), File.end(), IsOurs);
	const auto Last = std::find_if(File.rbegin(), File.rend(), IsText).base();
	const auto Place = (First != File.end() ? First : Last) - File.begin();
	File.erase(std::remove_if(File.begin() + Place, File.end(), IsOurs), File.end());
	FFile Lines;
	for (const FString& Value : Values)
	{
		Lines.push_back({FString(Key) + TEXT("=") + Value, Section, Key, Value});
	}
	File.insert(File.begin() + Place, Lines.begin(), Lines.end());
}

void FConfigCacheIni::Flush(bool bRemoveFromCache, const FString& Filename)
{
	const std::filesystem::path Path(*Filename);
	std::error_code Ignored;
	std::filesystem::create_directories(Path.parent_path(), Ignored);
	std::ofstream Stream(Path, std::ios::binary);
	for (const FLine& Line : Open(Filename))
	{
		Stream << TCHAR_TO_UTF8(*Line.Text) << "\r\n";
	}
	if (!Stream.flush())
	{
		UE_LOG(LogConfig, Warning, TEXT("%s could not be written"), *Filename);
	}
	if (bRemoveFromCache)
	{
		Files.Remove(Filename);
	}
}
