// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "../../platform/Platform.h"
#include <algorithm>
#include <kiln/Paths.h>
#include <kiln/Unicode.h>
#include <string_view>

namespace Kiln
{
namespace
{
constexpr std::string_view separators = "/\\";

bool isLetter(char c)
{
	return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/** Length of a drive and of the separators behind it, or of the separators at the beginning. */
std::size_t rootLength(std::string_view path)
{
	const std::size_t drive = path.size() >= 2 && isLetter(path[0]) && path[1] == ':' ? 2 : 0;
	return (std::min)(path.find_first_not_of(separators, drive), path.size());
}

std::size_t nameBegin(std::string_view path)
{
	const std::size_t separator = path.find_last_of(separators);
	return (std::max)(rootLength(path), separator == path.npos ? 0 : separator + 1);
}

/** Where the dot of the extension is; the path's size if there is none. */
std::size_t extensionBegin(std::string_view path)
{
	const std::string_view name = path.substr(nameBegin(path));
	const std::size_t dot = name.rfind('.');
	const bool none = dot == name.npos || dot == 0 || name == "..";
	return none ? path.size() : path.size() - name.size() + dot;
}
} // namespace

std::string extensionOf(const std::string& path)
{
	return path.substr((std::min)(extensionBegin(path) + 1, path.size()));
}

std::string stemOf(const std::string& path, bool keepParent)
{
	const std::size_t begin = keepParent ? 0 : nameBegin(path);
	return path.substr(begin, extensionBegin(path) - begin);
}

std::string parentOf(const std::string& path)
{
	const std::string_view before = std::string_view(path).substr(0, nameBegin(path));
	const std::size_t last = before.find_last_not_of(separators);
	return path.substr(0, (std::max)(rootLength(path), last == before.npos ? 0 : last + 1));
}

std::string absolutePath(const std::string& path)
{
	return toUtf8(wideAbsolutePath(path));
}

std::string pathKey(const std::string& path)
{
	return lowerCase(absolutePath(path));
}

std::wstring widePath(const std::string& path)
{
	return path.find('\0') == path.npos ? toWide(path) : std::wstring();
}

std::wstring wideAbsolutePath(const std::string& path)
{
	const std::wstring wide = widePath(path);
	if (wide.empty())
	{
		return {};
	}
	// The first length counts a closing NUL, the second does not, unless the current folder has changed to a longer one.
	std::wstring absolute(GetFullPathNameW(wide.c_str(), 0, nullptr, nullptr), L'\0');
	const DWORD length = GetFullPathNameW(wide.c_str(), static_cast<DWORD>(absolute.size()), absolute.data(), nullptr);
	if (length >= absolute.size())
	{
		return {};
	}
	absolute.resize(length);
	while (absolute.ends_with(L'\\') && !absolute.ends_with(L":\\"))
	{
		absolute.pop_back();
	}
	return absolute;
}
} // namespace Kiln
