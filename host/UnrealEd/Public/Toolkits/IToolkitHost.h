// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

/** Where asset editors live; none of the host's actions opens one there. */
class IToolkitHost
{
};
