// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Console commands that act on the display record of the active viewport.
#include "Editor.h"
#include "HAL/IConsoleManager.h"
#include "Modules/ModuleManager.h"
#include "TonalithDisplayManager.h"
#include "TonalithModuleInterface.h"
#include "TonalithObject.h"
#include "UObject/UObjectGlobals.h"
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

void Show(const TArray<FString>& Arguments)
{
	check(Arguments.Num() == 1);
	UObject* Look = StaticLoadObject(UTonalithObject::StaticClass(), *Arguments[0]);
	checkf(Look, TEXT("no look %s"), *Arguments[0]);
	ActiveRecord().bDisplay = true;
	ActiveRecord().Look = static_cast<UTonalithObject*>(Look);
}

void Describe(const TArray<FString>&)
{
	const FTonalithDisplayConfiguration& Record = ActiveRecord();
	UE_LOG(LogTonalithHands, Display, TEXT("active viewport: shown %s, look %s"),
		Record.bDisplay ? TEXT("yes") : TEXT("no"), Record.Look ? *Record.Look->GetName() : TEXT("none"));
}

const FAutoConsoleCommand ShowCommand(TEXT("Tonalith.Show"), TEXT("Shows the named look in the active viewport."),
	FConsoleCommandWithArgsDelegate::CreateStatic(&Show));
const FAutoConsoleCommand DescribeCommand(TEXT("Tonalith.Describe"),
	TEXT("Logs the display record of the active viewport."), FConsoleCommandWithArgsDelegate::CreateStatic(&Describe));
} // namespace

IMPLEMENT_MODULE(FDefaultModuleImpl, TonalithHands)
