// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "ToolMenus.h"
#include "UObject/WeakObjectPtr.h"
#include "Widgets/SCompoundWidget.h"

/** The rows of a menu. The menu object is garbage once they are gone: what its entries hold lives until it is collected. */
class SGeneratedMenu : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SGeneratedMenu) : _Menu(nullptr) {}
	SLATE_ARGUMENT(UToolMenu*, Menu)
	SLATE_END_ARGS()

	~SGeneratedMenu() override { Release(); }

	void Construct(const FArguments& InArgs) { Show(*InArgs._Menu); }

	/** Makes all rows anew, of another menu object. */
	void Show(const UToolMenu& Menu);

	FName GetMenuName() const { return MenuName; }

private:
	/** Sub-menus are made when they open. */
	static TSharedRef<SWidget> MakeRow(const UToolMenu& Menu, const FToolMenuEntry& Entry);
	void Release();

	FName MenuName;
	FWeakObjectPtr Shown;
};
