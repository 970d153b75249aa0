// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <exception>

namespace Kiln
{
/** A text is a URL where a path belongs, or no URL where one belongs. Without a text of its own. */
class UrlException : public std::exception
{
public:
	~UrlException() override = default;
};
} // namespace Kiln
