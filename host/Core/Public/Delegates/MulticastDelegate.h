// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Containers/Array.h"
#include "Delegates/UnicastDelegate.h"
#include "Host/Trace.h"

/**
 * Any number of bound functions. Not for use by several threads at once. Bound functions may add and remove bindings,
 * their own included, and broadcast again.
 */
template <typename Signature>
class TMulticastDelegate;

template <typename... ParamTypes>
class TMulticastDelegate<void(ParamTypes...)>
{
public:
	using FDelegate = TDelegate<void(ParamTypes...)>;

	TMulticastDelegate() = default;

	/** Every use is written to the host's trace under this name, which must outlive the delegate. */
	explicit TMulticastDelegate(const TCHAR* InTraceName) : TraceName(InTraceName) {}

	TMulticastDelegate(const TMulticastDelegate&) = delete;
	TMulticastDelegate& operator=(const TMulticastDelegate&) = delete;

	/** Appends, also what is bound already. @return invalid for an unbound delegate, which is not added */
	FDelegateHandle Add(FDelegate NewDelegate)
	{
		if (!NewDelegate.IsBound())
		{
			return FDelegateHandle();
		}
		if (TraceName)
		{
			HostTrace::Line(TEXT("bind %s"), TraceName);
		}
		const FDelegateHandle Handle(FDelegateHandle::GenerateNewHandle);
		Entries.Add({Handle, std::move(NewDelegate)});
		return Handle;
	}

	template <typename... ArgTypes>
	FDelegateHandle AddRaw(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateRaw(std::forward<ArgTypes>(Args)...));
	}

	template <typename... ArgTypes>
	FDelegateHandle AddSP(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateSP(std::forward<ArgTypes>(Args)...));
	}

	template <typename... ArgTypes>
	FDelegateHandle AddLambda(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateLambda(std::forward<ArgTypes>(Args)...));
	}

	template <typename... ArgTypes>
	FDelegateHandle AddStatic(ArgTypes&&... Args)
	{
		return Add(FDelegate::CreateStatic(std::forward<ArgTypes>(Args)...));
	}

	/** @return false for a handle that is invalid or no longer bound here */
	bool Remove(FDelegateHandle Handle)
	{
		const bool bRemoved =
			Handle.IsValid() && UnbindWhere([Handle](const FEntry& E) { return E.Handle == Handle; }) > 0;
		TraceUnbind(bRemoved ? 1 : 0);
		return bRemoved;
	}

	/**
	 * Removes what is bound to exactly this address. While idle, the last entries fill the holes, and entries whose
	 * object is gone are dropped and counted too.
	 */
	int32 RemoveAll(const void* UserObject)
	{
		const int32 Count = UnbindWhere([this, UserObject](const FEntry& E)
			{ return E.Delegate.IsBoundToObject(UserObject) || (Broadcasts == 0 && !E.Delegate.IsBound()); });
		TraceUnbind(Count);
		return Count;
	}

	void Clear()
	{
		UnbindWhere([](const FEntry&) { return true; });
	}

	bool IsBound() const
	{
		return Entries.ContainsByPredicate([](const FEntry& E) { return E.Delegate.IsBound(); });
	}

	bool IsBoundToObject(const void* UserObject) const
	{
		return Entries.ContainsByPredicate(
			[UserObject](const FEntry& E) { return E.Delegate.IsBoundToObject(UserObject); });
	}

	/** Calls the last added first; not what is added, nor what is removed before its turn, meanwhile. */
	void Broadcast(ParamTypes... Params) const noexcept
	{
		if (TraceName)
		{
			HostTrace::Line(TEXT("broadcast %s"), TraceName);
		}
		++Broadcasts;
		for (int32 Index = Entries.Num() - 1; Index >= 0; --Index)
		{
			// A copy: the call may let the entries move.
			const FDelegate Delegate = Entries[Index].Delegate;
			Delegate.ExecuteIfBound(Params...);
		}
		--Broadcasts;
		Compact();
	}

private:
	struct FEntry
	{
		FDelegateHandle Handle;
		FDelegate Delegate;
	};

	template <typename Predicate>
	int32 UnbindWhere(Predicate Pred)
	{
		int32 Count = 0;
		for (int32 Index = 0; Index < Entries.Num(); ++Index)
		{
			if (Pred(Entries[Index]))
			{
				Entries[Index] = FEntry();
				++Count;
			}
		}
		Compact();
		return Count;
	}

	/** Entries keep their places during a broadcast, so that its walk stays right. */
	void Compact() const
	{
		for (int32 Index = 0; Broadcasts == 0 && Index < Entries.Num();)
		{
			if (Entries[Index].Delegate.IsBound())
			{
				++Index;
			}
			else
			{
				Entries.RemoveAtSwap(Index);
			}
		}
	}

	void TraceUnbind(int32 Count) const
	{
		if (TraceName)
		{
			HostTrace::Line(TEXT("unbind %s (%d)"), TraceName, Count);
		}
	}

	const TCHAR* TraceName = nullptr;
	mutable TArray<FEntry> Entries;
	mutable int32 Broadcasts = 0;
};
