// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <streambuf>
#include <string_view>

namespace Kiln
{
/** Reads a text in memory as a stream, without a copy: StringStreamBuf buffer(text); std::istream stream(&buffer); */
class StringStreamBuf : public std::streambuf
{
public:
	/** The text must outlive the buffer and stay as it is. */
	explicit StringStreamBuf(std::string_view text);
};
} // namespace Kiln
