// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Console commands that act on the display record of the active viewport.
#include "Editor.h"
#include "HAL/IConsoleManager.h"
#include "Modules/ModuleManager.h"
#include "TonalithDisplayManager.h"
#include "TonalithModuleInterface.h"
#include "TonalithObject.h"
#include "UnrealClient.h"

DEFINE_LOG_CATEGORY_STATIC(LogTonalithHands, Log, All);

namespace
{
FTonalithDisplayConfiguration& ActiveRecord()
{
	FTonalithDisplayManager& Manager =
		FModuleManager::LoadModuleChecked<ITonalithModule>("Tonalith").GetDisplayManager();
	return Manager.FindOrAddDisplayConfiguration(GEditor->GetActiveViewport()->GetClient());
}

/** The looks made so far. */
TMap<FName, UTonalithObject*> Looks;

void Show(const TArray<FString>& Arguments)
{
	check(Arguments.Num() == 1);
	UTonalithObject*& Look = Looks.FindOrAdd(FName(*Arguments[0]));
	if (!Look)
	{
		Look = new UTonalithObject();
	}
	ActiveRecord() = {true, 1.0f, Look};
}

FString NameOf(const UTonalithObject* Look)
{
	for (const auto& Entry : Looks)
	{
		if (Entry.Value == Look)
		{
			return Entry.Key.ToString();
		}
	}
	return TEXT("none");
}

void Describe(const TArray<FString>&)
{
	const FTonalithDisplayConfiguration& Record = ActiveRecord();
	UE_LOG(LogTonalithHands, Display, TEXT("active viewport: shown %s, look %s"),
		Record.bDisplay ? TEXT("yes") : TEXT("no"), *NameOf(Record.Look));
}

const FAutoConsoleCommand ShowCommand(TEXT("Tonalith.Show"), TEXT("Shows the named look in the active viewport."),
	FConsoleCommandWithArgsDelegate::CreateStatic(&Show));
const FAutoConsoleCommand DescribeCommand(TEXT("Tonalith.Describe"),
	TEXT("Logs the display record of the active viewport."), FConsoleCommandWithArgsDelegate::CreateStatic(&Describe));
} // namespace

IMPLEMENT_MODULE(FDefaultModuleImpl, TonalithHands)
