// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

/** A wish for a place among others; the host knows only the one without. */
struct FToolMenuInsert
{
};
