// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <algorithm>
#include <kiln/BufferedInputStream.h>

namespace Kiln
{
BufferedInputStream::BufferedInputStream(std::istream& stream) : stream_(stream)
{
	read();
}

void BufferedInputStream::read()
{
	passed_ += length_;
	length_ = 0;
	next_ = block_.data();
	end_ = next_ + 1;
	block_.front() = '\0';
	if (stream_.good())
	{
		stream_.read(block_.data(), static_cast<std::streamsize>(block_.size()));
		length_ = static_cast<std::size_t>(stream_.gcount());
	}
	if (length_ > 0)
	{
		std::replace(block_.data(), block_.data() + length_, '\0', '\1');
		end_ = next_ + length_;
	}
}
} // namespace Kiln
