// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Delegate types by macro. The macros end without semicolon.
#pragma once

#include "Delegates/MulticastDelegate.h"

#define DECLARE_DELEGATE(Name) using Name = TDelegate<void()>
#define DECLARE_DELEGATE_OneParam(Name, P1) using Name = TDelegate<void(P1)>
#define DECLARE_DELEGATE_TwoParams(Name, P1, P2) using Name = TDelegate<void(P1, P2)>
#define DECLARE_DELEGATE_ThreeParams(Name, P1, P2, P3) using Name = TDelegate<void(P1, P2, P3)>

#define DECLARE_DELEGATE_RetVal(Ret, Name) using Name = TDelegate<Ret()>
#define DECLARE_DELEGATE_RetVal_OneParam(Ret, Name, P1) using Name = TDelegate<Ret(P1)>
#define DECLARE_DELEGATE_RetVal_TwoParams(Ret, Name, P1, P2) using Name = TDelegate<Ret(P1, P2)>

#define DECLARE_MULTICAST_DELEGATE(Name) using Name = TMulticastDelegate<void()>
#define DECLARE_MULTICAST_DELEGATE_OneParam(Name, P1) using Name = TMulticastDelegate<void(P1)>
#define DECLARE_MULTICAST_DELEGATE_TwoParams(Name, P1, P2) using Name = TMulticastDelegate<void(P1, P2)>
#define DECLARE_MULTICAST_DELEGATE_ThreeParams(Name, P1, P2, P3) using Name = TMulticastDelegate<void(P1, P2, P3)>

/** A class of its own, so that it can be declared ahead and told apart. Anyone may broadcast. */
#define HOST_DECLARE_EVENT(OwningType, Name, ...)                                                                      \
	class Name : public TMulticastDelegate<void(__VA_ARGS__)>                                                          \
	{                                                                                                                  \
		friend class OwningType;                                                                                       \
                                                                                                                       \
	public:                                                                                                            \
		using TMulticastDelegate::TMulticastDelegate;                                                                  \
	}

#define DECLARE_EVENT(OwningType, Name) HOST_DECLARE_EVENT(OwningType, Name)
#define DECLARE_EVENT_OneParam(OwningType, Name, P1) HOST_DECLARE_EVENT(OwningType, Name, P1)
#define DECLARE_EVENT_TwoParams(OwningType, Name, P1, P2) HOST_DECLARE_EVENT(OwningType, Name, P1, P2)
#define DECLARE_EVENT_ThreeParams(OwningType, Name, P1, P2, P3) HOST_DECLARE_EVENT(OwningType, Name, P1, P2, P3)

DECLARE_DELEGATE(FSimpleDelegate);
DECLARE_MULTICAST_DELEGATE(FSimpleMulticastDelegate);
