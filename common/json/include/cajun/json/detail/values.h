// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The kinds of element that hold no other elements. Use <cajun/json/elements.h>.
#pragma once

#include <concepts>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace json
{
/** What every wrong use of the tree throws. */
class Exception : public std::runtime_error
{
public:
	using std::runtime_error::runtime_error;
};

/** The element without a value. All are equal. */
class Null
{
public:
	bool operator==(const Null&) const = default;
};

/** One value that can be used in place. */
template <class Held>
class TrivialElement
{
public:
	operator Held&() noexcept { return value_; }
	operator const Held&() const noexcept { return value_; }

	Held& Value() noexcept { return value_; }
	const Held& Value() const noexcept { return value_; }

	friend bool operator==(const TrivialElement& left, const TrivialElement& right)
	{
		return left.value_ == right.value_;
	}

protected:
	explicit TrivialElement(Held value) : value_(std::move(value)) {}

private:
	Held value_;
};

/** A truth value. Made from bool alone, so that neither text nor number turns into one unnoticed. */
class Boolean : public TrivialElement<bool>
{
public:
	Boolean() : TrivialElement(false) {}

	template <std::same_as<bool> Bool>
	Boolean(Bool value) : TrivialElement(value)
	{
	}
};

/** Text, UTF-8 by convention; any byte is kept, NUL included. */
class String : public TrivialElement<std::string>
{
public:
	String(std::string value = {}) : TrivialElement(std::move(value)) {}
	String(const char* value) : TrivialElement(value) {}

	friend bool operator==(const String& left, std::string_view right) { return left.Value() == right; }
};

/** A number and how many significant digits its text has. Numbers are equal when their values are. */
class Number : public TrivialElement<double>
{
public:
	/** The smallest precision of 15, 16 and 17 digits whose text reads back as the same value. */
	static constexpr int ShortestPrecision = -1;

	/** @param precision significant digits of the text; 0 counts as 1, anything negative as ShortestPrecision */
	Number(double value = 0, int precision = ShortestPrecision) : TrivialElement(value), precision_(precision) {}

	/** The precision given at construction; it stays when the value changes. */
	int Precision() const noexcept { return precision_; }

private:
	int precision_;
};
} // namespace json
