// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Color/CubeReader.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <functional>
#include <utility>

namespace LookColor
{
namespace
{
constexpr std::size_t LongestTitle = 255;
constexpr std::size_t LongestExcerpt = 40;

/** A color takes no less: three digits, two blanks and a line's end. */
constexpr std::size_t LeastColorLength = 6;

bool IsBlank(char Byte)
{
	return Byte == ' ' || Byte == '\t' || Byte == '\v' || Byte == '\f';
}

bool IsLineEnd(char Byte)
{
	return Byte == '\n' || Byte == '\r';
}

bool IsLetter(char Byte)
{
	return (Byte >= 'A' && Byte <= 'Z') || (Byte >= 'a' && Byte <= 'z');
}

bool IsControl(char Byte)
{
	return static_cast<unsigned char>(Byte) < 0x20 || Byte == 0x7F;
}

void SkipBlanks(std::string_view& Text)
{
	while (!Text.empty() && IsBlank(Text.front()))
	{
		Text.remove_prefix(1);
	}
}

/** The text up to its first line's end. */
std::string_view FirstLine(std::string_view Text)
{
	return Text.substr(0, static_cast<std::size_t>(std::find_if(Text.begin(), Text.end(), IsLineEnd) - Text.begin()));
}

/** The begin of a text, in quotes; bytes that are not printable in hexadecimal. */
std::string Excerpt(std::string_view Text)
{
	constexpr std::string_view Digits = "0123456789ABCDEF";
	std::string Result = "\"";
	for (const char Byte : Text.substr(0, LongestExcerpt))
	{
		const auto Value = static_cast<unsigned char>(Byte);
		const bool bIsPrintable = Value < 0x80 && !IsControl(Byte);
		Result += bIsPrintable ? std::string(1, Byte) : std::string{'\\', 'x', Digits[Value / 16], Digits[Value % 16]};
	}
	return Result + (Text.size() > LongestExcerpt ? "...\"" : "\"");
}

/**
 * Takes a number and the blanks before it from the front of a text.
 * @return false, and the text but for blanks as it was, when no number of the type stands there alone
 */
template <class NumberType>
bool TakeNumber(std::string_view& Text, NumberType& OutNumber)
{
	SkipBlanks(Text);
	const bool bHasPlus = Text.starts_with('+') && !Text.starts_with("+-");
	const char* const End = Text.data() + Text.size();
	const auto [Behind, Error] = std::from_chars(Text.data() + bHasPlus, End, OutNumber);
	if (Error != std::errc() || (Behind != End && !IsBlank(*Behind) && !IsLineEnd(*Behind) && *Behind != '#'))
	{
		return false;
	}
	Text.remove_prefix(static_cast<std::size_t>(Behind - Text.data()));
	return true;
}

/** Walks a text once, line by line. Reading ends with the first error. */
class FCubeReader
{
public:
	explicit FCubeReader(std::string_view InText) : Rest(InText) {}

	std::variant<FLookTable, FCubeError> Read()
	{
		if (Rest.starts_with("\xFF\xFE") || Rest.starts_with("\xFE\xFF"))
		{
			return FCubeError{1, "UTF-8 text", "UTF-16"};
		}
		Rest.remove_prefix(Rest.starts_with("\xEF\xBB\xBF") ? 3 : 0);
		do
		{
			if (!ReadLine())
			{
				return Error;
			}
		} while (!Rest.empty());
		if (Colors.size() < WantedColors() || Colors.empty())
		{
			Fail(
				WantedColors() == 0 ? "LUT_1D_SIZE or LUT_3D_SIZE" : ColorsText(WantedColors()), "the end of the file");
			return Error;
		}
		const auto ShaperEnd = Colors.begin() + static_cast<std::ptrdiff_t>(ShaperSize);
		Table.Shaper.assign(Colors.begin(), ShaperEnd);
		Colors.erase(Colors.begin(), ShaperEnd);
		Table.Cube = std::move(Colors);
		return std::move(Table);
	}

private:
	/** Takes a line from the rest. */
	bool ReadLine()
	{
		++LineNumber;
		SkipBlanks(Rest);
		LineBegin = Rest;
		const bool bIsEmpty = Rest.empty() || IsLineEnd(Rest.front()) || Rest.front() == '#';
		const auto Read =
			Colors.empty() && !bIsEmpty && IsLetter(Rest.front()) ? &FCubeReader::ReadKeyword : &FCubeReader::ReadColor;
		return (bIsEmpty || (this->*Read)()) && EndLine();
	}

