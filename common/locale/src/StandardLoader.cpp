// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <kiln/StandardLoader.h>

namespace Kiln::Locale
{
StringTable& StandardLoader::load(StringTable& result, const std::string&)
{
	return result;
}
} // namespace Kiln::Locale
