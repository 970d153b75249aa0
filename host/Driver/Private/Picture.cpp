// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Picture.h"

#include <filesystem>
#include <fstream>

#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STB_IMAGE_WRITE_STATIC
#define STBI_WRITE_NO_STDIO
#include <stb/stb_image_write.h>

namespace
{
constexpr int Channels = 3;

/** Red, green, blue. */
std::vector<uint8> Bytes(const FPicture& Picture)
{
	std::vector<uint8> Result;
	for (const FColor& Pixel : Picture.Pixels)
	{
		Result.insert(Result.end(), {Pixel.R, Pixel.G, Pixel.B});
	}
	return Result;
}
} // namespace

bool IsSamePicture(const FPicture& A, const FPicture& B)
{
	return A.Size == B.Size && Bytes(A) == Bytes(B);
}

std::string EncodePicture(const FPicture& Picture)
{
	std::string Png;
	const auto Write = [](void* Target, void* Data, int Size)
	{ static_cast<std::string*>(Target)->append(static_cast<const char*>(Data), static_cast<size_t>(Size)); };
	const FIntPoint Size = Picture.Size;
	stbi_write_png_to_func(Write, &Png, Size.X, Size.Y, Channels, Bytes(Picture).data(), Size.X * Channels);
	return Png;
}

bool SavePicture(const FPicture& Picture, const FString& File)
{
	const std::filesystem::path Path(*File);
	std::error_code Ignored;
	std::filesystem::create_directories(Path.parent_path(), Ignored);
	std::ofstream Stream(Path, std::ios::binary | std::ios::trunc);
	return static_cast<bool>((Stream << EncodePicture(Picture)).flush());
}
