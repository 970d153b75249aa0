// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// How objects that the object system does not know take part in collections.
#pragma once

#include "UObject/ObjectPtr.h"

class UStruct;

/** Goes over references before a collection: what it meets stays, and so does what that refers to. */
class COREUOBJECT_API FReferenceCollector
{
public:
	/** A reference to garbage becomes null. */
	template <class T>
	void AddReferencedObject(TObjectPtr<T>& Object)
	{
		Object = IsValid(Object) ? Object : nullptr;
		Reach(Object);
	}

	/** Of a reflected value, as its properties tell. */
	void AddReferencedObjects(const UStruct& Type, void* Value);

	/** Null is allowed. */
	void Reach(UObject* Object);
};

/** Whoever derives from this is asked for its references at each collection. Game thread. */
class FGCObject
{
public:
	COREUOBJECT_API FGCObject();
	COREUOBJECT_API virtual ~FGCObject();
	FGCObject(const FGCObject&) = delete;
	FGCObject& operator=(const FGCObject&) = delete;

	virtual void AddReferencedObjects(FReferenceCollector& Collector) = 0;

	/** For people who look for what keeps an object alive. */
	virtual FString GetReferencerName() const = 0;
};
