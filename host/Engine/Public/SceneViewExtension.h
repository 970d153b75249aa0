// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// How plug-ins change views before they are rendered.
#pragma once

#include "CoreMinimal.h"

class FSceneView;
class FSceneViewFamily;
class FViewport;

/** Only the engine's factory makes one: extensions register themselves. */
class FAutoRegister
{
	friend class FSceneViewExtensions;
	FAutoRegister() = default;
};

/** For what views are about to be made. */
struct FSceneViewExtensionContext
{
	FViewport* Viewport = nullptr;
};

class ISceneViewExtension
{
public:
	virtual ~ISceneViewExtension() = default;
	virtual void SetupViewFamily(FSceneViewFamily& InViewFamily) = 0;
	virtual void SetupView(FSceneViewFamily& InViewFamily, FSceneView& InView) = 0;
	virtual void BeginRenderViewFamily(FSceneViewFamily& InViewFamily) = 0;
	virtual bool IsActiveThisFrame(const FSceneViewExtensionContext& Context) const = 0;
};

class FSceneViewExtensionBase : public ISceneViewExtension
{
public:
	explicit FSceneViewExtensionBase(const FAutoRegister&) {}

	bool IsActiveThisFrame(const FSceneViewExtensionContext& Context) const final
	{
		return IsActiveThisFrame_Internal(Context);
	}

protected:
	virtual bool IsActiveThisFrame_Internal(const FSceneViewExtensionContext&) const { return true; }
};

/** The extensions of the engine; it holds them weakly. */
class FSceneViewExtensions
{
public:
	/** Needs the engine. */
	template <typename ExtensionType, typename... ArgTypes>
	static TSharedRef<ExtensionType> NewExtension(ArgTypes&&... Args)
	{
		const TSharedRef<ExtensionType> Extension =
			MakeShared<ExtensionType>(FAutoRegister(), std::forward<ArgTypes>(Args)...);
		RegisterExtension(Extension);
		return Extension;
	}

	/** Those that are active for the context, in the order of their registration. */
	ENGINE_API TArray<TSharedRef<ISceneViewExtension>> GatherActiveExtensions(
		const FSceneViewExtensionContext& InContext) const;

private:
	ENGINE_API static void RegisterExtension(const TSharedRef<ISceneViewExtension>& Extension);

	TArray<TWeakPtr<ISceneViewExtension>> KnownExtensions;
};
