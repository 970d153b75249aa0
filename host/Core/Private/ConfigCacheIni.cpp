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

/** The value of a line of that key. Neither "+" nor any other prefix means anything here: it is part of the key. */
const FString* ValueOf(const FString& Line, const TCHAR* Key, FString& OutValue)
{
	const int32 Equals = Line.StartsWith(TEXT(";")) ? INDEX_NONE : Line.Find(TEXT("="));
	OutValue = Unwrap(Trim(Line.Mid(Equals + 1)), TEXT("\""), TEXT("\""));
	return Equals != INDEX_NONE && Trim(Line.Mid(0, Equals)) == Key ? &OutValue : nullptr;
}
} // namespace

std::vector<FConfigCacheIni::FSection>& FConfigCacheIni::Open(const FString& Filename)
{
	std::vector<FSection>& File = Files.FindOrAdd(Filename);
	if (!File.empty())
	{
		return File;
	}
	File.emplace_back();
	std::ifstream Stream{std::filesystem::path(*Filename), std::ios::binary};
	for (std::string Bytes; std::getline(Stream, Bytes);)
	{
		const bool bHasMark = File.size() == 1 && Bytes.starts_with("\xEF\xBB\xBF");
		const FString Text = Trim(UTF8_TO_TCHAR(Bytes.c_str() + (bHasMark ? 3 : 0)));
		const FString Name = Unwrap(Text, TEXT("["), TEXT("]"));
		if (Name.Len() < Text.Len())
		{
			File.push_back({Name, {}});
			continue;
		}
		File.back().Lines.push_back(Text);
	}
	return File;
}

int32 FConfigCacheIni::GetArray(
	const TCHAR* Section, const TCHAR* Key, TArray<FString>& OutValues, const FString& Filename)
{
	OutValues.Empty();
	for (const FSection& Each : Open(Filename))
	{
		for (const FString& Line : Each.Lines)
		{
			if (FString Value; Each.Name == Section && ValueOf(Line, Key, Value))
			{
				OutValues.Add(Value);
			}
		}
	}
	return OutValues.Num();
}

void FConfigCacheIni::SetArray(
	const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Values, const FString& Filename)
{
	std::vector<FSection>& File = Open(Filename);
	auto Found = std::find_if(File.begin(), File.end(), [&](const FSection& Each) { return Each.Name == Section; });
	Found = Found == File.end() ? File.insert(Found, {Section, {}}) : Found;
	std::vector<FString>& Lines = Found->Lines;
	FString Ignored;
	const auto IsOurs = [&](const FString& Line) { return ValueOf(Line, Key, Ignored) != nullptr; };
	const auto IsText = [](const FString& Line) { return !Line.IsEmpty(); };
	// A new key goes before the empty lines that part its section from the next.
	const auto First = std::find_if(Lines.begin(), Lines.end(), IsOurs);
	const auto Last = std::find_if(Lines.rbegin(), Lines.rend(), IsText).base();
	const auto Place = (First != Lines.end() ? First : Last) - Lines.begin();
	std::erase_if(Lines, IsOurs);
	for (int32 Index = 0; Index < Values.Num(); ++Index)
	{
		Lines.insert(Lines.begin() + Place + Index, FString(Key) + TEXT("=") + Values[Index]);
	}
}

void FConfigCacheIni::Flush(bool bRemoveFromCache, const FString& Filename)
{
	const std::filesystem::path Path(*Filename);
	std::error_code Ignored;
	std::filesystem::create_directories(Path.parent_path(), Ignored);
	std::ofstream Stream(Path, std::ios::binary);
	for (const FSection& Section : Open(Filename))
	{
		const bool bIsNamed = !Section.Name.IsEmpty();
		Stream << (bIsNamed ? TCHAR_TO_UTF8(*(TEXT("[") + Section.Name + TEXT("]\r\n"))) : "");
		for (const FString& Line : Section.Lines)
		{
			Stream << TCHAR_TO_UTF8(*Line) << "\r\n";
		}
		Stream << (bIsNamed && (Section.Lines.empty() || !Section.Lines.back().IsEmpty()) ? "\r\n" : "");
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
