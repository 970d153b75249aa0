// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Delegates/UnicastDelegate.h"
#include "Host/Trace.h"

#include <vector>

/** Names one binding. Valid means that it was once bound, not that it still is. */
class FDelegateHandle
{
public:
	/** Unique in the process. Any thread. */
	CORE_API static FDelegateHandle New();

	bool IsValid() const { return ID != 0; }

	void Reset() { ID = 0; }

	friend bool operator==(const FDelegateHandle&, const FDelegateHandle&) = default;

private:
	uint64 ID = 0;
};

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
		const FDelegateHandle Handle = FDelegateHandle::New();
		Entries.push_back({Handle, std::move(NewDelegate)});
		return Handle;
	}

	template <typename UserClass, typename MethodType>
	FDelegateHandle AddRaw(UserClass* InUserObject, MethodType MethodPtr)
	{
		return Add(FDelegate::CreateRaw(InUserObject, MethodPtr));
	}

	/** @return false for a handle that is invalid or no longer bound here */
	bool Remove(FDelegateHandle Handle)
	{
		return UnbindWhere([Handle](const FEntry& E) { return Handle.IsValid() && E.Handle == Handle; }) > 0;
	}

	/**
	 * Removes what is bound to exactly this address. While idle, the last entries fill the holes, and entries whose
	 * object is gone are dropped and counted too.
	 */
	int32 RemoveAll(const void* UserObject)
	{
		return UnbindWhere([this, UserObject](const FEntry& E)
			{ return E.Delegate.IsBoundToObject(UserObject) || (Broadcasts == 0 && !E.Delegate.IsBound()); });
	}

	bool IsBoundToObject(const void* UserObject) const
	{
		return std::any_of(Entries.begin(), Entries.end(),
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
		for (size_t Index = Entries.size(); Index-- > 0;)
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
		for (FEntry& Entry : Entries)
		{
			if (Pred(Entry))
			{
				Entry = FEntry();
				++Count;
			}
		}
		Compact();
		if (TraceName)
		{
			HostTrace::Line(TEXT("unbind %s (%d)"), TraceName, Count);
		}
		return Count;
	}

	/** Entries keep their places during a broadcast, so that its walk stays right. */
	void Compact() const
	{
		for (size_t Index = 0; Broadcasts == 0 && Index < Entries.size();)
		{
			if (Entries[Index].Delegate.IsBound())
			{
				++Index;
				continue;
			}
			std::swap(Entries[Index], Entries.back());
			Entries.pop_back();
		}
	}

	const TCHAR* TraceName = nullptr;
	mutable std::vector<FEntry> Entries;
	mutable int32 Broadcasts = 0;
};
