// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Gathers short pieces of text before a stream gets them.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <ostream>
#include <string_view>

namespace json
{
/** Hands text on to a stream in blocks, without formatting. */
class TextSink
{
public:
	/** The stream must outlive the sink. */
	explicit TextSink(std::ostream& stream) : stream_(stream) {}

	/** Whether the stream took everything so far. */
	bool IsGood() const { return stream_.good(); }

	void Put(std::string_view text)
	{
		if (text.size() > block_.size() - used_)
		{
			HandOn();
			if (text.size() > block_.size())
			{
				stream_.write(text.data(), static_cast<std::streamsize>(text.size()));
				return;
			}
		}
		std::copy(text.begin(), text.end(), block_.begin() + static_cast<std::ptrdiff_t>(used_));
		used_ += text.size();
	}

	/** Stops early when the stream fails. */
	void Repeat(char byte, std::size_t count)
	{
		std::array<char, 64> bytes;
		bytes.fill(byte);
		while (count > 0 && IsGood())
		{
			const std::size_t length = (std::min)(count, bytes.size());
			Put({bytes.data(), length});
			count -= length;
		}
	}

	/** Hands everything on and flushes the stream. */
	void Flush()
	{
		HandOn();
		stream_.flush();
	}

private:
	void HandOn()
	{
		stream_.write(block_.data(), static_cast<std::streamsize>(used_));
		used_ = 0;
	}

	std::ostream& stream_;
	std::array<char, 4096> block_;
	std::size_t used_ = 0;
};
} // namespace json
