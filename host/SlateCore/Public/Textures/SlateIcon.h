// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

/** No icon: the host shows none. */
struct FSlateIcon
{
};