	/** Takes blanks, a comment and the line's end; CR and LF together are one. */
	bool EndLine()
	{
		SkipBlanks(Rest);
		if (Rest.starts_with('#'))
		{
			Rest.remove_prefix(FirstLine(Rest).size());
		}
		if (!Rest.empty() && !IsLineEnd(Rest.front()))
		{
			return FailHere("the end of the line behind that");
		}
		Rest.remove_prefix(Rest.starts_with("\r\n") ? 2 : std::min<std::size_t>(Rest.size(), 1));
		return true;
	}

	bool ReadKeyword()
	{
		const auto IsInWord = [](char Byte) { return IsLetter(Byte) || (Byte >= '0' && Byte <= '9') || Byte == '_'; };
		const auto End = std::find_if_not(Rest.begin(), Rest.end(), IsInWord);
		const std::string_view Word = Rest.substr(0, static_cast<std::size_t>(End - Rest.begin()));
		const auto Found = std::find_if(
			Keywords.begin(), Keywords.end(), [&](const FKeyword& Keyword) { return Keyword.Name == Word; });
		if (Found == Keywords.end())
		{
			return FailHere("a keyword of lookup tables or three numbers");
		}
		if (std::exchange(Found->bIsRead, true))
		{
			return Fail(std::string(Word) + " once", "it again");
		}
		Rest.remove_prefix(Word.size());
		return (this->*Found->Read)();
	}

	bool ReadTitle()
	{
		SkipBlanks(Rest);
		const std::string_view Quoted = FirstLine(Rest);
		const std::size_t End = Quoted.find('"', 1);
		const bool bIsQuoted = Quoted.starts_with('"') && End != Quoted.npos && End <= LongestTitle;
		Table.Title = bIsQuoted ? Quoted.substr(1, End - 1) : "";
		if (!bIsQuoted || std::any_of(Table.Title.begin(), Table.Title.end(), IsControl))
		{
			return FailHere("a title in quotes, of at most 254 printable bytes");
		}
		Rest.remove_prefix(End + 1);
		return true;
	}

	bool ReadSize(std::size_t& OutSize, std::size_t Most)
	{
		return (TakeNumber(Rest, OutSize) && OutSize >= LeastTableSize && OutSize <= Most) ||
			   FailHere("a size from 2 to " + std::to_string(Most));
	}

	bool ReadShaperSize() { return ReadSize(ShaperSize, MostShaperSize); }
	bool ReadCubeSize() { return ReadSize(Table.CubeSize, MostCubeSize); }

	bool TakeValue(float& OutValue)
	{
		if (TakeNumber(Rest, OutValue))
		{
			return std::abs(OutValue) <= MostTableValue;
		}
		// What is too small for a float still is a number.
		double Value = 0.0;
		const bool bIsValue = TakeNumber(Rest, Value) && std::abs(Value) <= MostTableValue;
		OutValue = bIsValue ? static_cast<float>(Value) : 0.0f;
		return bIsValue;
	}

	bool ReadTriple(FTriple& Out)
	{
		return (TakeValue(Out[0]) && TakeValue(Out[1]) && TakeValue(Out[2])) ||
			   FailHere("three numbers from -65504 to 65504");
	}

	bool ReadDomainMin() { return ReadTriple(Domain.Begin); }
	bool ReadDomainMax() { return ReadTriple(Domain.End); }

