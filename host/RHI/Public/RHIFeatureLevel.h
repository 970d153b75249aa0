// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

namespace ERHIFeatureLevel
{
enum Type : int
{
	ES2_REMOVED,
	ES3_1,
	SM4_REMOVED,
	SM5,
	SM6,
	Num,
};
} // namespace ERHIFeatureLevel
