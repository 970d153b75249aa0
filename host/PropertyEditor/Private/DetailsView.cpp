// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Host/PropertyRow.h"
#include "IDetailsView.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "Widgets/SBoxPanel.h"

namespace
{
class SDetailsView : public IDetailsView
{
public:
	SLATE_BEGIN_ARGS(SDetailsView) {}
	SLATE_END_ARGS()

	void Construct(const FArguments&) {}

	void SetObject(UObject* InObject, bool) override
	{
		SVerticalBox::FArguments Rows;
		for (const UStruct* Each = InObject ? InObject->GetClass() : nullptr; Each; Each = Each->SuperStruct)
		{
			for (const auto& Property : Each->Properties)
			{
				if (Property->HasAnyPropertyFlags(CPF_Edit))
				{
					Rows + SVerticalBox::Slot()[SNew(SPropertyRow).Object(InObject).Property(Property.get())];
				}
			}
		}
		ChildSlot[TSlateDecl<SVerticalBox>() <<= Rows];
	}
};
} // namespace

TSharedRef<IDetailsView> FPropertyEditorModule::CreateDetailView(const FDetailsViewArgs&)
{
	return SNew(SDetailsView);
}

IMPLEMENT_HOST_MODULE(FPropertyEditorModule, PropertyEditor)
