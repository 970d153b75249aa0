// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Picture.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_NO_STDIO
#define STBI_ONLY_PNG
#include <stb/stb_image.h>

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

bool SavePicture(const FPicture& Picture, const FString& File)
{
	const std::filesystem::path Path(*File);
	std::error_code Ignored;
	std::filesystem::create_directories(Path.parent_path(), Ignored);
	std::ofstream Stream(Path, std::ios::binary | std::ios::trunc);
	const auto Write = [](void* Target, void* Data, int Size)
	{ static_cast<std::ofstream*>(Target)->write(static_cast<const char*>(Data), Size); };
	return stbi_write_png_to_func(Write, &Stream, Picture.Size.X, Picture.Size.Y, Channels, Bytes(Picture).data(),
			   Picture.Size.X * Channels) &&
		   Stream.flush();
}

bool LoadPicture(const FString& File, FPicture& OutPicture)
{
	std::ifstream Stream(std::filesystem::path(*File), std::ios::binary);
	const std::vector<char> Data(std::istreambuf_iterator<char>(Stream), {});
	int Ignored = 0;
	FIntPoint& Size = OutPicture.Size;
	uint8* const Pixels = stbi_load_from_memory(reinterpret_cast<const uint8*>(Data.data()),
		static_cast<int>(Data.size()), &Size.X, &Size.Y, &Ignored, Channels);
	if (!Pixels)
	{
		return false;
	}
	for (const uint8* Pixel = Pixels; Pixel != Pixels + Size.X * Size.Y * Channels; Pixel += Channels)
	{
		OutPicture.Pixels.Add(FColor(Pixel[0], Pixel[1], Pixel[2]));
	}
	stbi_image_free(Pixels);
	return true;
}
