// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "TonalithDisplayManager.h"

FTonalithDisplayConfiguration& FTonalithDisplayManager::FindOrAddDisplayConfiguration(FViewportClient* Client)
{
	TUniquePtr<FTonalithDisplayConfiguration>& Configuration = Configurations.FindOrAdd(Client);
	if (!Configuration.IsValid())
	{
		Configuration = MakeUnique<FTonalithDisplayConfiguration>();
	}
	return *Configuration;
}

const FTonalithDisplayConfiguration* FTonalithDisplayManager::GetDisplayConfiguration(
	const FViewportClient* Client) const
{
	const TUniquePtr<FTonalithDisplayConfiguration>* Found = Configurations.Find(Client);
	return Found ? Found->Get() : nullptr;
}

bool FTonalithDisplayManager::RemoveDisplayConfiguration(const FViewportClient* Client)
{
	return Configurations.Remove(Client) > 0;
}

void FTonalithDisplayManager::KeepOnly(const TArray<const FViewportClient*>& Clients)
{
	TArray<const FViewportClient*> Known;
	Configurations.GenerateKeyArray(Known);
	for (const FViewportClient* Client : Known)
	{
		if (!Clients.Contains(Client))
		{
			Configurations.Remove(Client);
		}
	}
}

void FTonalithDisplayManager::AddReferencedObjects(FReferenceCollector& Collector)
{
	for (auto& [Client, Configuration] : Configurations)
	{
		Collector.AddReferencedObject(Configuration->Look);
	}
}

FString FTonalithDisplayManager::GetReferencerName() const
{
	return TEXT("FTonalithDisplayManager");
}
