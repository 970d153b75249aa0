// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Member functions of UnknownElement. Use <cajun/json/elements.h>.
#pragma once

#include <cajun/json/detail/deep_operations.h>
#include <utility>

namespace json
{
inline UnknownElement::UnknownElement() noexcept = default;
inline UnknownElement::UnknownElement(Null value) noexcept : value_(value) {}
inline UnknownElement::UnknownElement(Boolean value) noexcept : value_(value) {}
inline UnknownElement::UnknownElement(String value) noexcept : value_(std::move(value)) {}
inline UnknownElement::UnknownElement(Number value) noexcept : value_(value) {}
inline UnknownElement::UnknownElement(const Object& value) : UnknownElement(Object(value)) {}
inline UnknownElement::UnknownElement(Object&& value) : value_(std::make_unique<Box<Object>>(std::move(value))) {}
inline UnknownElement::UnknownElement(const Array& value) : UnknownElement(Array(value)) {}
inline UnknownElement::UnknownElement(Array&& value) : value_(std::make_unique<Box<Array>>(std::move(value))) {}

inline UnknownElement::UnknownElement(const UnknownElement& other) : UnknownElement()
{
	Copy().Run(other, *this);
}

inline UnknownElement::UnknownElement(UnknownElement&& other) noexcept : UnknownElement()
{
	value_.swap(other.value_);
}

inline UnknownElement& UnknownElement::operator=(UnknownElement other) noexcept
{
	value_.swap(other.value_);
	return *this;
}

inline UnknownElement::~UnknownElement()
{
	Disposal disposal;
	disposal.Take(*this);
	disposal.Run();
}

template <class Kind>
const Kind* UnknownElement::Find() const noexcept
{
	if constexpr (std::same_as<Kind, Object> || std::same_as<Kind, Array>)
	{
		const BoxPointer<Kind>* box = std::get_if<BoxPointer<Kind>>(&value_);
		return box ? &(*box)->content : nullptr;
	}
	else
	{
		return std::get_if<Kind>(&value_);
	}
}

template <class Kind>
const Kind& UnknownElement::As() const
{
	const Kind* held = Find<Kind>();
	if (!held)
	{
		throw Exception("Bad cast");
	}
	return *held;
}

template <class Kind>
Kind& UnknownElement::As()
{
	if (Find<Null>())
	{
		*this = Kind();
	}
	return const_cast<Kind&>(std::as_const(*this).As<Kind>());
}

inline UnknownElement::operator Null&()
{
	return As<Null>();
}

inline UnknownElement::operator Boolean&()
{
	return As<Boolean>();
}

inline UnknownElement::operator String&()
{
	return As<String>();
}

inline UnknownElement::operator Number&()
{
	return As<Number>();
}

inline UnknownElement::operator Object&()
{
	return As<Object>();
}

inline UnknownElement::operator Array&()
{
	return As<Array>();
}

inline UnknownElement::operator const Null&() const
{
	return As<Null>();
}

inline UnknownElement::operator const Boolean&() const
{
	return As<Boolean>();
}

inline UnknownElement::operator const String&() const
{
	return As<String>();
}

inline UnknownElement::operator const Number&() const
{
	return As<Number>();
}

inline UnknownElement::operator const Object&() const
{
	return As<Object>();
}

inline UnknownElement::operator const Array&() const
{
	return As<Array>();
}

inline UnknownElement& UnknownElement::operator[](const std::string& name)
{
	return As<Object>()[name];
}

inline const UnknownElement& UnknownElement::operator[](const std::string& name) const
{
	return As<Object>()[name];
}

inline UnknownElement& UnknownElement::operator[](std::size_t index)
{
	return As<Array>()[index];
}

inline const UnknownElement& UnknownElement::operator[](std::size_t index) const
{
	return As<Array>()[index];
}

inline void UnknownElement::Accept(Visitor& visitor)
{
	const auto show = [&]<class Held>(Held& held)
	{
		if constexpr (ElementKind<Held>)
		{
			visitor.Visit(held);
		}
		else
		{
			visitor.Visit(held->content);
		}
	};
	std::visit(show, value_);
}

inline void UnknownElement::Accept(ConstVisitor& visitor) const
{
	const auto show = [&]<class Held>(const Held& held)
	{
		if constexpr (ElementKind<Held>)
		{
			visitor.Visit(held);
		}
		else
		{
			visitor.Visit(std::as_const(held->content));
		}
	};
	std::visit(show, value_);
}

inline bool UnknownElement::operator==(const UnknownElement& other) const
{
	return Comparison().Run(*this, other);
}

template <ElementKind Kind>
bool UnknownElement::operator==(const Kind& value) const
{
	const Kind* held = Find<Kind>();
	return held && *held == value;
}
} // namespace json
