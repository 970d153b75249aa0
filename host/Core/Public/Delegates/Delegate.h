// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Delegate types by macro. The macros end without semicolon.
#pragma once

#include "Delegates/MulticastDelegate.h"

#define DECLARE_DELEGATE(Name) using Name = TDelegate<void()>
#define DECLARE_DELEGATE_OneParam(Name, P1) using Name = TDelegate<void(P1)>
#define DECLARE_DELEGATE_RetVal(Ret, Name) using Name = TDelegate<Ret()>
#define DECLARE_DELEGATE_RetVal_OneParam(Ret, Name, P1) using Name = TDelegate<Ret(P1)>

#define DECLARE_DELEGATE_RetVal_TwoParams(Ret, Name, P1, P2) using Name = TDelegate<Ret(P1, P2)>

#define DECLARE_MULTICAST_DELEGATE(Name) using Name = TMulticastDelegate<void()>
#define DECLARE_MULTICAST_DELEGATE_OneParam(Name, P1) using Name = TMulticastDelegate<void(P1)>
#define DECLARE_MULTICAST_DELEGATE_TwoParams(Name, P1, P2) using Name = TMulticastDelegate<void(P1, P2)>

/** Anyone may broadcast. */
#define DECLARE_EVENT(OwningType, Name) using Name = TMulticastDelegate<void()>

DECLARE_DELEGATE(FSimpleDelegate);
DECLARE_MULTICAST_DELEGATE(FSimpleMulticastDelegate);
