// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Little-endian: version, number of curve samples and cube size as 32-bit integers, the begins and ends of both domains as
// 32-bit floats, then the samples of curves and cube as 16-bit floats after IEEE 754.
#include "Color/TableBytes.h"

#include <bit>
#include <cmath>
#include <cstring>

namespace LookColor
{
namespace
{
constexpr std::uint32_t Version = 1;

struct FLookTableHeader
{
	std::uint32_t Version;
	std::uint32_t ShaperSize;
	std::uint32_t CubeSize;
	FTableDomain ShaperDomain;
	FTableDomain CubeDomain;
};
static_assert(sizeof(FLookTableHeader) == 60 && std::endian::native == std::endian::little);

constexpr int HalfFractionBits = 10;
constexpr int FractionBits = 23;
constexpr int DroppedBits = FractionBits - HalfFractionBits;

/** What the exponents of the two kinds of floats differ by. */
constexpr std::uint32_t BiasDifference = 127 - 15;

/** Rounded to the nearest. @param Value at most 65504 */
std::uint16_t HalfOf(float Value)
{
	const auto Sign = static_cast<std::uint16_t>(std::signbit(Value) ? 0x8000 : 0);
	// Scaled into the range where a float has as many fraction bits as a half without its first one: adding rounds.
	const float Magnitude = std::abs(Value);
	if (Magnitude < 0x1p-14f)
	{
		return Sign | static_cast<std::uint16_t>(std::lround(Magnitude * 0x1p24f));
	}
	const std::uint32_t Bits = std::bit_cast<std::uint32_t>(Magnitude) - (BiasDifference << FractionBits);
	const std::uint32_t ToEven = (Bits >> DroppedBits & 1) + (1u << (DroppedBits - 1)) - 1;
	return Sign | static_cast<std::uint16_t>((Bits + ToEven) >> DroppedBits);
}

float FloatOf(std::uint16_t Half)
{
	const std::uint32_t Magnitude = Half & 0x7FFFu;
	float Value = 0.0f;
	if (Magnitude < 1u << HalfFractionBits)
	{
		Value = static_cast<float>(Magnitude) * 0x1p-24f;
	}
	else if (Magnitude < 31u << HalfFractionBits)
	{
		Value = std::bit_cast<float>((Magnitude << DroppedBits) + (BiasDifference << FractionBits));
	}
	return Half & 0x8000 ? -Value : Value;
}

bool IsSound(const FTableDomain& Domain)
{
	for (std::size_t Channel = 0; Channel < Domain.Begin.size(); ++Channel)
	{
		if (!(Domain.Begin[Channel] < Domain.End[Channel]) ||
			!std::isfinite(Domain.End[Channel] - Domain.Begin[Channel]))
		{
			return false;
		}
	}
	return true;
}

bool IsSize(std::uint32_t Size, std::size_t Most)
{
	return Size == 0 || (Size >= LeastTableSize && Size <= Most);
}
} // namespace

std::vector<std::uint8_t> BytesOf(const FLookTable& Table)
{
	const FLookTableHeader Header{Version, static_cast<std::uint32_t>(Table.Shaper.size()),
		static_cast<std::uint32_t>(Table.CubeSize), Table.ShaperDomain, Table.CubeDomain};
	std::vector<std::uint8_t> Bytes(
		sizeof Header + (Table.Shaper.size() + Table.Cube.size()) * 3 * sizeof(std::uint16_t));
	std::memcpy(Bytes.data(), &Header, sizeof Header);
	std::uint8_t* Target = Bytes.data() + sizeof Header;
	for (const std::vector<FTriple>* Samples : {&Table.Shaper, &Table.Cube})
	{
		for (const FTriple& Sample : *Samples)
		{
			for (const float Value : Sample)
			{
				const std::uint16_t Half = HalfOf(Value);
				std::memcpy(Target, &Half, sizeof Half);
				Target += sizeof Half;
			}
		}
	}
	return Bytes;
}

std::optional<FLookTable> TableFrom(std::span<const std::uint8_t> Bytes)
{
	FLookTableHeader Header;
	if (Bytes.size() < sizeof Header)
	{
		return std::nullopt;
	}
	std::memcpy(&Header, Bytes.data(), sizeof Header);
	const bool bIsSound = Header.Version == Version && IsSize(Header.ShaperSize, MostShaperSize) &&
						  IsSize(Header.CubeSize, MostCubeSize) && IsSound(Header.ShaperDomain) &&
						  IsSound(Header.CubeDomain);
	const std::size_t CubeSize = Header.CubeSize;
	const std::size_t SampleCount = bIsSound ? Header.ShaperSize + CubeSize * CubeSize * CubeSize : 0;
	if (SampleCount == 0 || Bytes.size() != sizeof Header + SampleCount * 3 * sizeof(std::uint16_t))
	{
		return std::nullopt;
	}
	FLookTable Table;
	Table.ShaperDomain = Header.ShaperDomain;
	Table.CubeDomain = Header.CubeDomain;
	Table.CubeSize = CubeSize;
	Table.Shaper.resize(Header.ShaperSize);
	Table.Cube.resize(SampleCount - Header.ShaperSize);
	const std::uint8_t* Source = Bytes.data() + sizeof Header;
	for (std::vector<FTriple>* Samples : {&Table.Shaper, &Table.Cube})
	{
		for (FTriple& Sample : *Samples)
		{
			for (float& Value : Sample)
			{
				std::uint16_t Half = 0;
				std::memcpy(&Half, Source, sizeof Half);
				Value = FloatOf(Half);
				Source += sizeof Half;
			}
		}
	}
	return Table;
}
} // namespace LookColor
