// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Delegates/IDelegateInstance.h"
#include "Templates/SharedPointer.h"

#include <functional>

/** A pointer to a method of exactly this signature, const or not; only const ones for a const class. */
template <typename Class, typename Signature>
class TMethodPtr;

template <typename Class, typename RetValType, typename... ParamTypes>
class TMethodPtr<Class, RetValType(ParamTypes...)>
{
	using PlainClass = std::remove_const_t<Class>;

public:
	TMethodPtr(RetValType (PlainClass::*Method)(ParamTypes...)) requires(!std::is_const_v<Class>) : Function(Method) {}

	TMethodPtr(RetValType (PlainClass::*Method)(ParamTypes...) const) : Function(Method) {}

	bool operator==(std::nullptr_t) const { return !Function; }

	/** Calls the method with all its arguments. */
	std::function<RetValType(Class*, ParamTypes...)> Function;
};

/**
 * One bound function or none. Payload arguments are copied at binding and follow the call's own. Copies share what they
 * are bound to. An exception that leaves the bound function ends the process.
 */
template <typename Signature>
class TDelegate;

template <typename RetValType, typename... ParamTypes>
class TDelegate<RetValType(ParamTypes...)>
{
	template <typename Class, typename... VarTypes>
	using TMethod = std::type_identity_t<TMethodPtr<Class, RetValType(ParamTypes..., std::decay_t<VarTypes>...)>>;

	template <typename... VarTypes>
	using TStatic = std::type_identity_t<RetValType (*)(ParamTypes..., std::decay_t<VarTypes>...)>;

public:
	TDelegate() = default;
	TDelegate(std::nullptr_t) {}

	/** The object is not kept alive and must outlive the binding. Fatal when it or the method is null. */
	template <typename UserClass, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateRaw(
		UserClass* InUserObject, TMethod<UserClass, VarTypes...> MethodPtr, VarTypes&&... Vars)
	{
		check(InUserObject != nullptr && MethodPtr != nullptr);
		auto Call = [InUserObject, Method = std::move(MethodPtr.Function),
						... Payload = std::decay_t<VarTypes>(std::forward<VarTypes>(Vars))](
						ParamTypes... Params) mutable -> RetValType
		{ return Method(InUserObject, std::forward<ParamTypes>(Params)..., Payload...); };
		return TDelegate(std::move(Call), InUserObject);
	}

	/** The object is watched, and kept alive during a call; once it is gone the delegate counts as unbound. */
	template <typename UserClass, ESPMode Mode, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateSP(
		const TSharedRef<UserClass, Mode>& InUserObject, TMethod<UserClass, VarTypes...> MethodPtr, VarTypes&&... Vars)
	{
		const TWeakPtr<UserClass, Mode> Weak = InUserObject;
		auto Call = [Weak, Method = std::move(MethodPtr.Function),
						... Payload = std::decay_t<VarTypes>(std::forward<VarTypes>(Vars))](
						ParamTypes... Params) mutable -> RetValType
		{
			const TSharedRef<UserClass, Mode> Pinned = Weak.Pin().ToSharedRef();
			return Method(&Pinned.Get(), std::forward<ParamTypes>(Params)..., Payload...);
		};
		return TDelegate(std::move(Call), &InUserObject.Get(), [Weak] { return Weak.IsValid(); });
	}

	/** The object must have owners already. */
	template <typename UserClass, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateSP(
		UserClass* InUserObject, TMethod<UserClass, VarTypes...> MethodPtr, VarTypes&&... Vars)
	{
		return CreateSP(StaticCastSharedRef<UserClass>(InUserObject->AsShared()), std::move(MethodPtr),
			std::forward<VarTypes>(Vars)...);
	}

	template <typename FunctorType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateLambda(FunctorType&& Functor, VarTypes&&... Vars)
	{
		auto Call = [Function = std::decay_t<FunctorType>(std::forward<FunctorType>(Functor)),
						... Payload = std::decay_t<VarTypes>(std::forward<VarTypes>(Vars))](
						ParamTypes... Params) mutable -> RetValType
		{ return Function(std::forward<ParamTypes>(Params)..., Payload...); };
		return TDelegate(std::move(Call), nullptr);
	}

	template <typename... VarTypes>
	[[nodiscard]] static TDelegate CreateStatic(TStatic<VarTypes...> StaticFuncPtr, VarTypes&&... Vars)
	{
		check(StaticFuncPtr != nullptr);
		return CreateLambda(StaticFuncPtr, std::forward<VarTypes>(Vars)...);
	}

	template <typename... ArgTypes>
	void BindRaw(ArgTypes&&... Args)
	{
		*this = CreateRaw(std::forward<ArgTypes>(Args)...);
	}

	template <typename... ArgTypes>
	void BindSP(ArgTypes&&... Args)
	{
		*this = CreateSP(std::forward<ArgTypes>(Args)...);
	}

	template <typename... ArgTypes>
	void BindLambda(ArgTypes&&... Args)
	{
		*this = CreateLambda(std::forward<ArgTypes>(Args)...);
	}

	template <typename... ArgTypes>
	void BindStatic(ArgTypes&&... Args)
	{
		*this = CreateStatic(std::forward<ArgTypes>(Args)...);
	}

	/** False also once the bound object is gone. */
	bool IsBound() const { return Binding && (!Binding->IsAlive || Binding->IsAlive()); }

	bool IsBoundToObject(const void* Object) const { return Object && IsBound() && Binding->Object == Object; }

	/** Invalid while nothing was bound. */
	FDelegateHandle GetHandle() const { return Binding ? Binding->Handle : FDelegateHandle(); }

	void Unbind() { Binding.reset(); }

	/** Must be bound; unbound it crashes. */
	RetValType Execute(ParamTypes... Params) const noexcept
	{
		checkSlow(IsBound());
		// A copy: the call may unbind or destroy this delegate.
		const std::shared_ptr<FBinding> Kept = Binding;
		return Kept->Call(std::forward<ParamTypes>(Params)...);
	}

	/** @return whether something was called */
	bool ExecuteIfBound(ParamTypes... Params) const noexcept requires std::is_void_v<RetValType>
	{
		if (!IsBound())
		{
			return false;
		}
		Execute(std::forward<ParamTypes>(Params)...);
		return true;
	}

private:
	struct FBinding
	{
		std::function<RetValType(ParamTypes...)> Call;

		/** A key for searches. */
		const void* Object;

		/** Empty when nothing is watched. */
		std::function<bool()> IsAlive;

		FDelegateHandle Handle{FDelegateHandle::GenerateNewHandle};
	};

	TDelegate(std::function<RetValType(ParamTypes...)> Call, const void* Object, std::function<bool()> IsAlive = {})
		: Binding(new FBinding{std::move(Call), Object, std::move(IsAlive)})
	{
	}

	std::shared_ptr<FBinding> Binding;
};
