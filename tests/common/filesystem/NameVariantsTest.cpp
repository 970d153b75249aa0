// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Failing.h"
#include "TemporaryFolder.h"
#include <limits>
#include <regex>
#include <unordered_set>

namespace
{
constexpr std::uint64_t last = std::numeric_limits<std::uint64_t>::max();

TEST(NameVariants, StandBeforeTheExtension)
{
	struct Row
	{
		const char *path, *retina, *platform;
	};
	const Row rows[] = {
		{"a/b.png", "a/b@2x.png", "a/b@win.png"},
		{".profile", ".profile@2x", ".profile@win"},
		{"C:\\\xC3\xBC x.tar.gz", "C:\\\xC3\xBC x.tar@2x.gz", "C:\\\xC3\xBC x.tar@win.gz"},
		{"a/", "a/@2x", "a/@win"},
	};
	for (const Row& row : rows)
	{
		std::string out = row.path;
		EXPECT_TRUE(Kiln::retinaVariantName(out, out));
		EXPECT_EQ(out, row.retina);
		EXPECT_TRUE(Kiln::platformVariantName(row.path, out));
		EXPECT_EQ(out, row.platform);
		EXPECT_FALSE(Kiln::retinaVariantName("", out) || Kiln::platformVariantName("", out));
		EXPECT_EQ(out, row.platform);
	}
}

TEST(NumberedNames, TakeTheNumberAndTheWidth)
{
	struct Row
	{
		const char* path;
		std::uint64_t start;
		unsigned width;
		const char* expected;
	};
	const Row rows[] = {
		{"dir/scan.png", 7, 3, "dir/scan-007.png"},
		{"scan-12.png", 3, 2, "scan-03.png"},
		{"-5.png", 1, 1, "-5-1.png"},
		{"C:\\\xC3\xBC-9.tar.gz", last, 1, "C:\\\xC3\xBC-9.tar-18446744073709551615.gz"},
	};
	for (const Row& row : rows)
	{
		std::string out;
		EXPECT_TRUE(Kiln::numberedName(row.path, out, row.start, row.width));
		EXPECT_EQ(out, row.expected);
	}
	std::string out = "untouched";
	for (const char* path : {"", "/", "C:\\", "a/"})
	{
		EXPECT_FALSE(Kiln::numberedName(path, out));
	}
	EXPECT_FALSE(Kiln::numberedName("a", out, 1, 256));
	EXPECT_EQ(out, "untouched");
	EXPECT_TRUE(Kiln::numberedName(std::string(16'000, '-') + std::string(16'000, '1') + "x", out));
}

TEST(NumberedNames, SkipWhatExistsAndFillGaps)
{
	const TemporaryFolder folder;
	for (const char* name : {"shot-1.exr", "shot-2.exr", "shot-4.exr", "shot-18446744073709551615.exr"})
	{
		folder.file(name);
	}
	Kiln::createFolders(folder / "shot-5.exr");
	const auto next = [&](std::uint64_t start, unsigned width = 1)
	{
		std::string out = "none";
		Kiln::numberedName(folder / "shot.exr", out, start, width, true);
		return out == "none" ? out : out.substr(folder.path.size() + 1);
	};
	EXPECT_EQ(next(0), "shot-0.exr");
	EXPECT_EQ(next(1), "shot-3.exr");
	EXPECT_EQ(next(4), "shot-6.exr");
	EXPECT_EQ(next(1, 2), "shot-01.exr");
	EXPECT_EQ(next(last), "none");
	const auto denied =
		failing("GetFileAttributesW", &GetFileAttributesW, ERROR_ACCESS_DENIED, INVALID_FILE_ATTRIBUTES);
	const auto unopened = failing("CreateFileW", &CreateFileW, ERROR_ACCESS_DENIED, INVALID_HANDLE_VALUE);
	EXPECT_EQ(next(1), "none") << "the platform cannot tell";
}

TEST(TemporaryPaths, DifferMatchThePatternAndTakeAnExtension)
{
	const std::string folder = Kiln::parentOf(Kiln::uniqueTemporaryPath());
	EXPECT_TRUE(boost::filesystem::is_directory(Kiln::widePath(folder)));
	const std::regex name(R"(\\kln(_[0-9a-f]{4}){3})");
	std::unordered_set<std::string> seen;
	for (int i = 0; i < 2'000; ++i)
	{
		const std::string path = Kiln::uniqueTemporaryPath();
		ASSERT_TRUE(path.starts_with(folder) && std::regex_match(path.substr(folder.size()), name)) << path;
		ASSERT_TRUE(seen.insert(path).second);
	}
	EXPECT_TRUE(Kiln::uniqueTemporaryPath("tar.%\xC3\xBC").ends_with(".tar.%\xC3\xBC"));
	EXPECT_EQ(Kiln::extensionOf(Kiln::uniqueTemporaryPath("")), "");
}
} // namespace
