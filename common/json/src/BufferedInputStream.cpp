// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "NumberText.h"
#include <algorithm>
#include <kiln/BufferedInputStream.h>

namespace Kiln
{
BufferedInputStream::BufferedInputStream(std::istream& stream, Numbers numbers)
	: stream_(stream), numbers_(numbers), next_(block_.data()), end_(block_.data())
{
	read();
}

bool BufferedInputStream::append()
{
	constexpr std::size_t partSize = 16384;
	const auto taken = static_cast<std::size_t>(next_ - block_.data());
	const std::size_t dropped = (std::min)(taken, block_.size());
	const std::size_t kept = block_.size() - dropped;
	passed_ += dropped;
	block_.erase(0, dropped);
	if (stream_.good())
	{
		block_.resize(kept + partSize);
		stream_.read(block_.data() + kept, partSize);
		block_.resize(kept + static_cast<std::size_t>(stream_.gcount()));
		std::replace(block_.begin() + static_cast<std::ptrdiff_t>(kept), block_.end(), '\0', '\1');
	}
	next_ = block_.data();
	end_ = next_ + block_.size();
	return block_.size() > kept;
}

void BufferedInputStream::read()
{
	prepared_ = nullptr;
	if (!append())
	{
		++end_; // the NUL that ends every string
	}
}

void BufferedInputStream::rewriteNumber()
{
	const auto isInNumber = [](char c)
	{ return (c >= '0' && c <= '9') || c == '.' || c == '-' || c == '+' || c == 'e' || c == 'E'; };
	std::size_t length = 0;
	do
	{
		length = static_cast<std::size_t>(std::find_if_not(next_ + length, end_, isInNumber) - next_);
	} while (next_ + length == end_ && append());
	const std::span<char> number(block_.data() + (next_ - block_.data()), length);
	numbers_ == Numbers::exact ? makeExact(number) : makeZero(number);
	prepared_ = next_;
}
} // namespace Kiln
