// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The one file where engine and library types meet.
#include "EditorStringTable.h"

#include "CoreMinimal.h"
#include "Internationalization/Culture.h"
#include "MachineFolder.h"
#include "Misc/ScopeLock.h"
#include "Placeholders.h"

#include <exception>
#include <kiln/FolderLoader.h>

namespace
{
struct FTonalithStringTable
{
	Kiln::Locale::StringTable Texts;

	/** Of the file, as the loader resolved it. */
	std::string Locale;
};

/** Guards the table. */
FCriticalSection Mutex;
TUniquePtr<FTonalithStringTable> Table;

constexpr const char* TableName = "table";

FString ToEngine(const std::string& Utf8)
{
	const FUTF8ToTCHAR Converted(Utf8.data(), static_cast<int32>(Utf8.size()));
	return FString::ConstructFromPtrSize(Converted.Get(), Converted.Length());
}

/** Null for a key that the table does not have. The caller holds the lock. */
const std::string* FindText(const std::string& Key)
{
	if (!Table.IsValid())
	{
		return nullptr;
	}
	const auto Found = Table->Texts.find(Key);
	return Found == Table->Texts.end() ? nullptr : &Found->second;
}
} // namespace

bool LoadStringTable(const std::string& Locale)
{
	const FScopeLock Lock(&Mutex);
	Kiln::Locale::FolderLoader Loader(StringFileFolder(), TableName);
	const Kiln::Locale::FileChoice Choice = Loader.choose(Locale);
	if (!Table.IsValid() || Table->Locale != Choice.locale)
	{
		TUniquePtr<FTonalithStringTable> Loaded = MakeUnique<FTonalithStringTable>();
		Loaded->Locale = Choice.locale;
		if (Choice.match != Kiln::Locale::Match::none)
		{
			Loader.load(Loaded->Texts, Choice.locale);
		}
		Table = MoveTemp(Loaded);
	}
	if (!Loader.error().empty())
	{
		UE_LOG(LogTemp, Warning, TEXT("LoadStringTable: %s"), *ToEngine(Loader.error()));
	}
	return Choice.match != Kiln::Locale::Match::none;
}

FText LocalizedText(const std::string& Key, const std::unordered_map<std::string, std::string>& Arguments)
{
	const FScopeLock Lock(&Mutex);
	const std::string* const Text = FindText(Key);
	if (!Text)
	{
		return FText::FromString(ToEngine(Key));
	}
	// Without arguments every placeholder stays as it stands: no copy is needed to see that.
	return FText::FromString(Arguments.empty() ? ToEngine(*Text) : ToEngine(FillPlaceholders(*Text, Arguments)));
}

void LoadEditorStrings()
{
	const FString Language = FInternationalization::Get().GetCurrentCulture()->GetTwoLetterISOLanguageName();
	try
	{
		LoadStringTable(TCHAR_TO_UTF8(*Language));
	}
	catch (const std::exception& Failure)
	{
		UE_LOG(LogTemp, Warning, TEXT("LoadEditorStrings: %s"), *ToEngine(Failure.what()));
	}
}
