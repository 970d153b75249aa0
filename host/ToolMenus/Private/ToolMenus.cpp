// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "ToolMenus.h"

#include "Framework/Application/SlateApplication.h"
#include "Modules/ModuleManager.h"
#include "SGeneratedMenu.h"

DEFINE_LOG_CATEGORY_STATIC(LogToolMenus, Log, All);

namespace
{
/** The registry object; dead once the objects were purged at exit. */
FWeakObjectPtr Singleton;

class FToolMenusModule : public IModuleInterface
{
public:
	void StartupModule() override { Singleton = new UToolMenus(); }
};
} // namespace

IMPLEMENT_HOST_MODULE(FToolMenusModule, ToolMenus)

UToolMenus* UToolMenus::Get()
{
	FModuleManager::Get().LoadModuleChecked("ToolMenus");
	return TryGet();
}

UToolMenus* UToolMenus::TryGet()
{
	return static_cast<UToolMenus*>(Singleton.Get());
}

UToolMenu* UToolMenus::RegisterMenu(const FName Name, const FName Parent, EMultiBoxType, bool bWarnIfAlreadyRegistered)
{
	UToolMenu& Menu = FindOrAdd(Name);
	if (Menu.IsRegistered())
	{
		if (bWarnIfAlreadyRegistered)
		{
			UE_LOG(LogToolMenus, Warning, TEXT("Menu already registered : %s"), *Name.ToString());
		}
		return &Menu;
	}
	HostTrace::Line(TEXT("register menu %s"), *Name.ToString());
	Menu.bRegistered = true;
	Menu.MenuParent = Parent;
	return &Menu;
}

UToolMenu* UToolMenus::ExtendMenu(const FName Name)
{
	HostTrace::Line(TEXT("extend menu %s"), *Name.ToString());
	RefreshAllWidgets();
	return &FindOrAdd(Name);
}

bool UToolMenus::IsMenuRegistered(const FName Name) const
{
	const UToolMenu* Menu = Menus.FindRef(Name);
	return Menu && Menu->IsRegistered();
}

UToolMenu& UToolMenus::FindOrAdd(FName Name)
{
	UToolMenu*& Menu = Menus.FindOrAdd(Name);
	if (!Menu)
	{
		Menu = new UToolMenu();
		Menu->MenuName = Name;
	}
	return *Menu;
}

TSharedRef<SWidget> UToolMenus::GenerateWidget(const FName Name, const FToolMenuContext&)
{
	if (!FindMenu(Name))
	{
		UE_LOG(LogToolMenus, Warning, TEXT("Failed to find menu: %s for %s"), *Name.ToString(), *Name.ToString());
	}
	const TSharedRef<SGeneratedMenu> Widget = SNew(SGeneratedMenu).Menu(&GenerateMenu(Name));
	Widgets.RemoveAll([](const TWeakPtr<SGeneratedMenu>& Each) { return !Each.IsValid(); });
	Widgets.Add(Widget);
	return Widget;
}

UToolMenu& UToolMenus::GenerateMenu(FName Name)
{
	HostTrace::Line(TEXT("generate menu %s"), *Name.ToString());
	UToolMenu& Copy = *new UToolMenu();
	Copy.MenuName = Name;
	MergeWithParents(Copy, Name);
	return Copy;
}

TSharedRef<SWidget> UToolMenus::GenerateSubMenu(FName Name, FToolMenuEntry Entry)
{
	HostTrace::Line(TEXT("generate menu %s"), *Name.ToString());
	UToolMenu& Fresh = *new UToolMenu();
	Fresh.MenuName = Name;
	Fresh.bShouldCloseWindowAfterMenuSelection = Entry.bShouldCloseWindowAfterMenuSelection;
	Entry.SubMenuData.ConstructMenu.NewToolMenu.ExecuteIfBound(&Fresh);
	Get()->MergeWithParents(Fresh, Name);
	return SNew(SGeneratedMenu).Menu(&Fresh);
}

void UToolMenus::MergeWithParents(UToolMenu& Copy, FName Name)
{
	if (const UToolMenu* Menu = FindMenu(Name))
	{
		MergeWithParents(Copy, Menu->MenuParent);
		Copy.Merge(*Menu);
	}
}

void UToolMenus::Tick()
{
	if (!bRefreshesNextFrame)
	{
		return;
	}
	bRefreshesNextFrame = false;
	for (const TWeakPtr<SGeneratedMenu>& Each : Widgets)
	{
		if (const TSharedPtr<SGeneratedMenu> Widget = Each.Pin())
		{
			// The rows go, and with them what was opened from them.
			FSlateApplication::Get().DismissMenusBelow(*Widget);
			Widget->Show(GenerateMenu(Widget->GetMenuName()));
		}
	}
}

TArray<FToolMenuOwner>& FToolMenuOwner::Stack()
{
	static TArray<FToolMenuOwner> Owners;
	return Owners;
}

void UToolMenus::UnregisterOwnerInternal(FToolMenuOwner Owner)
{
	if (!Owner.IsSet())
	{
		return;
	}
	HostTrace::Line(TEXT("unregister menu owner"));
	for (const auto& [Name, Menu] : Menus)
	{
		if (Menu->RemoveOwnedBy(Owner))
		{
			RefreshAllWidgets();
		}
	}
}
