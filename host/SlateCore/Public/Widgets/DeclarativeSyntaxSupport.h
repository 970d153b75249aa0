// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Declaring what a widget is constructed from, and constructing it.
#pragma once

#include "Misc/Attribute.h"

/** Opens the arguments as far as the head of their constructor: an initialiser list and its body follow. */
#define SLATE_BEGIN_ARGS(InWidgetType)                                                                                 \
public:                                                                                                                \
	struct FArguments                                                                                                  \
	{                                                                                                                  \
		using WidgetArgsType = FArguments;                                                                             \
		FArguments()

#define SLATE_END_ARGS()                                                                                               \
	}                                                                                                                  \
	;

/** A value; not initialised by itself. */
#define SLATE_ARGUMENT(ArgType, ArgName)                                                                               \
	ArgType _##ArgName;                                                                                                \
	WidgetArgsType& ArgName(ArgType InArg)                                                                             \
	{                                                                                                                  \
		_##ArgName = InArg;                                                                                            \
		return *this;                                                                                                  \
	}

/** What stands in brackets behind the arguments. */
#define SLATE_DEFAULT_SLOT(DeclarationType, SlotName)                                                                  \
	TSharedPtr<class SWidget> _##SlotName;                                                                             \
	DeclarationType& operator[](const TSharedRef<class SWidget>& InChild)                                              \
	{                                                                                                                  \
		_##SlotName = InChild;                                                                                         \
		return *this;                                                                                                  \
	}

/** A delegate. */
#define SLATE_EVENT(DelegateName, EventName)                                                                           \
	DelegateName _##EventName;                                                                                         \
	WidgetArgsType& EventName(const DelegateName& InDelegate)                                                          \
	{                                                                                                                  \
		_##EventName = InDelegate;                                                                                     \
		return *this;                                                                                                  \
	}                                                                                                                  \
	template <class UserClass, class MethodType>                                                                       \
	WidgetArgsType& EventName(UserClass* InUserObject, MethodType InMethod)                                            \
	{                                                                                                                  \
		return EventName(DelegateName::CreateSP(InUserObject, InMethod));                                              \
	}                                                                                                                  \
	template <class UserClass, class MethodType>                                                                       \
	WidgetArgsType& EventName##_Raw(UserClass* InUserObject, MethodType InMethod)                                      \
	{                                                                                                                  \
		return EventName(DelegateName::CreateRaw(InUserObject, InMethod));                                             \
	}

/** A widget under construction. */
template <class WidgetType>
struct TSlateDecl
{
	explicit TSlateDecl(const TCHAR* Type = TEXT("")) { Widget->Type = FName(Type); }

	/** Lets the pointer own the widget before it is constructed. */
	template <class ExposeAsWidgetType>
	TSlateDecl& Expose(TSharedPtr<ExposeAsWidgetType>& OutVarToInit)
	{
		OutVarToInit = Widget;
		return *this;
	}

	/** Constructs; binds weaker than the operators that add to the arguments. */
	TSharedRef<WidgetType> operator<<=(const typename WidgetType::FArguments& InArgs) const
	{
		Widget->Construct(InArgs);
		return Widget;
	}

	const TSharedRef<WidgetType> Widget = MakeShared<WidgetType>();
};

#define SNew(WidgetType) TSlateDecl<WidgetType>(TEXT(#WidgetType)) <<= WidgetType::FArguments()

/** As above; the pointer is set before Construct runs. */
#define SAssignNew(ExposeAs, WidgetType)                                                                               \
	TSlateDecl<WidgetType>(TEXT(#WidgetType)).Expose(ExposeAs) <<= WidgetType::FArguments()
