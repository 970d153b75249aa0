// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Report.h"

#include "Story.h"

#include <filesystem>
#include <fstream>
#include <windows.h>

namespace
{
constexpr const char* Head = R"(<!DOCTYPE html>
<html lang="en">
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<style>
	body { font: 16px/1.5 system-ui, sans-serif; max-width: 44rem; margin: 2rem auto; padding: 0 1rem;
		background: #17191e; color: #d9dce3; }
	h1, h2 { font-weight: 600; }
	code { display: block; color: #8f98a8; }
	pre { display: inline-block; margin: .5rem 0; padding: .6rem 1.2rem .6rem .8rem; border: 1px solid #3a4050;
		border-radius: 6px; background: #22262f; }
	figure { display: inline-block; margin: .5rem 1rem .5rem 0; }
	figcaption { color: #8f98a8; }
	img { display: block; border-radius: 6px; }
</style>
)";

std::string Escaped(const std::string& Text)
{
	std::string Result;
	for (const char Character : Text)
	{
		Result += Character == '&' ? "&amp;" : Character == '<' ? "&lt;" : std::string(1, Character);
	}
	return Result;
}

std::string Element(const std::string& Tag, const std::string& Text)
{
	return "<" + Tag + ">" + Escaped(Text) + "</" + Tag + ">\n";
}
} // namespace

void FReport::Begin(const std::string& Title) const
{
	if (Folder.IsEmpty())
	{
		return;
	}
	std::error_code Ignored;
	std::filesystem::remove_all(*Folder, Ignored);
	std::filesystem::create_directories(*Folder, Ignored);
	Append(Head + Element("title", Title) + Element("h1", Title));
}

void FReport::AddNarration(const std::string& Text) const
{
	Append(Element("p", Text));
}

void FReport::AddStep(const std::string& Text) const
{
	Append(Element("code", Text));
}

void FReport::AddMenu(const std::string& Text) const
{
	Append(Element("pre", Text));
}

void FReport::AddPicture(const FString& File, const std::string& Caption) const
{
	if (Folder.IsEmpty())
	{
		return;
	}
	const std::filesystem::path Source = *File;
	if (!CopyFileW(Source.c_str(), (std::filesystem::path(*Folder) / Source.filename()).c_str(), FALSE))
	{
		throw FStoryError("the picture cannot be copied to the report");
	}
	Append("<figure><img alt=\"\" src=\"" + Source.filename().string() + "\">" + Element("figcaption", Caption) +
		   "</figure>\n");
}

void FReport::Append(const std::string& Html) const
{
	if (Folder.IsEmpty())
	{
		return;
	}
	std::ofstream Page(std::filesystem::path(*Folder) / "index.html", std::ios::binary | std::ios::app);
	if (!(Page << Html).flush())
	{
		throw FStoryError("the report cannot be written");
	}
}
