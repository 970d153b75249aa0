// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "NumberText.h"
#include <algorithm>
#include <array>
#include <kiln/BufferedInputStream.h>

namespace Kiln
{
namespace
{
constexpr std::size_t PartSize = 16384;

/** Whether bytes stand in a number, or begin one. */
struct NumberBytes
{
	constexpr explicit NumberBytes(std::string_view bytes)
	{
		for (const char byte : bytes)
		{
			is[static_cast<unsigned char>(byte)] = true;
		}
	}

	constexpr bool operator()(char byte) const { return is[static_cast<unsigned char>(byte)]; }

	std::array<bool, 256> is{};
};

constexpr NumberBytes isInNumber("0123456789+-.eE");
constexpr NumberBytes isOfInterest("0123456789-\"");
constexpr NumberBytes endsPlainText("\"\\");
} // namespace

BufferedInputStream::BufferedInputStream(std::istream& stream, Numbers numbers)
	: stream_(stream), numbers_(numbers), end_(block_.data())
{
	read();
}

void BufferedInputStream::read()
{
	// What stays is the beginning of a number.
	const std::size_t taken = (std::min)(static_cast<std::size_t>(end_ - block_.data()), block_.size());
	passed_ += taken;
	searched_ -= taken;
	number_ = 0;
	block_.erase(0, taken);
	std::size_t length = 0;
	do
	{
		length = append();
		rewriteNumbers();
	} while (length > 0 && available() == 0);
	if (length == 0 && place_ == Place::number)
	{
		rewriteNumber(block_.data() + block_.size());
	}
	next_ = block_.data();
	// At the end the block is empty, but for the NUL that ends every string.
	end_ = next_ + (std::max)(available(), std::size_t(1));
}

std::size_t BufferedInputStream::append()
{
	if (!stream_.good())
	{
		return 0;
	}
	const std::size_t before = block_.size();
	block_.resize(before + PartSize);
	char* const part = block_.data() + before;
	stream_.read(part, PartSize);
	const auto length = static_cast<std::size_t>(stream_.gcount());
	std::replace(part, part + length, '\0', '\1');
	block_.resize(before + length);
	return length;
}

void BufferedInputStream::rewriteNumbers()
{
	char* const end = block_.data() + block_.size();
	for (char* at = block_.data() + searched_; at != end;)
	{
		switch (place_)
		{
		case Place::outside:
			at = std::find_if(at, end, isOfInterest);
			if (at != end && *at == '"')
			{
				++at;
				place_ = Place::text;
			}
			else if (at != end)
			{
				number_ = static_cast<std::size_t>(at - block_.data());
				place_ = Place::number;
			}
			break;
		case Place::text:
			at = std::find_if(at, end, endsPlainText);
			if (at != end)
			{
				place_ = *at++ == '"' ? Place::outside : Place::escape;
			}
			break;
		case Place::escape:
			++at;
			place_ = Place::text;
			break;
		case Place::number:
			at = std::find_if_not(at, end, isInNumber);
			if (at != end)
			{
				rewriteNumber(at);
			}
			break;
		}
	}
	searched_ = block_.size();
}

void BufferedInputStream::rewriteNumber(char* end)
{
	const std::span<char> number(block_.data() + number_, end);
	numbers_ == Numbers::exact ? makeExact(number) : makeZero(number);
	place_ = Place::outside;
}
} // namespace Kiln
