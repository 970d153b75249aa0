// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <algorithm>
#include <kiln/Url.h>
#include <shlwapi.h>
#include <string_view>
#include <windows.h>

namespace Kiln
{
namespace
{
constexpr std::string_view Scheme = "file://";
constexpr std::string_view Localhost = "localhost";
constexpr std::string_view SchemeEnd = "://";
constexpr std::string_view WithoutHost = ":///";
constexpr std::string_view NetworkPath = "\\\\";

bool equalsIgnoringCase(std::string_view left, std::string_view right)
{
	const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
	return std::ranges::equal(left, right, {}, lower, lower);
}

bool startsWithDrive(std::string_view path)
{
	const bool isLetter = !path.empty() && ((path[0] >= 'a' && path[0] <= 'z') || (path[0] >= 'A' && path[0] <= 'Z'));
	return isLetter && path.size() >= 2 && path[1] == ':' && (path.size() == 2 || path[2] == '\\');
}

/** Escapes what the platform's call cannot be trusted with: it ends at a NUL and takes other bytes for the code page's. */
std::string escapeBeyondAscii(std::string_view name)
{
	constexpr std::string_view digits = "0123456789ABCDEF";
	std::string escaped;
	for (const char c : name)
	{
		const auto byte = static_cast<unsigned char>(c);
		if (byte == 0 || byte >= 0x80)
		{
			escaped += {'%', digits[byte / 16], digits[byte % 16]};
		}
		else
		{
			escaped += c;
		}
	}
	return escaped;
}

/** Appends a name, piece by piece: the platform's call takes and gives no more than 2083 characters, its closing NUL
 * included, and makes three of one at most. */
void appendEscaped(std::string& url, std::string_view name)
{
	constexpr DWORD room = 2083;
	constexpr std::size_t longestPiece = (room - 1) / 3;
	const std::string prepared = escapeBeyondAscii(name);
	for (std::size_t begin = 0; begin < prepared.size(); begin += longestPiece)
	{
		const std::string piece = prepared.substr(begin, longestPiece);
		char escaped[room];
		DWORD length = room;
		if (FAILED(UrlEscapeA(piece.c_str(), escaped, &length, 0)))
		{
			url += piece;
			continue;
		}
		for (const char c : std::string_view(escaped, length))
		{
			if (c == '&')
			{
				url += "%26";
			}
			else
			{
				url += c;
			}
		}
	}
}

/** Empty for a text with a NUL, escaped or not: what the platform's call makes of it is not told. */
std::string unescape(std::string text)
{
	if (text.empty() || text.find('\0') != text.npos || text.find("%00") != text.npos)
	{
		return {};
	}
	std::string plain(text.size() + 1, '\0');
	auto length = static_cast<DWORD>(plain.size());
	if (FAILED(UrlUnescapeA(text.data(), plain.data(), &length, 0)))
	{
		return {};
	}
	plain.resize(length);
	return plain;
}
} // namespace

std::string pathToFileUrl(const std::string& path)
{
	if (path.find(SchemeEnd) != path.npos)
	{
		throw UrlException();
	}
	std::string separated = path;
	std::ranges::replace(separated, '/', '\\');
	const std::size_t drive = path.find(':') + 1;
	const bool isNetworks = drive == 0 && separated.starts_with(NetworkPath);

	std::string url = "file://localhost/" + path.substr(0, drive);
	bool needsSeparator = drive > 0 || isNetworks;
	for (std::size_t begin = drive; begin < separated.size();)
	{
		const std::size_t end = std::min(separated.find('\\', begin), separated.size());
		if (end > begin)
		{
			url += needsSeparator ? "/" : "";
			appendEscaped(url, std::string_view(separated).substr(begin, end - begin));
			needsSeparator = true;
		}
		begin = end + 1;
	}
	return url;
}

std::string withLocalhost(const std::string& url)
{
	const std::size_t found = url.find(WithoutHost);
	return found == url.npos ? url : std::string(url).replace(found, WithoutHost.size(), "://localhost/");
}

std::string fileUrlFromLocalhostPath(const std::string& path)
{
	return normalizeFileUrl("file://localhost" + path);
}

std::string normalizeFileUrl(const std::string& url)
{
	if (url.find(SchemeEnd) == url.npos)
	{
		throw UrlException();
	}
	return withLocalhost(url);
}

std::string fileUrlToPath(const std::string& url)
{
	const std::string_view text = url;
	if (!equalsIgnoringCase(text.substr(0, Scheme.size()), Scheme))
	{
		return {};
	}
	const std::string_view behindScheme = text.substr(Scheme.size());
	const std::size_t hostEnd = std::min(behindScheme.find('/'), behindScheme.size());
	const std::string_view host = behindScheme.substr(0, hostEnd);
	const bool isLocal = host.empty() || equalsIgnoringCase(host, Localhost);
	const std::size_t begin = isLocal ? std::min(hostEnd + 1, behindScheme.size()) : 0;

	std::string path = unescape(std::string(behindScheme.substr(begin)));
	std::ranges::replace(path, '/', '\\');
	const std::size_t separators = std::min(path.find_first_not_of('\\'), path.size());
	const std::string names = path.substr(separators);
	const bool isNetworks = (!isLocal || separators > 0) && !names.empty() && !startsWithDrive(names);
	return isNetworks ? std::string(NetworkPath) + names : names;
}
} // namespace Kiln
