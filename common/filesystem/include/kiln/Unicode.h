// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Texts are UTF-8 everywhere but at platform calls, which take wide text (UTF-16). The conversions live here.
// All functions are free of state and safe on any thread. They convert texts of up to 2^31 - 1 units; a longer one gives
// an empty result.
#pragma once

#include <string>
#include <string_view>

namespace Kiln
{
/** UTF-8 to wide text, NULs included. What is not valid UTF-8 becomes U+FFFD, at least one for each ill-formed sequence. */
std::wstring toWide(std::string_view utf8);

/** Wide text to UTF-8, NULs included. A surrogate without its partner becomes U+FFFD. */
std::string toUtf8(std::wstring_view wide);

/**
 * UTF-8 in lower case by the system's rules, which depend on neither the locale nor the user; invalid input as in toWide.
 */
std::string lowerCase(std::string_view utf8);
} // namespace Kiln
