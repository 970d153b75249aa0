// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <istream>

namespace Kiln
{
/**
 * An input stream for RapidJSON's parser that reads a standard stream in blocks: up to the stream's end or failure, and so
 * usually further than the document goes. A NUL byte, which would end the text for the parser, is handed on as the byte 1:
 * that is an error at the same place. What the stream is set to throw passes through.
 */
class BufferedInputStream
{
public:
	using Ch = char;

	/** The stream must outlive this object. Nothing is read from a stream that failed or is at its end. */
	explicit BufferedInputStream(std::istream& stream);

	BufferedInputStream(const BufferedInputStream&) = delete;
	BufferedInputStream& operator=(const BufferedInputStream&) = delete;

	/** The next byte, or NUL at the end. */
	Ch Peek() const { return *next_; }

	/** Peek, and a step forward. */
	Ch Take()
	{
		const Ch byte = *next_;
		if (++next_ == end_)
		{
			read();
		}
		return byte;
	}

	/** How many bytes were taken, those at the end not counted. */
	std::size_t Tell() const { return passed_ + static_cast<std::size_t>(next_ - block_.data()); }

	/** The parser's code names these, for texts that are parsed in place; it never calls them on this stream. */
	Ch* PutBegin() { return nullptr; }
	void Put(Ch) {}
	void Flush() {}
	std::size_t PutEnd(Ch*) { return 0; }

private:
	/** Replaces the block, which at the end is a NUL again and again. */
	void read();

	std::istream& stream_;
	std::array<Ch, 16384> block_;
	const Ch* next_ = nullptr;
	const Ch* end_ = nullptr;
	/** How much of the block was read; 0 at the end. */
	std::size_t length_ = 0;
	/** The length of all blocks before this one. */
	std::size_t passed_ = 0;
};
} // namespace Kiln
