// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "../../platform/Platform.h"
#include <algorithm>
#include <boost/filesystem.hpp>
#include <kiln/Folders.h>
#include <kiln/Paths.h>
#include <kiln/Unicode.h>
#include <utility>

namespace Kiln
{
namespace fs = boost::filesystem;

namespace
{
/** The system's own text for an error; Boost's is in the code page. */
std::string messageOf(const boost::system::error_code& error)
{
	wchar_t text[512];
	constexpr DWORD flags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK;
	const auto code = static_cast<DWORD>(error.value());
	const DWORD length = FormatMessageW(flags, nullptr, code, 0, text, DWORD{std::size(text)}, nullptr);
	const std::string message = toUtf8({text, length});
	return message.substr(0, message.find_last_not_of(' ') + 1);
}

/** An error of Boost's, but for its text, which is UTF-8. */
class FolderError : public fs::filesystem_error
{
public:
	FolderError(const std::string& operation, const fs::path& path, const boost::system::error_code& error)
		: filesystem_error(operation, path, error)
		, text_(operation + ": " + messageOf(error) + ": \"" + toUtf8(path.native()) + "\"")
	{
	}

	const char* what() const noexcept override { return text_.c_str(); }

private:
	std::string text_;
};

void throwOn(const boost::system::error_code& error, const char* operation, const fs::path& path)
{
	if (error)
	{
		throw FolderError(operation, path, error);
	}
}

bool folderExists(const fs::path& folder)
{
	boost::system::error_code error;
	const fs::file_type type = fs::status(folder, error).type();
	if (type == fs::status_error)
	{
		throwOn(error, "exists", folder);
	}
	return type != fs::file_not_found;
}

bool isFolder(const fs::directory_entry& entry)
{
	boost::system::error_code error;
	return fs::is_directory(entry.status(error));
}
} // namespace

bool createFolders(const std::string& path)
{
	const fs::path folder = widePath(path);
	boost::system::error_code error;
	fs::create_directories(folder, error);
	return !error && fs::is_directory(folder, error);
}

std::optional<std::vector<std::string>> listFiles(const std::string& folder)
{
	const fs::path path = widePath(folder);
	if (!folderExists(path))
	{
		return std::nullopt;
	}

	// The lower-case form first, so that pairs compare as the names are to be ordered.
	std::vector<std::pair<std::string, std::string>> names;
	boost::system::error_code error;
	fs::directory_iterator entry(path, error);
	throwOn(error, "directory_iterator::directory_iterator", path);
	for (; entry != fs::directory_iterator();
		 entry.increment(error), throwOn(error, "directory_iterator::operator++", path))
	{
		if (!isFolder(*entry))
		{
			std::string name = toUtf8(entry->path().filename().native());
			std::string lower = lowerCase(name);
			names.emplace_back(std::move(lower), std::move(name));
		}
	}
	std::sort(names.begin(), names.end());

	std::vector<std::string> sorted;
	sorted.reserve(names.size());
	for (auto& [lower, name] : names)
	{
		sorted.push_back(std::move(name));
	}
	return sorted;
}
} // namespace Kiln
