// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "../../platform/Platform.h"
#include <kiln/Unicode.h>
#include <limits>

namespace Kiln
{
namespace
{
/** Runs a platform conversion twice: for the length of its result, then for the result. */
template <class Out, class In, class Convert>
Out convertTwice(In in, Convert convert)
{
	constexpr auto longest = static_cast<std::size_t>((std::numeric_limits<int>::max)());
	if (in.empty() || in.size() > longest)
	{
		return {};
	}
	const int inLength = static_cast<int>(in.size());
	const int length = convert(inLength, nullptr, 0);
	Out out(static_cast<std::size_t>(length), 0);
	convert(inLength, out.data(), length);
	return out;
}
} // namespace

std::wstring toWide(std::string_view utf8)
{
	return convertTwice<std::wstring>(utf8, [&](int length, wchar_t* out, int room)
		{ return MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, out, room); });
}

std::string toUtf8(std::wstring_view wide)
{
	return convertTwice<std::string>(wide, [&](int length, char* out, int room)
		{ return WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, out, room, nullptr, nullptr); });
}

std::string lowerCase(std::string_view utf8)
{
	const std::wstring wide = toWide(utf8);
	return toUtf8(convertTwice<std::wstring>(std::wstring_view(wide),
		[&](int length, wchar_t* out, int room)
		{
			return LCMapStringEx(
				LOCALE_NAME_INVARIANT, LCMAP_LOWERCASE, wide.data(), length, out, room, nullptr, nullptr, 0);
		}));
}
} // namespace Kiln
