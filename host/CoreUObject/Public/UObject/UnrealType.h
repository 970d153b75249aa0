// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Properties: where a value lies and how it is written as text. The text form is that of config files.
#pragma once

#include "UObject/Class.h"
#include "UObject/GCObject.h"

/** Values as text. A text that is none for the type leaves the value alone. */
namespace HostText
{
inline FString Write(bool Value)
{
	return Value ? TEXT("True") : TEXT("False");
}
inline FString Write(float Value)
{
	return FString::Printf(TEXT("%f"), static_cast<double>(Value));
}
inline FString Write(const FVector4& Value)
{
	return FString::Printf(TEXT("(X=%f,Y=%f,Z=%f,W=%f)"), Value.X, Value.Y, Value.Z, Value.W);
}
COREUOBJECT_API FString Write(const FName& Value);
COREUOBJECT_API FString Write(const FString& Value);
COREUOBJECT_API FString WriteObject(const UObject* Value);
COREUOBJECT_API FString WriteStruct(const UScriptStruct& Struct, const void* Value);

COREUOBJECT_API void Read(const FString& Text, bool& OutValue);
COREUOBJECT_API void Read(const FString& Text, float& OutValue);
COREUOBJECT_API void Read(const FString& Text, FName& OutValue);
COREUOBJECT_API void Read(const FString& Text, FString& OutValue);
COREUOBJECT_API void Read(const FString& Text, FVector4& OutValue);
COREUOBJECT_API UObject* ReadObject(const FString& Text, UClass* Class, UObject* Before);
COREUOBJECT_API void ReadStruct(const FString& Text, const UScriptStruct& Struct, void* OutValue);

template <class T>
FString Write(const TObjectPtr<T>& Value)
{
	return WriteObject(Value);
}

template <class T>
void Read(const FString& Text, TObjectPtr<T>& OutValue)
{
	OutValue = static_cast<T*>(ReadObject(Text, T::StaticClass(), OutValue));
}

template <class T>
FString Write(const T& Value)
{
	return WriteStruct(*T::StaticStruct(), &Value);
}

template <class T>
void Read(const FString& Text, T& OutValue)
{
	ReadStruct(Text, *T::StaticStruct(), &OutValue);
}

/** Bytes are one line in hexadecimal. */
COREUOBJECT_API TArray<FString> WriteLines(const TArray<uint8>& Values);
COREUOBJECT_API void ReadLines(const TArray<FString>& Lines, TArray<uint8>& OutValues);

/** The lines of a config file: one an element for arrays. */
template <class T>
TArray<FString> WriteLines(const T& Value)
{
	return {Write(Value)};
}

template <class T>
TArray<FString> WriteLines(const TArray<T>& Values)
{
	TArray<FString> Lines;
	for (const T& Value : Values)
	{
		Lines.Add(Write(Value));
	}
	return Lines;
}

template <class T>
void ReadLines(const TArray<FString>& Lines, T& OutValue)
{
	Read(Lines.Last(), OutValue);
}

/** An element that cannot be read is a default one. */
template <class T>
void ReadLines(const TArray<FString>& Lines, TArray<T>& OutValues)
{
	OutValues.Empty();
	for (const FString& Line : Lines)
	{
		Read(Line, OutValues.Emplace_GetRef());
	}
}
} // namespace HostText

/** Goes over the references in a value. */
namespace HostReferences
{
template <class T>
void Visit(TObjectPtr<T>& Value, FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(Value);
}

template <class T>
void Visit(T& Value, FReferenceCollector& Collector)
{
	if constexpr (requires { T::StaticStruct(); })
	{
		Collector.AddReferencedObjects(*T::StaticStruct(), &Value);
	}
}

template <class T>
void Visit(TArray<T>& Values, FReferenceCollector& Collector)
{
	for (T& Value : Values)
	{
		Visit(Value, Collector);
	}
}
} // namespace HostReferences

class FProperty
{
public:
	FProperty(const TCHAR* InName, size_t InOffset, uint64 InFlags) : Name(InName), Offset(InOffset), Flags(InFlags) {}
	virtual ~FProperty() = default;

	FName GetFName() const { return Name; }
	FString GetName() const { return Name; }
	bool HasAnyPropertyFlags(uint64 FlagsToCheck) const { return (Flags & FlagsToCheck) != 0; }

	/** The value as lines of a config file: one, or one an element for arrays. */
	virtual TArray<FString> ToLines(const void* Container) const = 0;

	/** @param Lines not empty */
	virtual void ReadLines(const TArray<FString>& Lines, void* Container) const = 0;

	virtual void AddReferencedObjects(void* Container, FReferenceCollector& Collector) const = 0;

protected:
	const TCHAR* const Name;

	/** In bytes from the begin of the owner. */
	const size_t Offset;

	/** EPropertyFlags. */
	const uint64 Flags;
};

/** A property that is a T in C++. */
template <class T>
class TProperty final : public FProperty
{
public:
	using FProperty::FProperty;

	TArray<FString> ToLines(const void* Container) const override
	{
		return HostText::WriteLines(ValueIn(const_cast<void*>(Container)));
	}
	void ReadLines(const TArray<FString>& Lines, void* Container) const override
	{
		HostText::ReadLines(Lines, ValueIn(Container));
	}
	void AddReferencedObjects(void* Container, FReferenceCollector& Collector) const override
	{
		HostReferences::Visit(ValueIn(Container), Collector);
	}

private:
	T& ValueIn(void* Container) const { return *reinterpret_cast<T*>(static_cast<char*>(Container) + Offset); }
};

/** Tells which property a user changed. */
struct FPropertyChangedEvent
{
	explicit FPropertyChangedEvent(FProperty* InProperty) : Property(InProperty) {}

	FProperty* Property;
};
