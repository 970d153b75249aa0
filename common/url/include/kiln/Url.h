// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// File URLs that name this computer, and the paths they stand for. Texts are UTF-8. All functions are safe on any thread.
//
// | path           | URL                              | back          |
// |----------------|----------------------------------|---------------|
// | "C:\a b\c&d"   | "file://localhost/C:/a%20b/c%26d" | the same     |
// | "E:"           | "file://localhost/E:"            | the same      |
// | "C:\", "C:\a\" | "file://localhost/C:", ".../C:/a" | "C:", "C:\a" |
// | "\\s\h\x"      | "file://localhost//s/h/x"        | the same      |
// | "a\b", "/a/b/" | "file://localhost/a/b"           | "a\b"         |
// | "", "\", "\\"  | "file://localhost/"              | ""            |
#pragma once

#include <kiln/UrlException.h>
#include <string>

namespace Kiln
{
/**
 * The URL of a path. "/" and "\" both separate; separators at the end are lost. What stands before the first ":", the drive,
 * is taken as it is; names behind it are escaped. "%", "#" and "?" stay, and what follows the last two in a name may stay
 * unescaped. Bytes beyond ASCII are escaped one by one, valid UTF-8 or not.
 * @throws UrlException when the path holds "://", as "C://a" does too
 */
std::string pathToFileUrl(const std::string& path);

/** The URL with its first ":///" turned into "://localhost/"; unchanged without one. */
std::string withLocalhost(const std::string& url);

/** "file://localhost" and the text as it stands, which should begin with "/"; then as normalizeFileUrl. */
std::string fileUrlFromLocalhostPath(const std::string& path);

/** withLocalhost for what is a URL. @throws UrlException when the text holds no "://" */
std::string normalizeFileUrl(const std::string& url);

/**
 * The path of a file URL, with "\" as its separator. Escapes count everywhere, in the drive's ":" too; malformed ones stay
 * as they are. A host other than "localhost" becomes the server of a network path, unless it is a drive.
 * @return empty for a text that does not begin with "file://", in any case, for a URL without a name and for one that holds
 *         a NUL, escaped or not. Nothing is thrown for a text's content.
 */
std::string fileUrlToPath(const std::string& url);
} // namespace Kiln
