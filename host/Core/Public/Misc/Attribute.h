// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Delegates/Delegate.h"

/** A value, or the function that gives it anew each time. */
template <typename ObjectType>
class TAttribute
{
public:
	TAttribute() = default;

	template <typename OtherType>
	requires std::is_convertible_v<const OtherType&, ObjectType> TAttribute(const OtherType& InInitialValue)
		: Value(InInitialValue), bIsSet(true)
	{
	}

	/** The object is watched, not kept alive; it must have owners already. */
	template <class SourceType>
	TAttribute(SourceType* InUserObject, ObjectType (std::type_identity_t<SourceType>::*InMethodPtr)() const)
		: Getter(TDelegate<ObjectType()>::CreateSP(InUserObject, InMethodPtr)), bIsSet(true)
	{
	}

	bool IsSet() const { return bIsSet; }

	/** The last value once the bound object is gone. */
	const ObjectType& Get() const
	{
		if (Getter.IsBound())
		{
			Value = Getter.Execute();
		}
		return Value;
	}

private:
	mutable ObjectType Value{};
	TDelegate<ObjectType()> Getter;
	bool bIsSet = false;
};
