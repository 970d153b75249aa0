// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

/** Whoever draws into a viewport and takes its input. */
class FViewportClient
{
public:
	virtual ~FViewportClient() = default;
};
