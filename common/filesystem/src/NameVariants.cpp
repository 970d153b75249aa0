// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <boost/filesystem.hpp>
#include <boost/regex.hpp>
#include <kiln/NameVariants.h>
#include <kiln/Paths.h>
#include <kiln/Unicode.h>
#include <limits>
#include <optional>

namespace Kiln
{
namespace
{
constexpr unsigned longestName = 255;

/** Puts text before the dot of the path's extension, or at the end. */
std::string withSuffix(const std::string& path, const std::string& suffix)
{
	const std::string stem = stemOf(path, true);
	return stem + suffix + path.substr(stem.size());
}

bool variantName(const std::string& path, const std::string& suffix, std::string& out)
{
	if (path.empty())
	{
		return false;
	}
	out = withSuffix(path, suffix);
	return true;
}

/** Whether something, if only a broken link, has the name; nothing when the platform cannot tell. */
std::optional<bool> isTaken(const std::string& path)
{
	boost::system::error_code error;
	const auto type = boost::filesystem::symlink_status(widePath(path), error).type();
	if (type == boost::filesystem::status_error)
	{
		return std::nullopt;
	}
	return type != boost::filesystem::file_not_found;
}

/** The name without the number that it ends in. */
std::string baseOf(const std::string& stem)
{
	static const boost::regex numbered("(.+)-(\\d+)");
	boost::smatch parts;
	return boost::regex_match(stem, parts, numbered) ? parts[1].str() : stem;
}

std::string padded(std::uint64_t number, unsigned width)
{
	const std::string digits = std::to_string(number);
	return std::string(width > digits.size() ? width - digits.size() : 0, '0') + digits;
}
} // namespace

bool retinaVariantName(const std::string& path, std::string& out)
{
	return variantName(path, "@2x", out);
}

bool platformVariantName(const std::string& path, std::string& out)
{
	return variantName(path, "@win", out);
}

std::string uniqueTemporaryPath()
{
	boost::system::error_code error;
	const auto folder = boost::filesystem::temp_directory_path(error);
	if (error)
	{
		return {};
	}
	const auto name = boost::filesystem::unique_path("kln_%%%%_%%%%_%%%%", error);
	return error ? std::string() : toUtf8((folder / name).native());
}

std::string uniqueTemporaryPath(const std::string& extension)
{
	const std::string path = uniqueTemporaryPath();
	return path.empty() || extension.empty() ? path : path + "." + extension;
}

bool numberedName(const std::string& path, std::string& out, std::uint64_t start, unsigned width, bool skipExisting)
{
	const std::string stem = stemOf(path);
	if (stem.empty() || width > longestName)
	{
		return false;
	}
	const std::string pathAndStem = stemOf(path, true);
	const std::string before = pathAndStem.substr(0, pathAndStem.size() - stem.size()) + baseOf(stem) + "-";
	const std::string after = path.substr(pathAndStem.size());
	for (std::uint64_t number = start;; ++number)
	{
		std::string candidate = before + padded(number, width) + after;
		const std::optional<bool> taken = skipExisting ? isTaken(candidate) : false;
		if (taken == false)
		{
			out = std::move(candidate);
			return true;
		}
		if (!taken || number == std::numeric_limits<std::uint64_t>::max())
		{
			return false;
		}
	}
}
} // namespace Kiln
