// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "EditorDriver.h"

#include "Editor.h"
#include "Host/Assets.h"
#include "Host/ContentBrowser.h"
#include "Host/Trace.h"
#include "LevelEditor.h"
#include "Misc/Paths.h"
#include "RedirectMachineFolder.h"
#include "SLevelViewport.h"
#include "Subsystems/AssetEditorSubsystem.h"
#include "UObject/UObjectGlobals.h"

namespace
{
FLevelEditorModule& LevelEditor()
{
	return FModuleManager::GetModuleChecked<FLevelEditorModule>("LevelEditor");
}

TSharedRef<SLevelViewport> FindPane(const FString& Key)
{
	const TSharedPtr<SLevelViewport> Pane = LevelEditor().FindPane(FName(*Key));
	if (!Pane.IsValid())
	{
		throw FDriverError(FString::Printf(TEXT("no pane \"%s\" is open"), *Key));
	}
	return Pane.ToSharedRef();
}
} // namespace

FDriverError::FDriverError(const FString& Reason) : std::runtime_error(TCHAR_TO_UTF8(*Reason)) {}

void FEditorDriver::RequireStarted() const
{
	if (!bIsRunning)
	{
		throw FDriverError(TEXT("the editor is not running"));
	}
}

void FEditorDriver::Start(const FEngineLoopOptions& Options)
{
	if (bIsRunning)
	{
		throw FDriverError(TEXT("the editor is running already"));
	}
	if (!RedirectMachineFolder(FPaths::Combine(Options.ProjectFolder, TEXT("ProgramData"))))
	{
		throw FDriverError(TEXT("the machine-wide folder cannot be redirected"));
	}
	FString Error;
	if (!Loop.Init(Options, Error))
	{
		throw FDriverError(Error);
	}
	bIsRunning = true;
}

UWorld& FEditorDriver::MakeWorld(EWorldType::Type Type)
{
	RequireStarted();
	return *UWorld::CreateWorld(Type);
}

void FEditorDriver::DestroyWorld(UWorld& World)
{
	World.MarkAsGarbage();
	CollectGarbage();
}

SLevelViewport& FEditorDriver::Pane(const FString& Key) const
{
	RequireStarted();
	return *FindPane(Key);
}

bool FEditorDriver::HasPane(const FString& Key) const
{
	RequireStarted();
	return LevelEditor().FindPane(FName(*Key)).IsValid();
}

void FEditorDriver::OpenPane(const FString& Key)
{
	if (HasPane(Key))
	{
		throw FDriverError(FString::Printf(TEXT("a pane \"%s\" is open already"), *Key));
	}
	HostTrace::Line(TEXT("open pane %s"), *Key);
	LevelEditor().OpenPane(FName(*Key));
}

void FEditorDriver::SetLayout(const FString& Layout)
{
	RequireStarted();
	HostTrace::Line(TEXT("layout %s"), *Layout);
	if (!LevelEditor().SetLayout(Layout))
	{
		throw FDriverError(FString::Printf(TEXT("no layout \"%s\""), *Layout));
	}
}

void FEditorDriver::ClosePane(const FString& Key)
{
	RequireStarted();
	const TSharedRef<SLevelViewport> Pane = FindPane(Key);
	HostTrace::Line(TEXT("close pane %s"), *Key);
	LevelEditor().ClosePane(Pane);
}

void FEditorDriver::ActivatePane(const FString& Key)
{
	GCurrentLevelEditingViewportClient = &Pane(Key).GetLevelViewportClient();
}

void FEditorDriver::ResizePane(const FString& Key, FIntPoint Size)
{
	static_cast<FSceneViewport*>(Pane(Key).GetLevelViewportClient().Viewport)
		->SetFixedViewportSize(static_cast<uint32>(Size.X), static_cast<uint32>(Size.Y));
}

FPicture FEditorDriver::TakePicture()
{
	RequireStarted();
	FViewport* Viewport = GEditor->GetActiveViewport();
	if (!Viewport)
	{
		throw FDriverError(TEXT("no pane is open"));
	}
	Viewport->Draw();
	FPicture Picture{Viewport->GetSizeXY(), {}};
	if (!Viewport->ReadPixels(Picture.Pixels))
	{
		throw FDriverError(TEXT("the pane shows nothing"));
	}
	return Picture;
}

UObject& FEditorDriver::CreateAsset(const FString& Label, const FString& Path)
{
	RequireStarted();
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
	RequireStarted();
	TArray<UObject*> Assets;
	for (const FString& Path : Paths)
	{
		Assets.Add(StaticLoadObject(UObject::StaticClass(), *Path));
		if (!Assets.Last())
		{
			throw FDriverError(FString::Printf(TEXT("no asset \"%s\""), *Path));
		}
	}
	UAssetEditorSubsystem::OpenEditorForAssets(Assets);
}

void FEditorDriver::Play(const TSharedPtr<IAssetViewport>& Pane)
{
	GEditor->RequestPlaySession({Pane});
	Loop.Tick();
}

void FEditorDriver::PlayInPane()
{
	RequireStarted();
	const TSharedPtr<IAssetViewport> Pane = LevelEditor().GetFirstActiveViewport();
	if (!Pane.IsValid())
	{
		throw FDriverError(TEXT("no pane is open to play in"));
	}
	Play(Pane);
}

void FEditorDriver::PlayInWindow()
{
	RequireStarted();
	Play(nullptr);
}

void FEditorDriver::PlayCancelled(EPlayCancellation Cancellation)
{
	RequireStarted();
	GEditor->NextPlayCancellation = Cancellation;
	Play(nullptr);
}

void FEditorDriver::EndPlay()
{
	RequireStarted();
	GEditor->RequestEndPlayMap();
	Loop.Tick();
}

const FMenuDriver& FEditorDriver::Menus()
{
	RequireStarted();
	Loop.Tick();
	return MenuDriver;
}

const FWindowDriver& FEditorDriver::Windows()
{
	RequireStarted();
	Loop.Tick();
	return WindowDriver;
}

void FEditorDriver::UnloadModule(const FString& Name)
{
	RequireStarted();
	if (!FModuleManager::Get().UnloadModule(FName(*Name)))
	{
		throw FDriverError(FString::Printf(TEXT("module \"%s\" is not loaded"), *Name));
	}
}

void FEditorDriver::Quit()
{
	RequireStarted();
	HostAssets::SaveDirtyPackages();
	Loop.Exit();
	bIsRunning = false;
}
