// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <kiln/Url.h>

namespace Kiln
{
/** The real one asks the platform. Notifications hold volumes, whose JSON text needs it, but nobody here asks for that. */
std::string pathToFileUrl(const std::string&)
{
	throw UrlException();
}
} // namespace Kiln
