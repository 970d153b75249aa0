// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "PluginDescriptor.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <rapidjson/document.h>
#include <rapidjson/error/en.h>
#include <stdexcept>

namespace
{
[[noreturn]] void Refuse(const FString& File, const std::string& Reason)
{
	throw std::runtime_error(TCHAR_TO_UTF8(*File) + Reason);
}

/** The object that is the whole file. */
rapidjson::Document ReadJson(const FString& File)
{
	std::ifstream Stream(std::filesystem::path(*File), std::ios::binary);
	if (!Stream)
	{
		Refuse(File, ": cannot be read");
	}
	const std::string Json(std::istreambuf_iterator<char>(Stream), {});
	rapidjson::Document Document;
	Document.Parse<rapidjson::kParseIterativeFlag>(Json.data(), Json.size());
	if (Document.HasParseError())
	{
		const std::string Before = Json.substr(0, Document.GetErrorOffset());
		const auto Line = 1 + std::count(Before.begin(), Before.end(), '\n');
		const size_t Column = Before.size() - (Before.rfind('\n') + 1) + 1;
		Refuse(File, ":" + std::to_string(Line) + ":" + std::to_string(Column) +
						 ": no JSON: " + rapidjson::GetParseError_En(Document.GetParseError()));
	}
	if (!Document.IsObject())
	{
		Refuse(File, ":1:1: no JSON object");
	}
	return Document;
}

/** A text of the object; the other one when it has none of that name. */
std::string Member(const rapidjson::Value& Object, const char* Name, const char* Otherwise)
{
	const bool bIsText = Object.IsObject() && Object.HasMember(Name) && Object[Name].IsString();
	return bIsText ? Object[Name].GetString() : Otherwise;
}
} // namespace

FPluginDescriptor ReadPluginDescriptor(const FString& File)
{
	const rapidjson::Document Document = ReadJson(File);
	FPluginDescriptor Descriptor{File, {}};
	const rapidjson::Value None(rapidjson::kArrayType);
	const rapidjson::Value& Modules = Document.HasMember("Modules") ? Document["Modules"] : None;
	if (!Modules.IsArray())
	{
		Refuse(File, ": \"Modules\" is no array");
	}
	for (const rapidjson::Value& Entry : Modules.GetArray())
	{
		const std::string Name = Member(Entry, "Name", "");
		const std::string Type = Member(Entry, "Type", "");
		if (Name.empty() || Type.empty())
		{
			Refuse(
				File, ": module " + std::to_string(Descriptor.Modules.Num() + 1) + " has no \"Name\" or no \"Type\"");
		}
		const std::string Phase = Member(Entry, "LoadingPhase", "Default");
		Descriptor.Modules.Add(
			{UTF8_TO_TCHAR(Name.c_str()), UTF8_TO_TCHAR(Type.c_str()), UTF8_TO_TCHAR(Phase.c_str())});
	}
	return Descriptor;
}

TMap<FName, FString> ReadModuleManifest(const FString& File)
{
	const rapidjson::Document Document = ReadJson(File);
	TMap<FName, FString> Files;
	for (const auto& Entry : Document.GetObject())
	{
		const std::string Key = Entry.name.GetString();
		if (Key == "BuildId")
		{
			continue;
		}
		if (Key != "Modules" || !Entry.value.IsObject())
		{
			Refuse(File, ": unknown key \"" + Key + "\"");
		}
		for (const auto& Module : Entry.value.GetObject())
		{
			if (!Module.value.IsString())
			{
				Refuse(File, std::string(": module \"") + Module.name.GetString() + "\" has no file name");
			}
			Files.Add(Module.name.GetString(), UTF8_TO_TCHAR(Module.value.GetString()));
		}
	}
	return Files;
}
