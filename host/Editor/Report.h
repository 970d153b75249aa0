// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A page that shows how a story went: its words, its steps, the menus as they were open, the pictures of panes.
#pragma once

#include "CoreMinimal.h"

#include <string>

/** Texts are UTF-8. Each call adds to the page at once: the sessions of a story write from processes of their own. */
class FReport
{
public:
	/** @param InFolder where "index.html" and its pictures lie; empty for no report at all: every call does nothing */
	explicit FReport(const FString& InFolder) : Folder(InFolder) {}

	/** Begins the page anew. */
	void Begin(const std::string& Title) const;

	void AddNarration(const std::string& Text) const;
	void AddStep(const std::string& Text) const;
	void AddMenu(const std::string& Text) const;

	/** Copies the picture beside the page. */
	void AddPicture(const FString& File, const std::string& Caption) const;

private:
	void Append(const std::string& Html) const;

	FString Folder;
};
