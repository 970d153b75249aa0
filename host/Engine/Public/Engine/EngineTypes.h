// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

namespace EWorldType
{
enum Type : int
{
	None,
	Game,
	Editor,
	PIE,
	EditorPreview,
	GamePreview,
	GameRPC,
	Inactive,
};
} // namespace EWorldType