	bool ReadRange(FTableDomain& Out)
	{
		float Begin = 0.0f;
		float End = 0.0f;
		if (!TakeValue(Begin) || !TakeValue(End))
		{
			return FailHere("two numbers from -65504 to 65504");
		}
		Out.Begin.fill(Begin);
		Out.End.fill(End);
		return true;
	}

	bool ReadShaperRange() { return ReadRange(Table.ShaperDomain); }
	bool ReadCubeRange() { return ReadRange(Table.CubeDomain); }

	bool ReadColor()
	{
		if (Colors.empty() && !BeginColors())
		{
			return false;
		}
		if (Colors.size() == WantedColors())
		{
			return FailHere("the end of the file behind " + ColorsText(WantedColors()));
		}
		return ReadTriple(Colors.emplace_back());
	}

	/** Checks the keywords together. */
	bool BeginColors()
	{
		if (WantedColors() == 0)
		{
			return FailHere("LUT_1D_SIZE or LUT_3D_SIZE before the first color");
		}
		const auto IsRead = [this](std::string_view End)
		{
			return std::any_of(Keywords.begin(), Keywords.end(),
				[&](const FKeyword& Keyword) { return Keyword.bIsRead && Keyword.Name.ends_with(End); });
		};
		const bool bHasDomain = IsRead("_MIN") || IsRead("_MAX");
		if (bHasDomain && IsRead("_INPUT_RANGE"))
		{
			return Fail("either DOMAIN_MIN and DOMAIN_MAX or an INPUT_RANGE", "both");
		}
		if (bHasDomain)
		{
			(ShaperSize > 0 ? Table.ShaperDomain : Table.CubeDomain) = Domain;
		}
		const auto IsSound = [](const FTableDomain& Each)
		{ return std::equal(Each.Begin.begin(), Each.Begin.end(), Each.End.begin(), std::less()); };
		if (!IsSound(Table.ShaperDomain) || !IsSound(Table.CubeDomain))
		{
			return Fail("a domain that begins below its end", "an empty or reversed one");
		}
		Colors.reserve(std::min(WantedColors(), Rest.size() / LeastColorLength + 1));
		return true;
	}

	std::size_t WantedColors() const { return ShaperSize + Table.CubeSize * Table.CubeSize * Table.CubeSize; }

	static std::string ColorsText(std::size_t Count) { return std::to_string(Count) + " colors"; }

	/** What was found is the line. */
	bool FailHere(std::string Expected) { return Fail(std::move(Expected), Excerpt(FirstLine(LineBegin))); }

	bool Fail(std::string Expected, std::string Found)
	{
		Error = {LineNumber, std::move(Expected), std::move(Found)};
		return false;
	}

	struct FKeyword
	{
		std::string_view Name;
		bool (FCubeReader::*Read)();
		bool bIsRead = false;
	};

	std::array<FKeyword, 7> Keywords{{
		{"TITLE", &FCubeReader::ReadTitle},
		{"LUT_1D_SIZE", &FCubeReader::ReadShaperSize},
		{"LUT_3D_SIZE", &FCubeReader::ReadCubeSize},
		{"DOMAIN_MIN", &FCubeReader::ReadDomainMin},
		{"DOMAIN_MAX", &FCubeReader::ReadDomainMax},
		{"LUT_1D_INPUT_RANGE", &FCubeReader::ReadShaperRange},
		{"LUT_3D_INPUT_RANGE", &FCubeReader::ReadCubeRange},
	}};

	/** What has not been read, and the text from the begin of the line under way. */
	std::string_view Rest;
	std::string_view LineBegin;
	std::size_t LineNumber = 0;

	FLookTable Table;
	std::size_t ShaperSize = 0;

	/** Of the first stage, whichever it is. */
	FTableDomain Domain;

	/** Of both stages, the curves first. */
	std::vector<FTriple> Colors;
	FCubeError Error;
};
} // namespace

std::variant<FLookTable, FCubeError> ReadCube(std::string_view Text)
{
	return FCubeReader(Text).Read();
}
} // namespace LookColor
