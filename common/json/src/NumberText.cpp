// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "NumberText.h"
#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace Kiln
{
namespace
{
/**
 * Without an exponent, numbers of so few bytes are none of those that the parser gets wrong: what it adds their digits up to
 * does not overflow.
 */
constexpr std::size_t LongestExact = 20;

constexpr std::string_view TooBig = "1e999";

/** The length of the number that a text begins with; 0 where there is none, or one that breaks off. */
std::size_t numberLength(std::string_view text)
{
	std::string_view rest = text;
	const auto skip = [&](std::string_view bytes)
	{
		const bool isThere = !rest.empty() && bytes.find(rest.front()) != bytes.npos;
		rest.remove_prefix(isThere ? 1 : 0);
		return isThere;
	};
	const auto skipDigits = [&]
	{
		const std::size_t count = (std::min)(rest.find_first_not_of("0123456789"), rest.size());
		rest.remove_prefix(count);
		return count > 0;
	};
	const auto skipExponent = [&]
	{
		skip("+-");
		return skipDigits();
	};
	skip("-");
	const bool isWhole = (skip("0") || skipDigits()) && (!skip(".") || skipDigits()) && (!skip("eE") || skipExponent());
	return isWhole ? text.size() - rest.size() : 0;
}

template <class Number>
bool isWithin(std::string_view text)
{
	Number number = 0;
	const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
	return error == std::errc() && end == text.data() + text.size();
}

/** Whether the power of ten of a number's first digit is above 0; of one that is far from 1. */
bool isLarge(std::string_view number)
{
	constexpr std::int64_t most = std::int64_t(1) << 60;
	const std::size_t mark = (std::min)(number.find_first_of("eE"), number.size());
	const std::size_t point = (std::min)(number.find('.'), mark);
	const auto first = static_cast<std::int64_t>((std::min)(number.find_first_of("123456789"), mark));
	std::int64_t exponent = 0;
	if (mark < number.size())
	{
		const std::string_view text = number.substr(mark + (number[mark + 1] == '+' ? 2 : 1));
		const std::from_chars_result read = std::from_chars(text.data(), text.data() + text.size(), exponent);
		exponent = read.ec == std::errc() ? std::clamp(exponent, -most, most) : text.starts_with('-') ? -most : most;
	}
	return exponent + static_cast<std::int64_t>(point) - first > 0;
}

/** The nearest double to a number without sign; infinite for one that is too big. */
double nearest(std::string_view number)
{
	double value = 0;
	if (std::from_chars(number.data(), number.data() + number.size(), value).ec == std::errc::result_out_of_range)
	{
		return isLarge(number) ? std::numeric_limits<double>::infinity() : 0;
	}
	return value;
}

/** The fewest digits that tell a double, as an integer with an exponent. */
std::string shortest(double value)
{
	char text[32];
	const char* const end = std::to_chars(text, text + sizeof text, value, std::chars_format::scientific).ptr;
	const std::string_view scientific(text, end);
	const std::size_t mark = scientific.find('e');
	int exponent = 0;
	std::from_chars(text + mark + (scientific[mark + 1] == '+' ? 2 : 1), end, exponent);
	std::string digits(scientific.substr(0, mark));
	if (digits.size() > 1)
	{
		digits.erase(1, 1);
	}
	return digits + "e" + std::to_string(exponent - static_cast<int>(digits.size() - 1));
}

void replace(std::span<char> number, std::string_view text)
{
	std::fill(std::copy(text.begin(), text.end(), number.begin()), number.end(), ' ');
}
} // namespace

void makeExact(std::span<char> digits)
{
	const bool hasExponent = std::any_of(digits.begin(), digits.end(), [](char c) { return c == 'e' || c == 'E'; });
	if (!hasExponent && digits.size() <= LongestExact)
	{
		return;
	}
	const std::span<char> number = digits.first(numberLength({digits.data(), digits.size()}));
	const std::string_view text(number.data(), number.size());
	if (text.empty() || isWithin<std::int64_t>(text) || isWithin<std::uint64_t>(text))
	{
		return;
	}
	const std::size_t sign = text.starts_with('-') ? 1 : 0;
	const double value = nearest(text.substr(sign));
	if (value == std::numeric_limits<double>::infinity())
	{
		replace(number, TooBig);
		return;
	}
	// Where this is longer, the number has so few digits that the parser gets them right.
	if (const std::string exact = shortest(value); exact.size() <= number.size() - sign)
	{
		replace(number.subspan(sign), exact);
	}
}

void makeZero(std::span<char> digits)
{
	if (const std::size_t length = numberLength({digits.data(), digits.size()}); length > 0)
	{
		replace(digits.first(length), "0");
	}
}
} // namespace Kiln
