// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The config properties of objects, in files.
#include "ObjectConfig.h"

#include "Host/Trace.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"
#include "UObject/UnrealType.h"

namespace
{
FString ConfigFile(const UClass& Class)
{
	return FPaths::Combine(
		FPaths::ProjectSavedDir(), TEXT("Config/WindowsEditor"), *(Class.ClassConfigName.ToString() + TEXT(".ini")));
}

/** The values of a property as lines: one an element for an array. */
TArray<FString> ValueLines(const FProperty& Property, const void* Value)
{
	TArray<FString> Lines;
	const FArrayProperty* Array = dynamic_cast<const FArrayProperty*>(&Property);
	const int32 Count = Array ? Array->GetOperations().Num(Value) : 1;
	for (int32 Index = 0; Index < Count; ++Index)
	{
		FString Line;
		const FProperty& Element = Array ? *Array->GetInner() : Property;
		Element.AppendText(Line, Array ? Array->GetOperations().Get(Value, Index) : Value);
		Lines.Add(Line);
	}
	return Lines;
}

void ReadLines(const FProperty& Property, void* Value, const TArray<FString>& Lines)
{
	const FArrayProperty* Array = dynamic_cast<const FArrayProperty*>(&Property);
	if (!Array)
	{
		const TCHAR* Cursor = *Lines.Last();
		Property.ReadText(Cursor, Value);
		return;
	}
	Array->GetOperations().Empty(Value);
	for (const FString& Line : Lines)
	{
		// An element that cannot be read stays a default one.
		const TCHAR* Cursor = *Line;
		Array->GetInner()->ReadText(Cursor, Array->GetOperations().AddDefaulted(Value));
	}
}
} // namespace

void HostConfig::Read(UObject& Object, uint64 Flags, const TCHAR* Section, const FString& File)
{
	for (const auto& Property : Object.GetClass()->GetOwnProperties())
	{
		TArray<FString> Lines;
		if (Property->HasAnyPropertyFlags(Flags) && GConfig->GetArray(Section, *Property->GetName(), Lines, File) > 0)
		{
			ReadLines(*Property, Property->ContainerPtrToValuePtr(&Object), Lines);
		}
	}
}

void HostConfig::Write(UObject& Object, uint64 Flags, const TCHAR* Section, const FString& File)
{
	for (const auto& Property : Object.GetClass()->GetOwnProperties())
	{
		if (Property->HasAnyPropertyFlags(Flags))
		{
			GConfig->SetArray(
				Section, *Property->GetName(), ValueLines(*Property, Property->ContainerPtrToValuePtr(&Object)), File);
		}
	}
	GConfig->Flush(false, File);
}

void HostConfig::Load(UObject& DefaultObject)
{
	const UClass& Class = *DefaultObject.GetClass();
	Read(DefaultObject, CPF_Config, *Class.GetPathName(), ConfigFile(Class));
}

void UObject::SaveConfig(uint64 RequiredPropertyFlags, const TCHAR* Filename, FConfigCacheIni*, bool)
{
	const UClass& Class = *GetClass();
	if (Class.HasAnyClassFlags(CLASS_Config))
	{
		HostTrace::Line(TEXT("save config of %s"), *Class.GetName());
		HostConfig::Write(
			*this, RequiredPropertyFlags, *Class.GetPathName(), Filename ? FString(Filename) : ConfigFile(Class));
	}
}
