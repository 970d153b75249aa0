// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/Transactions.h"

#include "UObject/UnrealType.h"
#include "UObject/WeakObjectPtr.h"

namespace
{
struct FKeptObject
{
	FWeakObjectPtr Object;

	/** Of each property. */
	std::vector<TArray<FString>> Lines;
};

std::vector<FKeptObject> Kept;
bool bIsOpen = false;
} // namespace

void HostTransactions::Begin(bool bTransact)
{
	bIsOpen = bTransact;
	Kept.erase(Kept.begin(), bTransact ? Kept.end() : Kept.begin());
}

void HostTransactions::End()
{
	bIsOpen = false;
}

void HostTransactions::Keep(UObject& Object)
{
	if (bIsOpen && Object.HasAnyFlags(RF_Transactional))
	{
		Kept.push_back({&Object, {}});
		for (const auto& Property : Object.GetClass()->Properties)
		{
			Kept.back().Lines.push_back(Property->ToLines(&Object));
		}
	}
}

bool HostTransactions::Undo()
{
	for (const FKeptObject& Each : Kept)
	{
		if (UObject* const Object = Each.Object.Get())
		{
			for (size_t Index = 0; Index < Each.Lines.size(); ++Index)
			{
				Object->GetClass()->Properties[Index]->ReadLines(Each.Lines[Index], Object);
			}
			Object->PostEditUndo();
		}
	}
	return !std::exchange(Kept, {}).empty();
}
