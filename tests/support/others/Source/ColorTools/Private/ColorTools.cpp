// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A plug-in of another maker: it makes the section for color management before the look's plug-in does.
#include "Modules/ModuleManager.h"
#include "ToolMenus.h"

class FColorTools final : public IModuleInterface
{
public:
	void StartupModule() override
	{
		const FToolMenuOwnerScoped Owner(this);
		UToolMenu* Menu = UToolMenus::Get()->ExtendMenu("LevelEditor.LevelViewportToolBar.View");
		Menu->AddSection("ColorManagement", FText::FromString(TEXT("Color Tools")))
			.AddMenuEntry("FalseColors", FText::FromString(TEXT("False Colors")), FText(), FSlateIcon(),
				FUIAction(FExecuteAction::CreateLambda([] {})), EUserInterfaceActionType::ToggleButton);
	}

	void ShutdownModule() override { UToolMenus::UnregisterOwner(this); }
};

IMPLEMENT_MODULE(FColorTools, ColorTools)
