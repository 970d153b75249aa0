// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The controls for the look of one viewport, as they stand in the viewport's menu.
#pragma once

#include "CoreMinimal.h"
#include "TonalithDisplayConfiguration.h"
#include "UObject/GCObject.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class FViewport;
class UToolMenu;
struct FAssetData;

DECLARE_DELEGATE_OneParam(FOnLookConfigurationChanged, const FTonalithDisplayConfiguration&);

/**
 * Works on a copy of the viewport's display record and sends the whole copy after each change; changes made elsewhere
 * meanwhile are not seen. Lives as long as the menu is open.
 */
class STonalithWidget
	: public SCompoundWidget
	, public FGCObject
{
public:
	// clang-format off
	SLATE_BEGIN_ARGS(STonalithWidget) : _Viewport(nullptr) {}
		/** Not owned; null is fatal. */
		SLATE_ARGUMENT(FViewport*, Viewport)
		SLATE_ARGUMENT(FTonalithDisplayConfiguration, DisplayConfiguration)
		/** May be unbound. */
		SLATE_EVENT(FOnLookConfigurationChanged, OnDisplayConfigurationChanged)
	SLATE_END_ARGS()
	// clang-format on

	void Construct(const FArguments& InArgs);

	/** The copy's look: one that is deleted meanwhile becomes none. */
	virtual void AddReferencedObjects(FReferenceCollector& Collector) override;
	virtual FString GetReferencerName() const override;

private:
	UToolMenu* FindOrRegisterMenu() const;

	bool IsDisplayEnabled() const;
	void ToggleDisplay();

	FText GetAssetSelectionLabel() const;
	void MakeAssetSelectionMenu(UToolMenu* Menu);

	/** No look for an asset that cannot be loaded or is none. */
	void OnAssetSelected(const FAssetData& Asset);

	void SendConfiguration() const;

	FViewport* Viewport = nullptr;
	FTonalithDisplayConfiguration DisplayConfiguration;
	FOnLookConfigurationChanged OnDisplayConfigurationChanged;

	/** What was generated from the widget's menu; closing it closes the menu around it. */
	TSharedPtr<SWidget> MenuWidget;
};
