// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <kiln/Loader.h>

namespace Kiln::Locale
{
/** The loader used where none is chosen: it has no strings, and returns the table unchanged. */
class StandardLoader : public Loader
{
public:
	StringTable& load(StringTable& result, const std::string& locale) override;
};
} // namespace Kiln::Locale
