// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <thread>

/** Waits for what another thread does. @return false when it did not within ten seconds */
template <class Condition>
bool isTrueSoon(Condition condition)
{
	for (int attempt = 0; attempt < 5000; ++attempt)
	{
		if (condition())
		{
			return true;
		}
		std::this_thread::sleep_for(std::chrono::milliseconds(2));
	}
	return condition();
}
