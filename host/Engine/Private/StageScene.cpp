// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A scene that looks like a picture: a sky with the sun's glow, a floor, balls like skin, stone and leaves, and a
// saturated lamp. Light is linear; x is right, y up, z away from the eye, in metres.
#include "StageScene.h"

#include <algorithm>
#include <cmath>

namespace
{
struct FVec
{
	double X, Y, Z;

	FVec operator+(FVec B) const { return {X + B.X, Y + B.Y, Z + B.Z}; }
	FVec operator*(FVec B) const { return {X * B.X, Y * B.Y, Z * B.Z}; }
	FVec operator*(double Factor) const { return {X * Factor, Y * Factor, Z * Factor}; }
	FVec operator-(FVec B) const { return *this + B * -1.0; }
	double Dot(FVec B) const { return X * B.X + Y * B.Y + Z * B.Z; }
	FVec Unit() const { return *this * (1.0 / std::sqrt(Dot(*this))); }
};

struct FBall
{
	FVec Centre;
	double Radius;
	FVec Color;
};

constexpr FBall Balls[] = {
	{{-1.5, 0.8, 4.6}, 0.8, {0.55, 0.27, 0.17}},
	{{0.35, 0.62, 3.6}, 0.62, {0.45, 0.45, 0.45}},
	{{1.75, 0.95, 5.6}, 0.95, {0.09, 0.25, 0.06}},
	{{1.3, 0.28, 3.1}, 0.28, {1.0, 0.05, 0.55}},
};
constexpr const FBall& Lamp = Balls[3];
constexpr FVec Eye{0.0, 1.15, -0.6};
const FVec ToSun = FVec{-0.55, 0.55, -0.55}.Unit();

/** The nearest ball that a ray meets and its distance; null when it meets none. */
std::pair<const FBall*, double> Meet(FVec From, FVec Ray)
{
	std::pair<const FBall*, double> Nearest{nullptr, 1e9};
	for (const FBall& Ball : Balls)
	{
		const FVec ToBall = Ball.Centre - From;
		const double Along = ToBall.Dot(Ray);
		const double Inside = Ball.Radius * Ball.Radius - ToBall.Dot(ToBall) + Along * Along;
		const double Distance = Along - std::sqrt(std::max(Inside, 0.0));
		if (Inside > 0.0 && Distance > 0.001 && Distance < Nearest.second)
		{
			Nearest = {&Ball, Distance};
		}
	}
	return Nearest;
}

FVec Sky(FVec Ray)
{
	const double Height = std::sqrt(Ray.Y);
	return FVec{0.50, 0.58, 0.68} * (1.0 - Height) + FVec{0.05, 0.13, 0.38} * Height +
		   FVec{1.0, 0.7, 0.4} * std::pow(std::max(Ray.Dot(FVec{-0.62, 0.3, 0.8}.Unit()), 0.0), 120.0);
}

/** What a surface sends out of the light of the sky, the sun and the lamp. */
FVec Lit(FVec At, FVec Normal, FVec Color)
{
	const double Sunlit = Meet(At, ToSun).first ? 0.0 : std::max(Normal.Dot(ToSun), 0.0);
	const FVec ToLamp = Lamp.Centre - At;
	const double Lamplit = std::max(Normal.Dot(ToLamp.Unit()), 0.0) / ToLamp.Dot(ToLamp);
	return Color * (FVec{0.18, 0.23, 0.33} * (0.6 + 0.4 * Normal.Y) + FVec{1.5, 1.2, 0.85} * Sunlit +
					   Lamp.Color * (0.3 * Lamplit));
}

FVec Seen(FVec Ray)
{
	const auto [Ball, Distance] = Meet(Eye, Ray);
	if (Ball)
	{
		const FVec At = Eye + Ray * Distance;
		return Ball == &Lamp ? FVec{1.0, 0.25, 0.75} : Lit(At, (At - Ball->Centre).Unit(), Ball->Color);
	}
	// Far away, the floor is lost in the haze, and above the horizon it is farthest.
	const FVec At = Eye + Ray * (Ray.Y < 0.0 ? -Eye.Y / Ray.Y : 1e6);
	const bool bIsDark = std::fmod(std::floor(At.X) + std::floor(At.Z), 2.0) != 0.0;
	const double Clear = std::exp(-0.03 * At.Z);
	return Lit(At, {0.0, 1.0, 0.0}, FVec{0.18, 0.14, 0.10} * (bIsDark ? 0.6 : 1.0)) * Clear +
		   Sky({Ray.X, std::max(Ray.Y, 0.0), Ray.Z}) * (1.0 - Clear);
}
} // namespace

FLight StageLight(double Across, double Down, double Aspect)
{
	const FVec Light = Seen(FVec{(Across - 0.5) * Aspect * 1.15, (0.5 - Down) * 1.15 - 0.02, 1.0}.Unit());
	return {Light.X, Light.Y, Light.Z};
}
