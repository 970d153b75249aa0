// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <istream>
#include <string>

namespace Kiln
{
/**
 * An input stream for RapidJSON's parser that reads a standard stream in blocks: up to the stream's end or failure, and so
 * usually further than the document goes. What the stream is set to throw passes through. Memory grows with the longest
 * number. Two things are handed on otherwise than they stand there, in as many bytes:
 * - A NUL byte, which would end the text for the parser, as the byte 1: that is an error at the same place.
 * - A number that the parser may get wrong, in digits of which it makes the nearest double (with its flag for full
 *   precision), zero where none is nearer, or the error that the number is too big.
 */
class BufferedInputStream
{
public:
	using Ch = char;

	enum class Numbers
	{
		exact,
		/** All well-formed numbers are handed on as 0, so that none is an error. */
		ignored,
	};

	/** The stream must outlive this object. Nothing is read from a stream that failed or is at its end. */
	explicit BufferedInputStream(std::istream& stream, Numbers numbers = Numbers::exact);

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
	/** Where the search for numbers is. */
	enum class Place
	{
		outside,
		text,
		escape,
		number,
	};

	/** Goes on with what comes next, which at the end is a NUL again and again. */
	void read();

	/** Appends a part of the stream to the block. @return its length */
	std::size_t append();

	/** Looks for numbers, and rewrites those that end before the block does. */
	void rewriteNumbers();
	void rewriteNumber(char* end);

	/** How much of the block the parser may take: all but a number that may go on. */
	std::size_t available() const { return place_ == Place::number ? number_ : block_.size(); }

	std::istream& stream_;
	const Numbers numbers_;
	std::string block_;
	const Ch* next_ = nullptr;
	const Ch* end_;
	/** The length of all blocks before this one. */
	std::size_t passed_ = 0;
	/** How far the block was searched, and where the last number in it begins. */
	std::size_t searched_ = 0;
	std::size_t number_ = 0;
	Place place_ = Place::outside;
};
} // namespace Kiln
