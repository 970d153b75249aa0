// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The config properties of objects, in files.
#include "ObjectConfig.h"

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

bool HasFlags(const FProperty& Property, uint64 Flags)
{
	return Flags == HostConfig::Lasting ? !Property.HasAnyPropertyFlags(CPF_Transient)
										: Property.HasAnyPropertyFlags(Flags);
}
} // namespace

void HostConfig::Read(UObject& Object, uint64 Flags, const TCHAR* Section, const FString& File)
{
	for (const auto& Property : Object.GetClass()->Properties)
	{
		TArray<FString> Lines;
		if (HasFlags(*Property, Flags) && GConfig->GetArray(Section, *Property->GetName(), Lines, File) > 0)
		{
			Property->ReadLines(Lines, &Object);
		}
	}
}

void HostConfig::Write(UObject& Object, uint64 Flags, const TCHAR* Section, const FString& File)
{
	for (const auto& Property : Object.GetClass()->Properties)
	{
		if (HasFlags(*Property, Flags))
		{
			GConfig->SetArray(Section, *Property->GetName(), Property->ToLines(&Object), File);
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
	if (!Class.ClassConfigName.IsNone())
	{
		HostTrace::Line(TEXT("save config of %s"), *Class.GetName());
		HostConfig::Write(
			*this, RequiredPropertyFlags, *Class.GetPathName(), Filename ? FString(Filename) : ConfigFile(Class));
	}
}
