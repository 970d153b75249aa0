// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Paths as text: their parts, their absolute form, their form for platform calls. Paths are UTF-8; "/" and "\" both
// separate. No function looks at the disk or throws for a path's content; all are safe on any thread.
//
// The parts of a path are taken from the text as it stands. A name's extension begins at its last ".", unless that is
// the name's first character or the name is "..":
//
// | path            | parentOf | stemOf     | stemOf with parent | extensionOf |
// |-----------------|----------|------------|--------------------|-------------|
// | "C:\a\b.tar.gz" | "C:\a"   | "b.tar"    | "C:\a\b.tar"       | "gz"        |
// | "C:\b.txt"      | "C:\"    | "b"        | "C:\b"             | "txt"       |
// | "b.txt"         | ""       | "b"        | "b"                | "txt"       |
// | "a.b/c"         | "a.b"    | "c"        | "a.b/c"            | ""          |
// | ".profile"      | ""       | ".profile" | ".profile"         | ""          |
// | "name."         | ""       | "name"     | "name"             | ""          |
// | "a/b/"          | "a/b"    | ""         | "a/b/"             | ""          |
// | "C:\", "/", ""  | the same | ""         | the same           | ""          |
#pragma once

#include <string>

namespace Kiln
{
/** The extension of the path's last name, without its dot. */
std::string extensionOf(const std::string& path);

/** The path's last name without its extension; with keepParent all that stands before the name as well. */
std::string stemOf(const std::string& path, bool keepParent = false);

/** What stands before the path's last name, without separators at its end unless they are the root. */
std::string parentOf(const std::string& path);

/**
 * The absolute form of a path: with drive or share, "\" as the only separator, without "." and ".." components and
 * without a separator at the end unless it is the root. A relative path is taken from the current folder.
 * Empty for an empty path, one that holds a NUL, and one of more than 32,000 characters or so, the platform's limit.
 */
std::string absolutePath(const std::string& path);

/** A text that two paths of one file share: the absolute form in lower case. Links and short names are not resolved. */
std::string pathKey(const std::string& path);

/**
 * The form of a path for platform calls. Empty for a path that holds a NUL: no file has such a name, a platform call
 * would take what stands before it for another file, and all of them fail on an empty path.
 */
std::wstring widePath(const std::string& path);

/** absolutePath as wide text. */
std::wstring wideAbsolutePath(const std::string& path);
} // namespace Kiln
