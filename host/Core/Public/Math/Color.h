// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "HAL/Platform.h"

#include <cstring>

/** 8 bits a channel, in memory as blue, green, red, alpha. Uninitialised unless given values. */
struct FColor
{
	uint8 B, G, R, A;

	FColor() {}
	constexpr FColor(uint8 InR, uint8 InG, uint8 InB, uint8 InA = 255) : B(InB), G(InG), R(InR), A(InA) {}

	/** The four bytes as they lie in memory. */
	uint32 DWColor() const
	{
		uint32 Word;
		std::memcpy(&Word, this, sizeof Word);
		return Word;
	}

	friend bool operator==(const FColor&, const FColor&) = default;

	static const FColor White;
};

inline constexpr FColor FColor::White(255, 255, 255);

static_assert(sizeof(FColor) == 4);

/** Linear light, 1 is white. */
struct FLinearColor
{
	float R = 0.0f;
	float G = 0.0f;
	float B = 0.0f;
	float A = 0.0f;

	constexpr FLinearColor() = default;
	constexpr FLinearColor(float InR, float InG, float InB, float InA = 1.0f) : R(InR), G(InG), B(InB), A(InA) {}
};
