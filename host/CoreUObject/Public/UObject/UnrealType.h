// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Properties: where a value lies and how it is written as text. The text form is that of config files.
#pragma once

#include "UObject/Class.h"

class COREUOBJECT_API FProperty
{
public:
	FProperty(const TCHAR* InName, size_t InOffset, uint64 InFlags)
		: Name(InName), Offset(InOffset), PropertyFlags(InFlags)
	{
	}

	virtual ~FProperty() = default;
	FProperty(const FProperty&) = delete;
	FProperty& operator=(const FProperty&) = delete;

	FName GetFName() const { return Name; }

	FString GetName() const { return Name.ToString(); }

	/** In bytes from the begin of the owner. */
	size_t GetOffset() const { return Offset; }

	bool HasAnyPropertyFlags(uint64 FlagsToCheck) const { return (PropertyFlags & FlagsToCheck) != 0; }

	const FString& GetMetaData(const FName& Key) const;

	void* ContainerPtrToValuePtr(void* Container) const { return static_cast<char*>(Container) + Offset; }

	/** The name of the type in C++, such as "float" or "TArray<FName>". */
	virtual FString GetCPPType() const = 0;

	/** In bytes. */
	virtual size_t ElementSize() const = 0;

	virtual void AppendText(FString& Out, const void* Value) const = 0;

	/** Reads a value and moves the cursor behind it. @return false when the text is none; the value is then as before */
	virtual bool ReadText(const TCHAR*& Cursor, void* Value) const = 0;

	TMap<FName, FString> MetaData;

private:
	FName Name;
	size_t Offset;
	uint64 PropertyFlags;
};

/** A property of one C++ type without parts. */
template <class T>
class TPlainProperty : public FProperty
{
public:
	using FProperty::FProperty;

	size_t ElementSize() const override { return sizeof(T); }

	COREUOBJECT_API FString GetCPPType() const override;
	COREUOBJECT_API void AppendText(FString& Out, const void* Value) const override;
	COREUOBJECT_API bool ReadText(const TCHAR*& Cursor, void* Value) const override;
};

using FBoolProperty = TPlainProperty<bool>;
using FFloatProperty = TPlainProperty<float>;
using FNameProperty = TPlainProperty<FName>;

class COREUOBJECT_API FObjectProperty : public FProperty
{
public:
	FObjectProperty(const TCHAR* InName, size_t InOffset, uint64 InFlags, UClass* (*InClass)())
		: FProperty(InName, InOffset, InFlags), Class(InClass)
	{
	}

	UClass* GetPropertyClass() const { return Class(); }

	size_t ElementSize() const override { return sizeof(UObject*); }

	FString GetCPPType() const override;
	void AppendText(FString& Out, const void* Value) const override;
	bool ReadText(const TCHAR*& Cursor, void* Value) const override;

private:
	/** Asked when needed: a class may hold pointers to itself. */
	UClass* (*Class)();
};

class COREUOBJECT_API FStructProperty : public FProperty
{
public:
	FStructProperty(const TCHAR* InName, size_t InOffset, uint64 InFlags, UScriptStruct* InStruct)
		: FProperty(InName, InOffset, InFlags), Struct(InStruct)
	{
	}

	UScriptStruct* GetStruct() const { return Struct; }

	size_t ElementSize() const override { return static_cast<size_t>(Struct->GetPropertiesSize()); }

	FString GetCPPType() const override;
	void AppendText(FString& Out, const void* Value) const override;
	bool ReadText(const TCHAR*& Cursor, void* Value) const override;

private:
	bool ReadMember(const TCHAR*& Cursor, void* Value) const;

	UScriptStruct* Struct;
};

/** How the values of one array type are reached. */
struct FArrayOperations
{
	int32 (*Num)(const void* Array);
	const void* (*Get)(const void* Array, int32 Index);
	void (*Empty)(void* Array);

	/** Appends a default element and gives its address. */
	void* (*AddDefaulted)(void* Array);
};

class COREUOBJECT_API FArrayProperty : public FProperty
{
public:
	/** Owns the inner property. */
	FArrayProperty(
		const TCHAR* InName, size_t InOffset, uint64 InFlags, const FArrayOperations& InOperations, FProperty* InInner)
		: FProperty(InName, InOffset, InFlags), Operations(InOperations), Inner(InInner)
	{
	}

	const FProperty* GetInner() const { return Inner.get(); }

	const FArrayOperations& GetOperations() const { return Operations; }

	size_t ElementSize() const override { return sizeof(TArray<int32>); }

	FString GetCPPType() const override;

	/** Not as one text: config files keep one line an element. */
	void AppendText(FString& Out, const void* Value) const override;
	bool ReadText(const TCHAR*& Cursor, void* Value) const override;

private:
	FArrayOperations Operations;
	std::unique_ptr<FProperty> Inner;
};

template <class T>
const FArrayOperations& ArrayOperations()
{
	static constexpr FArrayOperations Operations{[](const void* Array)
		{ return static_cast<const TArray<T>*>(Array)->Num(); },
		[](const void* Array, int32 Index) -> const void* { return &(*static_cast<const TArray<T>*>(Array))[Index]; },
		[](void* Array) { static_cast<TArray<T>*>(Array)->Empty(); },
		[](void* Array) -> void*
		{
			TArray<T>& Values = *static_cast<TArray<T>*>(Array);
			Values.Emplace();
			return &Values.Last();
		}};
	return Operations;
}
