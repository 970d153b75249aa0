// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

namespace ERHIFeatureLevel
{
enum Type : int
{
	ES3_1 = 1,
};
} // namespace ERHIFeatureLevel
