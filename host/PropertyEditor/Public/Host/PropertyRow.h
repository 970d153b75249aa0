// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A row of a details view, with what a user can do with it.
#pragma once

#include "UObject/UnrealType.h"
#include "UObject/WeakObjectPtr.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

class SPropertyRow : public SWidget
{
public:
	SLATE_BEGIN_ARGS(SPropertyRow) : _Property(nullptr) {}
	SLATE_ARGUMENT(FWeakObjectPtr, Object)
	SLATE_ARGUMENT(FProperty*, Property)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs) { Row = InArgs; }

	FName GetName() const { return Row._Property->GetFName(); }

	/** Types a value, written as in config files. Nothing when the object is gone. */
	void Edit(const FString& Value)
	{
		if (UObject* Object = Row._Object.Get())
		{
			Before = Row._Property->ToLines(Object);
			Row._Property->ReadLines({Value}, Object);
			FPropertyChangedEvent Event(Row._Property);
			Object->PostEditChangeProperty(Event);
		}
	}

	/** Takes the last edit back. */
	void Undo()
	{
		if (UObject* Object = Row._Object.Get())
		{
			Row._Property->ReadLines(Before, Object);
			Object->PostEditUndo();
		}
	}

private:
	FArguments Row;
	TArray<FString> Before;
};
