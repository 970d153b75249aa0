// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/** A function that is only called while the caller waits. */
template <typename FuncType>
using TFunctionRef = const std::function<FuncType>&;
