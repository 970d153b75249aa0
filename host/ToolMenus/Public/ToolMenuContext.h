// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

/** What a menu is opened for; the host's menus need none. */
struct FToolMenuContext
{
};
