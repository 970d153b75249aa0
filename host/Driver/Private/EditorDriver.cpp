// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "EditorDriver.h"

#include "Host/Assets.h"
#include "Host/ContentBrowser.h"
#include "LevelEditor.h"
#include "RedirectMachineFolder.h"
#include "Subsystems/AssetEditorSubsystem.h"

static FLevelEditorModule& LevelEditor()
{
	return FModuleManager::GetModuleChecked<FLevelEditorModule>("LevelEditor");
} // namespace

void FEditorDriver::Start(const FEngineLoopOptions& Options)
{
	FDriverError::Unless(RedirectMachineFolder(FPaths::Combine(Options.ProjectFolder, TEXT("ProgramData"))),
		TEXT("the machine-wide folder cannot be redirected"));
	Loop.Init(Options);
	bIsRunning = true;
}

void FEditorDriver::DestroyWorld(UWorld& World)
{
	World.MarkAsGarbage();
	CollectGarbage();
}

SLevelViewport& FEditorDriver::Pane(const FString& Key) const
{
	const TSharedPtr<SLevelViewport> Found = LevelEditor().FindPane(FName(*Key));
	FDriverError::Unless(Found.IsValid(), TEXT("no pane \"%s\" is open"), *Key);
	return *Found;
}

bool FEditorDriver::HasPane(const FString& Key) const
{
	return LevelEditor().FindPane(FName(*Key)).IsValid();
}

void FEditorDriver::OpenPane(const FString& Key)
{
	HostTrace::Line(TEXT("open pane %s"), *Key);
	LevelEditor().OpenPane(FName(*Key));
}

void FEditorDriver::SetLayout(const FString& Layout)
{
	HostTrace::Line(TEXT("layout %s"), *Layout);
	FDriverError::Unless(LevelEditor().SetLayout(Layout), TEXT("no layout \"%s\""), *Layout);
}

void FEditorDriver::ClosePane(const FString& Key)
{
	SLevelViewport& Closing = Pane(Key);
	HostTrace::Line(TEXT("close pane %s"), *Key);
	LevelEditor().ClosePane(Closing);
}

void FEditorDriver::ResizePane(const FString& Key, FIntPoint Size)
{
	static_cast<FSceneViewport*>(Pane(Key).GetLevelViewportClient().Viewport)
		->SetFixedViewportSize(static_cast<uint32>(Size.X), static_cast<uint32>(Size.Y));
}

TSharedRef<SLevelViewport> FEditorDriver::ActivePane()
{
	const TSharedPtr<IAssetViewport> Active = GEditor->GetActivePane();
	FDriverError::Unless(Active.IsValid(), TEXT("no pane is open"));
	return StaticCastSharedPtr<SLevelViewport>(Active).ToSharedRef();
}

FPicture FEditorDriver::TakePicture(IAssetViewport& Pane)
{
	FViewport& Viewport = *Pane.GetActiveViewport();
	Viewport.Draw();
	FPicture Picture{Viewport.GetSizeXY(), {}};
	FDriverError::Unless(Viewport.ReadPixels(Picture.Pixels), TEXT("the pane shows nothing"));
	return Picture;
}

const TArray<TSharedPtr<SLevelViewport>>& FEditorDriver::Panes() const
{
	return LevelEditor().GetPanes();
}

UObject& FEditorDriver::CreateAsset(const FString& Label, const FString& Path)
{
	const FString Folder = FPaths::GetPath(Path);
	FString Offered;
	for (const FHostNewAssetEntry& Entry : HostContentBrowser::GetNewAssetMenu())
	{
		if (Entry.Label.ToString().Equals(Label))
		{
			return *HostContentBrowser::CreateNewAsset(Path.Mid(Folder.Len() + 1), Folder, *Entry.Factory);
		}
		Offered += TEXT(" \"") + Entry.Label.ToString() + TEXT("\"");
	}
	throw FDriverError(FString::Printf(TEXT("no new asset \"%s\" is offered, but:%s"), *Label, *Offered));
}

void FEditorDriver::OpenAssets(const TArray<FString>& Paths)
{
	TArray<UObject*> Assets;
	for (const FString& Path : Paths)
	{
		Assets.Add(&Asset(Path));
	}
	UAssetEditorSubsystem::OpenEditorForAssets(Assets);
}

void FEditorDriver::PlayInPane()
{
	GEditor->RequestPlaySession({ActivePane()});
	Loop.Tick();
}

void FEditorDriver::PlayInWindow(EPlayCancellation Cancellation)
{
	GEditor->NextPlayCancellation = Cancellation;
	GEditor->RequestPlaySession({});
	Loop.Tick();
}

void FEditorDriver::EndPlay()
{
	GEditor->RequestEndPlayMap();
	Loop.Tick();
}

const FMenuDriver& FEditorDriver::Menus()
{
	Loop.Tick();
	return MenuDriver;
}

const FWindowDriver& FEditorDriver::Windows()
{
	Loop.Tick();
	return WindowDriver;
}

void FEditorDriver::UnloadModule(const FString& Name)
{
	FDriverError::Unless(FModuleManager::Get().UnloadModule(FName(*Name)), TEXT("no module \"%s\" is loaded"), *Name);
}

void FEditorDriver::Quit()
{
	HostAssets::SaveDirtyPackages();
	Loop.Exit();
	bIsRunning = false;
}
