// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <list>

/** Elements stay where they are when others come and go. */
template <typename T>
using TIndirectArray = std::list<T>;
