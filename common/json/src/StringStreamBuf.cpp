// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <kiln/StringStreamBuf.h>

namespace Kiln
{
StringStreamBuf::StringStreamBuf(std::string_view text)
{
	// A get area is never written to: this class takes no bytes back that differ from those read.
	char* const begin = const_cast<char*>(text.data());
	setg(begin, begin, begin + text.size());
}
} // namespace Kiln
