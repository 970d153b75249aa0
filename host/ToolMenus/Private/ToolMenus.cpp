// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "ToolMenus.h"

#include "Host/Trace.h"
#include "Modules/ModuleManager.h"
#include "UObject/WeakObjectPtr.h"

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

UToolMenus* UToolMenus::TryGet()
{
	return static_cast<UToolMenus*>(Singleton.Get());
}

void UToolMenus::UnregisterOwnerInternal(FToolMenuOwner Owner)
{
	if (Owner.IsSet())
	{
		HostTrace::Line(TEXT("unregister menu owner"));
	}
}
