// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Report.h"

#include <fstream>
#include <sstream>
#include <windows.h>

#include <wincrypt.h>

namespace
{
std::string Escaped(const std::string& Text)
{
	std::string Result;
	for (const char Character : Text)
	{
		Result += Character == '&' ? "&amp;" : Character == '<' ? "&lt;" : std::string(1, Character);
	}
	return Result;
}

std::string Element(const std::string& Tag, const std::string& Content)
{
	return "<" + Tag + ">" + Content + "</" + Tag.substr(0, Tag.find(' ')) + ">\n";
}

std::string Base64(const std::string& Bytes)
{
	const auto Encode = [&](char* Text, DWORD Size)
	{
		CryptBinaryToStringA(reinterpret_cast<const BYTE*>(Bytes.data()), static_cast<DWORD>(Bytes.size()),
			CRYPT_STRING_BASE64 | CRYPT_STRING_NOCRLF, Text, &Size);
		return Size;
	};
	std::string Text(Encode(nullptr, 0), '\0');
	Text.resize(Encode(Text.data(), static_cast<DWORD>(Text.size())));
	return Text;
}

/** The rows that FMenuDriver::Text gives, as lists in lists; a row is "[x] Label", "[ ] Label", "Label >" or "Label". */
std::string MenuOf(const std::string& Text)
{
	std::string Html;
	size_t Depth = 0;
	std::istringstream Rows(Text);
	for (std::string Row; std::getline(Rows, Row);)
	{
		const size_t Begin = Row.find_first_not_of(' ');
		for (; Depth < Begin / 4 + 1; ++Depth)
		{
			Html += "<ul>";
		}
		for (; Depth > Begin / 4 + 1; --Depth)
		{
			Html += "</ul>";
		}
		const bool bIsToggle = Row.substr(Begin).starts_with('[');
		const bool bIsSubMenu = Row.ends_with(" >");
		const std::string Kind = Begin % 4 == 0 ? "heading" : bIsToggle ? "toggle" : bIsSubMenu ? "sub" : "entry";
		const size_t Label = Begin + (bIsToggle ? 4 : 0);
		Html += "<li class=\"" + Kind + (bIsToggle && Row[Begin + 1] == 'x' ? " on\">" : "\">") +
				Escaped(Row.substr(Label, Row.size() - Label - (bIsSubMenu ? 2 : 0)));
	}
	return Text.empty() ? "" : "<div class=\"menu\">" + Html + "</ul></div>\n";
}
} // namespace

void FReport::Begin(const std::filesystem::path& Template, const std::string& Title) const
{
	if (!Folder.empty())
	{
		std::filesystem::create_directories(Folder);
		std::ofstream Page(Folder / "index.html", std::ios::binary);
		Page << std::ifstream(Template, std::ios::binary).rdbuf() << Element("title", Title) << Element("h1", Title);
	}
}

void FReport::AddStep(const std::string& Source, const std::string& NewWords)
{
	if (!NewWords.empty())
	{
		AddPart();
		Words = NewWords;
	}
	Steps += Escaped(Source) + "\n";
}

void FReport::AddPart()
{
	if (!Folder.empty() && !Steps.empty())
	{
		std::ofstream Page(Folder / "index.html", std::ios::binary | std::ios::app);
		Page << "<section>\n"
			 << Element(
					"div class=\"words\"", Element("p", Escaped(Words)) +
											   Element("details", Element("summary", "Steps") + Element("pre", Steps)))
			 << Element("div class=\"figures\"", Figures) << "</section>\n";
	}
	Words = Steps = Figures = {};
}

std::string FReport::ClassOf(const FPicture& Picture)
{
	const std::string Png = EncodePicture(Picture);
	const std::string Class = 'p' + std::to_string(std::hash<std::string>()(Png));
	if (Classes.insert(Class).second)
	{
		const std::string Size = std::to_string(Picture.Size.X) + "/" + std::to_string(Picture.Size.Y);
		Figures += Element("style", "." + Class + "{aspect-ratio:" + Size +
										";background-image:url(data:image/png;base64," + Base64(Png) + ")}");
	}
	return "class=\"picture " + Class;
}

void FReport::AddWindow(FEditorDriver& Driver)
{
	if (Folder.empty())
	{
		return;
	}
	const std::string Menu = MenuOf(TCHAR_TO_UTF8(*Driver.Menus().Text()));
	std::string Panes;
	for (const TSharedPtr<SLevelViewport>& Pane : Driver.Panes())
	{
		const bool bIsActive = Pane.Get() == &*FEditorDriver::ActivePane();
		Panes += Element("div " + ClassOf(Driver.TakePicture(*Pane)) + (bIsActive ? " active\"" : "\""),
			Element("b", "View") + (bIsActive ? Menu : ""));
	}
	std::string Windows;
	for (const FString& Title : Driver.Windows().Titles())
	{
		Windows +=
			Element("div class=\"window\"", Element("b", Escaped(TCHAR_TO_UTF8(*Title))) +
												Element("div " + ClassOf(Driver.Windows().Picture(Title)) + "\"", ""));
	}
	const std::string Count = std::to_string(Driver.Panes().Num());
	Figures += Element("figure class=\"editor\"", Element("div class=\"panes n" + Count + "\"", Panes) + Windows);
}

void FReport::AddPicture(const FPicture& Picture, const std::string& Caption)
{
	if (Folder.empty())
	{
		return;
	}
	std::string Shown = Element("div " + ClassOf(Picture) + "\"", "");
	if (First)
	{
		Shown = Element("div " + ClassOf(*First) + "\"", "") + Element("div " + ClassOf(Picture) + " after\"", "") +
				"<input type=\"range\" value=\"50\" aria-label=\"where the line stands\" "
				"oninput=\"this.parentNode.style.setProperty('--at',this.value+'%')\">\n";
	}
	First = First ? First : Picture;
	Figures += Element("figure", Element("div class=\"compare\"", Shown) + Element("figcaption", Escaped(Caption)));
}
