// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "../../platform/PlatformParts.h"
#include <algorithm>
#include <array>
#include <kiln/Url.h>

#include <string_view>

namespace Kiln
{
namespace
{
constexpr std::string_view Scheme = "file://";
constexpr std::string_view Localhost = "localhost";
constexpr std::string_view SchemeEnd = "://";
constexpr std::string_view WithoutHost = ":///";
constexpr std::string_view NetworkPath = "\\\\";

bool isSeparator(char c)
{
	return c == '\\' || c == '/';
}

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

/** Appends a text with every "&" as "%26". */
void appendWithoutAmpersands(std::string& url, std::string_view text)
{
	for (std::size_t found = text.find('&'); found != text.npos; found = text.find('&'))
	{
		url.append(text, 0, found) += "%26";
		text.remove_prefix(found + 1);
	}
	url += text;
}

/** The platform's calls take and give no more characters, a closing NUL included. */
constexpr std::size_t LongestUrl = 2083;
/** A piece of a name whose escaped form the platform's call can give: it makes three characters of one at most. */
using Piece = std::array<char, LongestUrl / 3>;

/**
 * Moves the beginning of a name, as much as has room, to a piece with a closing NUL, and escapes in it what the platform's
 * call cannot be trusted with: it ends at a NUL and takes bytes beyond ASCII for the code page's.
 * @return the piece's length without the NUL
 */
std::size_t takePiece(std::string_view& name, Piece& piece)
{
	constexpr std::string_view digits = "0123456789ABCDEF";
	constexpr std::size_t longestEscape = 3;
	std::size_t length = 0;
	std::size_t taken = 0;
	for (; taken < name.size() && length + longestEscape < piece.size(); ++taken)
	{
		const auto byte = static_cast<unsigned char>(name[taken]);
		const bool isPlain = byte > 0 && byte < 0x80;
		piece[length++] = isPlain ? name[taken] : '%';
		if (!isPlain)
		{
			piece[length++] = digits[byte / 16];
			piece[length++] = digits[byte % 16];
		}
	}
	piece[length] = '\0';
	name.remove_prefix(taken);
	return length;
}

void appendEscaped(std::string& url, std::string_view name)
{
	Piece piece;
	std::array<char, LongestUrl> escaped;
	while (!name.empty())
	{
		const std::string_view plain(piece.data(), takePiece(name, piece));
		auto length = static_cast<DWORD>(escaped.size());
		const bool isEscaped = SUCCEEDED(UrlEscapeA(piece.data(), escaped.data(), &length, 0));
		appendWithoutAmpersands(url, isEscaped ? std::string_view(escaped.data(), length) : plain);
	}
}

bool isHexDigit(char c)
{
	return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

/**
 * The end of a URL for the platform's call: each "%" that begins no escape is "%25", since it may take bytes beyond ASCII for
 * digits. Empty for one with a NUL, escaped or not: what the call makes of it is not told.
 */
std::string preparedFrom(const std::string& url, std::size_t begin)
{
	std::string prepared;
	prepared.reserve(url.size());
	for (std::size_t at = begin; at < url.size(); ++at)
	{
		const bool isEscape =
			url[at] == '%' && at + 2 < url.size() && isHexDigit(url[at + 1]) && isHexDigit(url[at + 2]);
		if (url[at] == '\0' || (isEscape && url[at + 1] == '0' && url[at + 2] == '0'))
		{
			return {};
		}
		if (url[at] == '%' && !isEscape)
		{
			prepared.append(url, begin, at + 1 - begin) += "25";
			begin = at + 1;
		}
	}
	prepared.append(url, begin);
	return prepared;
}

/** The end of a URL, unescaped. */
std::string unescapedFrom(const std::string& url, std::size_t begin)
{
	std::string prepared = preparedFrom(url, begin);
	if (prepared.empty())
	{
		return {};
	}
	std::string plain(prepared.size() + 1, '\0');
	auto length = static_cast<DWORD>(plain.size());
	if (FAILED(UrlUnescapeA(prepared.data(), plain.data(), &length, 0)))
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
	const std::size_t drive = path.find(':') + 1;
	const bool isNetworks = path.size() >= 2 && isSeparator(path[0]) && isSeparator(path[1]);

	std::string url = "file://localhost/";
	url.reserve(url.size() + 2 * path.size());
	url.append(path, 0, drive);
	bool needsSeparator = drive > 0 || isNetworks;
	for (std::string_view rest = std::string_view(path).substr(drive); !rest.empty();)
	{
		const auto end = static_cast<std::size_t>(std::ranges::find_if(rest, isSeparator) - rest.begin());
		if (end > 0)
		{
			url += needsSeparator ? "/" : "";
			appendEscaped(url, rest.substr(0, end));
			needsSeparator = true;
		}
		rest.remove_prefix(std::min(end + 1, rest.size()));
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

	std::string path = unescapedFrom(url, Scheme.size() + begin);
	std::ranges::replace(path, '/', '\\');
	const std::size_t separators = std::min(path.find_first_not_of('\\'), path.size());
	path.erase(0, separators);
	const bool isNetworks = (!isLocal || separators > 0) && !path.empty() && !startsWithDrive(path);
	if (isNetworks)
	{
		path.insert(0, NetworkPath);
	}
	return path;
}
} // namespace Kiln
