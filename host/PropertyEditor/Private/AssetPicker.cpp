// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/Assets.h"
#include "Host/MenuRow.h"
#include "PropertyCustomizationHelpers.h"
#include "Widgets/SBoxPanel.h"

namespace
{
class SAssetPicker : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SAssetPicker) : _bAllowEdit(false), _bAllowClear(false) {}
	SLATE_ARGUMENT(bool, bAllowEdit)
	SLATE_ARGUMENT(bool, bAllowClear)
	SLATE_ARGUMENT(TArray<FAssetData>, Assets)
	SLATE_EVENT(FOnAssetSelected, OnSet)
	SLATE_EVENT(FSimpleDelegate, OnClose)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		Args = InArgs;
		SVerticalBox::FArguments Rows;
		if (InArgs._bAllowEdit)
		{
			Rows + Row(EMenuRow::Button, "Edit", FExecuteAction());
		}
		if (InArgs._bAllowClear)
		{
			Rows + Row(EMenuRow::Button, "Clear", FExecuteAction::CreateSP(this, &SAssetPicker::Clear));
		}
		for (const FAssetData& Asset : InArgs._Assets)
		{
			Rows + Row(EMenuRow::Asset, Asset.AssetName, FExecuteAction::CreateSP(this, &SAssetPicker::Set, Asset));
		}
		ChildSlot[TSlateDecl<SVerticalBox>() <<= Rows];
	}

private:
	static SVerticalBox::FSlot Row(EMenuRow Kind, FName Name, const FExecuteAction& Action)
	{
		return SVerticalBox::Slot()[SNew(SMenuRow).Kind(Kind).Name(Name).Label(FText::FromName(Name)).Action(Action)];
	}

	void Clear()
	{
		FSlateApplication::Get().DismissMenuByWidget(AsShared());
		Set(FAssetData());
	}

	void Set(FAssetData Asset)
	{
		Args._OnSet.ExecuteIfBound(Asset);
		Args._OnClose.ExecuteIfBound();
	}

	FArguments Args;
};
} // namespace

TSharedRef<SWidget> PropertyCustomizationHelpers::MakeAssetPickerWithMenu(const FAssetData& InitialObject,
	const bool AllowClear, const bool, const TArray<const UClass*>& AllowedClasses, const TArray<UFactory*>&,
	FOnShouldFilterAsset OnShouldFilterAsset, FOnAssetSelected OnSet, FSimpleDelegate OnClose,
	const TSharedPtr<IPropertyHandle>&, const TArray<FAssetData>&)
{
	TArray<FAssetData> Shown;
	for (const FAssetData& Asset : HostAssets::GetAll())
	{
		const UClass* Class = Asset.GetClass();
		const auto IsAllowed = [Class](const UClass* Allowed) { return Class && Class->IsChildOf(Allowed); };
		const bool bIsFiltered = OnShouldFilterAsset.IsBound() && OnShouldFilterAsset.Execute(Asset);
		if ((AllowedClasses.IsEmpty() || AllowedClasses.ContainsByPredicate(IsAllowed)) && !bIsFiltered)
		{
			Shown.Add(Asset);
		}
	}
	return SNew(SAssetPicker)
		.bAllowEdit(InitialObject.IsValid())
		.bAllowClear(AllowClear)
		.Assets(Shown)
		.OnSet(OnSet)
		.OnClose(OnClose);
}
