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
std::string escapeBeyondAscii(std::string_view names)
{
	constexpr std::string_view digits = "0123456789ABCDEF";
	std::string escaped;
	escaped.reserve(names.size());
	for (const char c : names)
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

/**
 * Appends a name, piece by piece: the platform's call takes and gives no more than 2083 characters, a closing NUL included,
 * and makes three of one at most.
 */
void appendEscaped(std::string& url, std::string_view name)
{
	constexpr std::size_t room = 2083;
	constexpr std::size_t longestPiece = (room - 1) / 3;
	while (!name.empty())
	{
		char piece[longestPiece + 1];
		const std::size_t size = name.copy(piece, longestPiece);
		piece[size] = '\0';
		name.remove_prefix(size);

		char escaped[room];
		DWORD length = room;
		const bool isEscaped = SUCCEEDED(UrlEscapeA(piece, escaped, &length, 0));
		appendWithoutAmpersands(url, isEscaped ? std::string_view(escaped, length) : std::string_view(piece, size));
	}
}

bool holdsNul(std::string_view text)
{
	for (std::size_t at = 0; at < text.size(); ++at)
	{
		if (text[at] == '\0' || (text[at] == '%' && text.substr(at + 1, 2) == "00"))
		{
			return true;
		}
	}
	return false;
}

/** Empty for a text with a NUL, escaped or not: what the platform's call makes of it is not told. */
std::string unescape(std::string text)
{
	if (text.empty() || holdsNul(text))
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
	const std::size_t drive = path.find(':') + 1;
	std::string names = escapeBeyondAscii(std::string_view(path).substr(drive));
	std::ranges::replace(names, '/', '\\');
	const bool isNetworks = drive == 0 && names.starts_with(NetworkPath);

	std::string url = "file://localhost/" + path.substr(0, drive);
	url.reserve(url.size() + 2 * names.size());
	bool needsSeparator = drive > 0 || isNetworks;
	for (std::size_t begin = 0; begin < names.size();)
	{
		const std::size_t end = std::min(names.find('\\', begin), names.size());
		if (end > begin)
		{
			url += needsSeparator ? "/" : "";
			appendEscaped(url, std::string_view(names).substr(begin, end - begin));
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
	path.erase(0, separators);
	const bool isNetworks = (!isLocal || separators > 0) && !path.empty() && !startsWithDrive(path);
	if (isNetworks)
	{
		path.insert(0, NetworkPath);
	}
	return path;
}
} // namespace Kiln
