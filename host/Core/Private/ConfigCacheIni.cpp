// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Misc/ConfigCacheIni.h"

#include <filesystem>
#include <fstream>

DEFINE_LOG_CATEGORY_STATIC(LogConfig, Log, All);

static FConfigCacheIni ConfigCache;
FConfigCacheIni* GConfig = &ConfigCache;

namespace
{
FString Trim(const std::wstring& Text)
{
	const size_t Begin = Text.find_first_not_of(L" \t\r");
	return Begin == std::wstring::npos
			   ? FString()
			   : FString(Text.substr(Begin, Text.find_last_not_of(L" \t\r") + 1 - Begin).c_str());
}

/** A value that is quoted as a whole loses its quotes. */
FString Unquoted(const FString& Value)
{
	return Value.StartsWith(TEXT("\"")) && Value.EndsWith(TEXT("\"")) && Value.Len() > 1 ? Value.Mid(1, Value.Len() - 2)
																						 : Value;
}

bool IsSection(const FString& Line)
{
	return Line.StartsWith(TEXT("[")) && Line.EndsWith(TEXT("]"));
}
} // namespace

FConfigCacheIni::FFile& FConfigCacheIni::Open(const FString& Filename)
{
	TSharedPtr<FFile>& File = Files.FindOrAdd(Filename);
	if (File.IsValid())
	{
		return *File;
	}
	File = MakeShared<FFile>();
	File->Add(FSection());
	std::ifstream Stream{std::filesystem::path(*Filename), std::ios::binary};
	for (std::string Bytes; std::getline(Stream, Bytes);)
	{
		if (File->Num() == 1 && (*File)[0].Lines.IsEmpty() && Bytes.starts_with("\xEF\xBB\xBF"))
		{
			Bytes.erase(0, 3);
		}
		const FString Line = Trim(UTF8_TO_TCHAR(Bytes.c_str()));
		if (IsSection(Line))
		{
			File->Add({Line.Mid(1, Line.Len() - 2), {}});
			continue;
		}
		// Neither "+" nor any other prefix means anything here: it is part of the key.
		const int32 Equals = Line.StartsWith(TEXT(";")) ? INDEX_NONE : Line.Find(TEXT("="));
		FLine Parsed;
		Parsed.Text = Line;
		if (Equals != INDEX_NONE)
		{
			Parsed.Key = Trim(*Line.Mid(0, Equals));
			Parsed.Value = Unquoted(Trim(*Line.Mid(Equals + 1)));
		}
		File->Last().Lines.Add(Parsed);
	}
	return *File;
}

FConfigCacheIni::FSection* FConfigCacheIni::FindSection(FFile& File, const TCHAR* Name)
{
	return File.FindByPredicate([Name](const FSection& Section) { return Section.Name == FString(Name); });
}

int32 FConfigCacheIni::GetArray(
	const TCHAR* Section, const TCHAR* Key, TArray<FString>& OutValues, const FString& Filename)
{
	OutValues.Empty();
	if (const FSection* Found = FindSection(Open(Filename), Section))
	{
		for (const FLine& Line : Found->Lines)
		{
			if (Line.Key == FString(Key))
			{
				OutValues.Add(Line.Value);
			}
		}
	}
	return OutValues.Num();
}

void FConfigCacheIni::SetArray(
	const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Values, const FString& Filename)
{
	FFile& File = Open(Filename);
	FSection* Found = FindSection(File, Section);
	if (!Found)
	{
		File.Add({Section, {}});
		Found = &File.Last();
	}
	const auto AddValues = [&](TArray<FLine>& Lines)
	{
		for (const FString& Value : Values)
		{
			Lines.Add({Key, Value, FString(Key) + TEXT("=") + Value});
		}
	};
	TArray<FLine> Lines;
	bool bAdded = false;
	for (const FLine& Line : Found->Lines)
	{
		const bool bIsOurs = Line.Key == FString(Key);
		if (bIsOurs && !bAdded)
		{
			AddValues(Lines);
			bAdded = true;
		}
		if (!bIsOurs)
		{
			Lines.Add(Line);
		}
	}
	if (!bAdded)
	{
		// Before the empty lines that part this section from the next.
		TArray<FLine> Tail;
		while (!Lines.IsEmpty() && Lines.Last().Text.IsEmpty())
		{
			Tail.Add(Lines.Last());
			Lines.RemoveAt(Lines.Num() - 1);
		}
		AddValues(Lines);
		for (const FLine& Line : Tail)
		{
			Lines.Add(Line);
		}
	}
	Found->Lines = Lines;
}

void FConfigCacheIni::Flush(bool bRemoveFromCache, const FString& Filename)
{
	std::string Text;
	for (const FSection& Section : Open(Filename))
	{
		if (!Section.Name.IsEmpty())
		{
			Text += TCHAR_TO_UTF8(*(TEXT("[") + Section.Name + TEXT("]\r\n")));
		}
		for (const FLine& Line : Section.Lines)
		{
			Text += TCHAR_TO_UTF8(*(Line.Text + TEXT("\r\n")));
		}
		// One empty line ends a section.
		if (!Section.Name.IsEmpty() && (Section.Lines.IsEmpty() || !Section.Lines.Last().Text.IsEmpty()))
		{
			Text += "\r\n";
		}
	}
	const std::filesystem::path Path(*Filename);
	std::error_code Ignored;
	std::filesystem::create_directories(Path.parent_path(), Ignored);
	std::ofstream Stream(Path, std::ios::binary | std::ios::trunc);
	if (!Stream.write(Text.data(), static_cast<std::streamsize>(Text.size())).flush())
	{
		UE_LOG(LogConfig, Warning, TEXT("%s could not be written"), *Filename);
	}
	if (bRemoveFromCache)
	{
		Files.Remove(Filename);
	}
}
