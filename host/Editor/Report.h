// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A page that shows how a story went: its words, beside them the editor's window and its pictures as they were then, and
// the steps in between folded away.
#pragma once

#include "EditorDriver.h"
#include <filesystem>
#include <optional>
#include <set>
#include <string>

/**
 * The page is one file and needs no other. Each part is added when the next begins: the sessions of a story write from
 * processes of their own. Texts are UTF-8.
 */
class FReport
{
public:
	/** @param InFolder where "index.html" lies; empty for no report at all: every call does nothing */
	explicit FReport(const std::filesystem::path& InFolder) : Folder(InFolder) {}

	/** Adds the last part. */
	~FReport() { AddPart(); }

	/** Begins the page anew. @param Template its front: the head with the styles */
	void Begin(const std::filesystem::path& Template, const std::string& Title) const;

	/** Words begin a part of the page. */
	void AddStep(const std::string& Source, const std::string& Words);

	/** Whether the part shows something already. */
	bool HasFigure() const { return Folder.empty() || !Figures.empty(); }

	/** The panes in their places with what each shows, the open menus, the windows. */
	void AddWindow(FEditorDriver& Driver);

	/** What a pane showed; the first one of a session is put beside all others. */
	void AddPicture(const FPicture& Picture, const std::string& Caption);

private:
	void AddPart();

	/** The class of elements that show the picture; written into the page with its first use. */
	std::string ClassOf(const FPicture& Picture);

	const std::filesystem::path Folder;
	std::string Words;
	std::string Steps;
	std::string Figures;
	std::set<std::string> Classes;
	std::optional<FPicture> First;
};
