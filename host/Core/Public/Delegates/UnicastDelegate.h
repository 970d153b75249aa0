// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Templates/SharedPointer.h"

#include <functional>

/** A pointer to a method of exactly this signature, const or not; only const ones for a const class. */
template <typename MethodType, typename Class, typename RetValType, typename... ParamTypes>
concept CMethodOf =
	std::is_convertible_v<MethodType, RetValType (std::remove_const_t<Class>::*)(ParamTypes...) const> ||
	(!std::is_const_v<Class> &&
		std::is_convertible_v<MethodType, RetValType (std::remove_const_t<Class>::*)(ParamTypes...)>);

/**
 * One bound function or none. Payload arguments are copied at binding and follow the call's own. Copies share what they
 * are bound to. An exception that leaves the bound function ends the process.
 */
template <typename Signature>
class TDelegate;

template <typename RetValType, typename... ParamTypes>
class TDelegate<RetValType(ParamTypes...)>
{
public:
	TDelegate() = default;

	/** The object is not kept alive and must outlive the binding. Fatal when it or the method is null. */
	template <typename UserClass, typename MethodType, typename... VarTypes>
	requires CMethodOf<MethodType, UserClass, RetValType, ParamTypes..., VarTypes...>
	[[nodiscard]] static TDelegate CreateRaw(UserClass* InUserObject, MethodType MethodPtr, VarTypes... Vars)
	{
		check(InUserObject != nullptr && MethodPtr != nullptr);
		TDelegate Delegate = CreateLambda([=](ParamTypes... Params) -> RetValType
			{ return (InUserObject->*MethodPtr)(std::forward<ParamTypes>(Params)..., Vars...); });
		Delegate.Binding->Object = InUserObject;
		return Delegate;
	}

	/** The object is watched, and kept alive during a call; once it is gone the delegate counts as unbound. */
	template <typename UserClass, typename MethodType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateSP(
		const TSharedRef<UserClass>& InUserObject, MethodType MethodPtr, VarTypes... Vars)
	{
		TDelegate Delegate = CreateRaw(&InUserObject.Get(), MethodPtr, Vars...);
		Delegate.Binding->bIsWatched = true;
		Delegate.Binding->Watched = InUserObject;
		return Delegate;
	}

	/** The object must have owners already. */
	template <typename UserClass, typename MethodType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateSP(UserClass* InUserObject, MethodType MethodPtr, VarTypes... Vars)
	{
		return CreateSP(StaticCastSharedRef<UserClass>(InUserObject->AsShared()), MethodPtr, Vars...);
	}

	template <typename FunctorType>
	[[nodiscard]] static TDelegate CreateLambda(FunctorType&& Functor)
	{
		TDelegate Delegate;
		Delegate.Binding = std::make_shared<FBinding>(FBinding{std::forward<FunctorType>(Functor)});
		return Delegate;
	}

	template <typename... VarTypes>
	[[nodiscard]] static TDelegate CreateStatic(
		std::type_identity_t<RetValType (*)(ParamTypes..., VarTypes...)> StaticFuncPtr, VarTypes... Vars)
	{
		check(StaticFuncPtr != nullptr);
		return CreateLambda([=](ParamTypes... Params) -> RetValType
			{ return StaticFuncPtr(std::forward<ParamTypes>(Params)..., Vars...); });
	}

	/** False also once the bound object is gone. */
	bool IsBound() const { return Binding && !(Binding->bIsWatched && Binding->Watched.expired()); }

	bool IsBoundToObject(const void* Object) const { return Object && IsBound() && Binding->Object == Object; }

	/** Must be bound; unbound it crashes. */
	RetValType Execute(ParamTypes... Params) const noexcept
	{
		// A copy: the call may destroy this delegate, or the last owner of the object.
		const std::shared_ptr<const FBinding> Kept = Binding;
		const std::shared_ptr<const void> Object = Kept->Watched.lock();
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
		const void* Object = nullptr;

		bool bIsWatched = false;
		std::weak_ptr<const void> Watched{};
	};

	std::shared_ptr<FBinding> Binding;
};
