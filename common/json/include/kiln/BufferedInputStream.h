// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <istream>
#include <rapidjson/reader.h>
#include <string>

namespace Kiln
{
/** What a parser is told of numbers. */
enum class Numbers
{
	/**
	 * One that the parser may get wrong is handed on in digits of which it makes the nearest double (with its flag for full
	 * precision), zero where none is nearer, or the error that the number is too big.
	 */
	exact,
	/** All well-formed numbers are handed on as 0, so that none is an error. */
	ignored,
};

/**
 * An input stream for RapidJSON's parser that reads a standard stream in blocks: up to the stream's end or failure, and so
 * usually further than the document goes. A NUL byte, which would end the text for the parser, is handed on as the byte 1:
 * that is an error at the same place. What the stream is set to throw passes through. Memory grows with the longest number.
 */
class BufferedInputStream
{
public:
	using Ch = char;

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

	/** Rewrites the number that comes next, if one does, in as many bytes. Not to be called inside of a text. */
	void prepareNumber()
	{
		const bool isNumber = (*next_ >= '0' && *next_ <= '9') || *next_ == '-';
		if (isNumber && next_ != prepared_)
		{
			rewriteNumber();
		}
	}

	/** The parser's code names these, for texts that are parsed in place; it never calls them on this stream. */
	Ch* PutBegin() { return nullptr; }
	void Put(Ch) {}
	void Flush() {}
	std::size_t PutEnd(Ch*) { return 0; }

private:
	/** Drops what was taken, and appends a part of the stream. @return whether there was more */
	bool append();

	/** Goes on with the next block, which at the end is a NUL again and again. */
	void read();
	void rewriteNumber();

	std::istream& stream_;
	const Numbers numbers_;
	std::string block_;
	const Ch* next_;
	const Ch* end_;
	/** The number that was rewritten last. */
	const Ch* prepared_ = nullptr;
	/** The length of all that was dropped. */
	std::size_t passed_ = 0;
};
} // namespace Kiln

/**
 * What the parser makes of a stream wherever a number may begin, and nowhere inside of a text. For other streams it may be a
 * copy, to be quicker; for this one it is the moment to see to the number.
 */
template <>
class rapidjson::internal::StreamLocalCopy<Kiln::BufferedInputStream, 0>
{
public:
	explicit StreamLocalCopy(Kiln::BufferedInputStream& original) : s(original) { s.prepareNumber(); }

	Kiln::BufferedInputStream& s;
};
