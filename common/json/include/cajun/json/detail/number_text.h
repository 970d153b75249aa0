// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The text of numbers: that of a stream in the classic locale with default floating-point formatting ("%g").
#pragma once

#include <algorithm>
#include <array>
#include <cajun/json/detail/values.h>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

namespace json
{
/** Makes the text of one number at a time. */
class NumberText
{
public:
	/** @return the text, or "null" for what JSON has no number for; valid until the next call */
	std::string_view Make(const Number& number)
	{
		const double value = number.Value();
		if (!std::isfinite(value))
		{
			return "null";
		}
		if (number.Precision() >= 0)
		{
			return Print(value, (std::min)(number.Precision(), MostDigits));
		}
		if (std::abs(value) < 1e15 && value == std::trunc(value) && !std::signbit(value))
		{
			return {text_.data(), std::to_chars(Begin(), End(), static_cast<long long>(value)).ptr};
		}
		return IsIrregular(value) ? PrintShortest(value) : LayOutShortest(value);
	}

private:
	/** No double has more significant digits. */
	static constexpr int MostDigits = 767;

	char* Begin() { return text_.data(); }
	char* End() { return text_.data() + text_.size(); }

	std::string_view Print(double value, int precision)
	{
		return {text_.data(), std::to_chars(Begin(), End(), value, std::chars_format::general, precision).ptr};
	}

	/** Values that need more digits at 15 or 16 than the shortest text has. */
	static bool IsIrregular(double value)
	{
		int exponent = 0;
		return std::abs(value) < (std::numeric_limits<double>::min)() || std::abs(std::frexp(value, &exponent)) == 0.5;
	}

	std::string_view PrintShortest(double value)
	{
		for (const int precision : {15, 16})
		{
			const std::string_view text = Print(value, precision);
			double back = 0;
			std::from_chars(text.data(), text.data() + text.size(), back);
			if (back == value)
			{
				return text;
			}
		}
		return Print(value, 17);
	}

	/** The same from the shortest digits that read back as the value, which take one conversion. */
	std::string_view LayOutShortest(double value)
	{
		const char* const end = std::to_chars(Begin(), End(), value, std::chars_format::scientific).ptr;
		const std::string_view scientific(text_.data(), end);
		const std::size_t mark = scientific.find('e');
		const std::size_t exponentBegin = mark + (scientific[mark + 1] == '+' ? 2 : 1);
		int exponent = 0;
		std::from_chars(text_.data() + exponentBegin, end, exponent);

		const bool isNegative = value < 0;
		digits_.assign(1, scientific[isNegative ? 1 : 0]);
		const std::size_t point = scientific.find('.');
		if (point < mark)
		{
			digits_.append(scientific, point + 1, mark - point - 1);
		}
		const int count = static_cast<int>(digits_.size());
		if (exponent < -4 || exponent >= (std::max)(count, 15))
		{
			return scientific;
		}
		if (exponent < 0)
		{
			digits_.insert(0, "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0'));
		}
		else if (exponent + 1 < count)
		{
			digits_.insert(static_cast<std::size_t>(exponent) + 1, 1, '.');
		}
		else
		{
			digits_.append(static_cast<std::size_t>(exponent + 1 - count), '0');
		}
		return isNegative ? digits_.insert(0, 1, '-') : digits_;
	}

	/** Room for all digits, sign, point, zeros in front and exponent. */
	std::array<char, MostDigits + 32> text_;
	std::string digits_;
};
} // namespace json
