// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The element of any kind. Use <cajun/json/elements.h>.
#pragma once

#include <cajun/json/detail/values.h>
#include <cajun/json/detail/visitors.h>
#include <concepts>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <variant>

namespace json
{
template <class Type>
concept ElementKind = std::same_as<Type, Null> || std::same_as<Type, Boolean> || std::same_as<Type, String> ||
	std::same_as<Type, Number> || std::same_as<Type, Object> || std::same_as<Type, Array>;

/**
 * Holds one element of any kind, Null at first. A copy is deep. Nesting may be as deep as memory allows: destroying,
 * copying and comparing use no more call stack for deep trees than for flat ones. What is moved from is Null.
 * Like a standard container, an element may be read by several threads at once but changed by one alone.
 */
class UnknownElement
{
public:
	UnknownElement() noexcept;
	UnknownElement(Null value) noexcept;
	UnknownElement(Boolean value) noexcept;
	UnknownElement(String value) noexcept;
	UnknownElement(Number value) noexcept;
	UnknownElement(const Object& value);
	UnknownElement(Object&& value);
	UnknownElement(const Array& value);
	UnknownElement(Array&& value);

	UnknownElement(const UnknownElement& other);
	UnknownElement(UnknownElement&& other) noexcept;
	UnknownElement& operator=(UnknownElement other) noexcept;
	~UnknownElement();

	/**
	 * The held value. Throws Exception "Bad cast" when the element holds another kind, except that a Null that may be
	 * changed becomes an empty element of the kind asked for.
	 */
	operator Null&();
	operator Boolean&();
	operator String&();
	operator Number&();
	operator Object&();
	operator Array&();
	operator const Null&() const;
	operator const Boolean&() const;
	operator const String&() const;
	operator const Number&() const;
	operator const Object&() const;
	operator const Array&() const;

	/** The member of that name of an object, as Object::operator[]. Throws "Bad cast" like the conversion. */
	UnknownElement& operator[](const std::string& name);
	const UnknownElement& operator[](const std::string& name) const;

	/** The element at that index of an array, as Array::operator[]. Throws "Bad cast" like the conversion. */
	UnknownElement& operator[](std::size_t index);
	const UnknownElement& operator[](std::size_t index) const;

	/** Shows the held value to the visitor. */
	void Accept(Visitor& visitor);
	void Accept(ConstVisitor& visitor) const;

	/** The kind decides first, then the value; objects are equal when their members are, in the same order. */
	bool operator==(const UnknownElement& other) const;
	template <ElementKind Kind>
	bool operator==(const Kind& value) const;

private:
	/** Objects and arrays on the heap, with a link for the list of those to be destroyed. */
	template <class Kind>
	struct Box
	{
		explicit Box(Kind&& kind) : content(std::move(kind)) {}

		Kind content;
		std::unique_ptr<Box> next;
	};
	template <class Kind>
	using BoxPointer = std::unique_ptr<Box<Kind>>;
	class Disposal;
	class Copy;
	class Comparison;

	/** The held value, or null when the element holds another kind. */
	template <class Kind>
	const Kind* Find() const noexcept;
	template <class Kind>
	const Kind& As() const;
	template <class Kind>
	Kind& As();

	std::variant<Null, Boolean, String, Number, BoxPointer<Object>, BoxPointer<Array>> value_;
};
} // namespace json
