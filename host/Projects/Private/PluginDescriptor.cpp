// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "PluginDescriptor.h"

#include <fstream>
#include <rapidjson/document.h>
#include <rapidjson/error/en.h>
#include <sstream>

namespace
{
FString Text(const rapidjson::Value& Value)
{
	return FString(UTF8_TO_TCHAR(Value.GetString()));
}

FString Place(const std::string& Content, size_t Offset)
{
	int32 Line = 1;
	int32 Column = 1;
	for (size_t Index = 0; Index < Offset && Index < Content.size(); ++Index)
	{
		const bool bIsBreak = Content[Index] == '\n';
		Line += bIsBreak;
		Column = bIsBreak ? 1 : Column + 1;
	}
	return FString::Printf(TEXT(":%d:%d: "), Line, Column);
}

bool ReadJson(const FString& File, rapidjson::Document& OutDocument, FString& OutError)
{
	std::ifstream Stream(*File, std::ios::binary);
	if (!Stream)
	{
		OutError = File + TEXT(": cannot be read");
		return false;
	}
	std::ostringstream Content;
	Content << Stream.rdbuf();
	const std::string Json = Content.str();
	OutDocument.Parse<rapidjson::kParseIterativeFlag>(Json.data(), Json.size());
	if (OutDocument.HasParseError())
	{
		OutError = File + Place(Json, OutDocument.GetErrorOffset()) + TEXT("no JSON: ") +
				   UTF8_TO_TCHAR(rapidjson::GetParseError_En(OutDocument.GetParseError()));
		return false;
	}
	if (!OutDocument.IsObject())
	{
		OutError = File + TEXT(":1:1: no JSON object");
		return false;
	}
	return true;
}

FString Member(const rapidjson::Value& Object, const char* Name)
{
	const auto Found = Object.IsObject() ? Object.FindMember(Name) : rapidjson::Value::ConstMemberIterator();
	return Object.IsObject() && Found != Object.MemberEnd() && Found->value.IsString() ? Text(Found->value) : FString();
}
} // namespace

bool ReadPluginDescriptor(const FString& File, FPluginDescriptor& OutDescriptor, FString& OutError)
{
	rapidjson::Document Document;
	if (!ReadJson(File, Document, OutError))
	{
		return false;
	}
	OutDescriptor.File = File;
	const auto Modules = Document.FindMember("Modules");
	if (Modules == Document.MemberEnd())
	{
		return true;
	}
	if (!Modules->value.IsArray())
	{
		OutError = File + TEXT(": \"Modules\" is no array");
		return false;
	}
	for (const rapidjson::Value& Entry : Modules->value.GetArray())
	{
		FModuleDescriptor Module{Member(Entry, "Name"), Member(Entry, "Type"), Member(Entry, "LoadingPhase")};
		if (Module.Name.IsEmpty() || Module.Type.IsEmpty())
		{
			OutError = File + FString::Printf(
								  TEXT(": module %d has no \"Name\" or no \"Type\""), OutDescriptor.Modules.Num() + 1);
			return false;
		}
		if (Module.LoadingPhase.IsEmpty())
		{
			Module.LoadingPhase = TEXT("Default");
		}
		OutDescriptor.Modules.Add(Module);
	}
	return true;
}

bool ReadModuleManifest(const FString& File, TMap<FName, FString>& OutFiles, FString& OutError)
{
	rapidjson::Document Document;
	if (!ReadJson(File, Document, OutError))
	{
		return false;
	}
	for (const auto& Entry : Document.GetObject())
	{
		const FString Key = Text(Entry.name);
		const bool bIsModules = Key == TEXT("Modules") && Entry.value.IsObject();
		if (!bIsModules && Key != TEXT("BuildId"))
		{
			OutError = File + TEXT(": unknown key \"") + Key + TEXT("\"");
			return false;
		}
		if (!bIsModules)
		{
			continue;
		}
		for (const auto& Module : Entry.value.GetObject())
		{
			if (!Module.value.IsString())
			{
				OutError = File + TEXT(": module \"") + Text(Module.name) + TEXT("\" has no file name");
				return false;
			}
			OutFiles.Add(FName(*Text(Module.name)), Text(Module.value));
		}
	}
	return true;
}
