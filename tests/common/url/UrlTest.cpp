// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "ImportOverride.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <kiln/Url.h>
#include <random>
#include <shlwapi.h>
#include <span>
#include <string>
#include <utility>

namespace
{
using namespace std::string_literals;
using Kiln::fileUrlToPath;
using Kiln::pathToFileUrl;

struct Row
{
	std::string path;

	/** What follows "file://localhost/". */
	std::string url;

	/** What the URL gives; most paths come back as they were. */
	std::string back = path;
};

void expectBothWays(std::span<const Row> rows)
{
	for (const Row& row : rows)
	{
		const std::string url = "file://localhost/" + row.url;
		EXPECT_EQ(pathToFileUrl(row.path), url);
		EXPECT_EQ(fileUrlToPath(url), row.back);
	}
}

TEST(Url, PathsBecomeUrlsAndComeBack)
{
	ASSERT_STREQ(std::to_string(GetACP()).c_str(), std::getenv("KILN_TEST_CODE_PAGE"))
		<< "the code page is the one that the program is for";
	const Row rows[] = {
		{R"(C:\Users\a b&c)", "C:/Users/a%20b%26c"},
		{R"(\\s\h\x)", "/s/h/x"},
		{R"(C:\"<>[]{}^|`)", "C:/%22%3C%3E%5B%5D%7B%7D%5E%7C%60"},
		{"C:\\;+=,@$!~'()-_.*", "C:/;+=,@$!~'()-_.*"},
		{R"(C:\...\. \..)", "C:/.../.%20/.."},
		{"C:\\\x01\x1F\x7F", "C:/%01%1F%7F"},
		{"C:\\Gr\xC3\xBCn\xC3\x9F \xE3\x81\x82\xF0\x9F\x8E\xA8", "C:/Gr%C3%BCn%C3%9F%20%E3%81%82%F0%9F%8E%A8"},
		{"C:\\\x80\xFF\xC3 \xED\xA0\x80", "C:/%80%FF%C3%20%ED%A0%80"},

		// Separators that mean nothing are lost, and the others come back as backslashes.
		{"", "", ""},
		{R"(\\/\)", "", ""},
		{R"(C:\)", "C:", "C:"},
		{R"(\\\s//h)", "/s/h", R"(\\s\h)"},

		// What stands before the first colon is taken for a drive.
		{"C:a", "C:/a", R"(C:\a)"},
		{"a/b c:d", "a/b c:/d", R"(a\b c:\d)"},
		{R"(\\?\C:\x)", R"(\\?\C:/x)"},
		{"C:\\a\0b"s, "C:/a%00b", ""},
	};
	expectBothWays(rows);
}

// A call that begins to do otherwise is as loud here as one that ceases to do what the other tests rely on.
TEST(Url, WhereThePlatformEscapesTooLittleIsKnown)
{
	const Row deviations[] = {
		{R"(C:\50% \x)", "C:/50%%20/x"},
		{R"(C:\%41)", "C:/%41", R"(C:\A)"},
		{R"(C:\a b?c d\f g)", "C:/a%20b?c d/f%20g"},
		{R"(C:\a b#c d&e\f g)", "C:/a%20b#c d%26e/f%20g"},
	};
	expectBothWays(deviations);
}

TEST(Url, UrlsOfOthersGivePaths)
{
	const std::pair<std::string, std::string> rows[] = {
		{"FILE://LocalHost/C:/x", R"(C:\x)"},
		{"file:///C:/", R"(C:\)"},
		{"file:///c%3A/x%20y", R"(c:\x y)"},
		{"file://C:/x", R"(C:\x)"},
		{"file:///a%2Fb%5Cc", R"(a\b\c)"},
		{"file://s/h/x%20y/", R"(\\s\h\x y\)"},
		{"file://my%20s/h", R"(\\my s\h)"},
		{"file://localhosts/h", R"(\\localhosts\h)"},
		{"file:///x?q=%41#f", "x?q=A#f"},
		{"file:///\xC3\xBC%C3%BC", "\xC3\xBC\xC3\xBC"},

		// No name, or no file URL.
		{"file://", ""},
		{"file:///a%00b", ""},
		{"file:///a%2500", "a%00"},
		{"", ""},
		{"file:/C:/x", ""},
	};
	for (const auto& [url, path] : rows)
	{
		EXPECT_EQ(fileUrlToPath(url), path) << url;
	}
}

TEST(Url, PathsThatAreUrlsAndTextsThatAreNoneThrow)
{
	for (const char* path : {"file://localhost/C:/x", "://", "C://x"})
	{
		EXPECT_THROW(pathToFileUrl(path), Kiln::UrlException) << path;
	}
	for (const char* text : {"", ":/", "file:/x"})
	{
		EXPECT_THROW(Kiln::normalizeFileUrl(text), Kiln::UrlException) << text;
	}
}

TEST(Url, NormalFormNamesTheHost)
{
	EXPECT_EQ(Kiln::withLocalhost("x:///y:///z"), "x://localhost/y:///z");
	EXPECT_EQ(Kiln::withLocalhost("//x"), "//x");
	EXPECT_EQ(Kiln::normalizeFileUrl("file:////s"), "file://localhost//s");
	EXPECT_EQ(Kiln::normalizeFileUrl("://"), "://");
	EXPECT_EQ(Kiln::fileUrlFromLocalhostPath("/C:/x"), "file://localhost/C:/x");
	EXPECT_EQ(Kiln::fileUrlFromLocalhostPath(""), "file://localhost");
}

TEST(Url, NamesOfAnyLengthComeBack)
{
	for (const std::size_t length : {693u, 694u, 695u, 2082u, 2083u, 2084u, 32'000u})
	{
		for (const char c : {'a', ' ', '&', '\xC3'})
		{
			const std::string path = R"(C:\)" + std::string(length, c) + R"(\b)";
			EXPECT_EQ(fileUrlToPath(pathToFileUrl(path)), path) << length << c;
		}
	}
}

TEST(Url, AnyBytesBehindADriveComeBack)
{
	// All but what is an escape, what separates, and NUL.
	std::string bytes;
	for (int byte = 1; byte < 256; ++byte)
	{
		const char c = static_cast<char>(byte);
		bytes += std::string("%/\\").find(c) == std::string::npos ? c : '\\';
	}
	std::mt19937 random(20261114);
	for (int round = 0; round < 2000; ++round)
	{
		std::string path = R"(C:\x)";
		for (std::size_t left = random() % 60; left > 0; --left)
		{
			const char c = bytes[random() % bytes.size()];
			path += c == '\\' && path.back() == '\\' ? 'y' : c;
		}
		path += 'z';
		EXPECT_EQ(fileUrlToPath(pathToFileUrl(path)), path);
	}
}

TEST(Url, WhenThePlatformFailsNamesStayAsTheyAreAndUrlsGiveNothing)
{
	ImportOverride escape("UrlEscapeA", &UrlEscapeA, [](PCSTR, PSTR, DWORD*, DWORD) { return E_OUTOFMEMORY; });
	ImportOverride unescape("UrlUnescapeA", &UrlUnescapeA, [](PSTR, PSTR, DWORD*, DWORD) { return E_OUTOFMEMORY; });
	EXPECT_EQ(pathToFileUrl("C:\\a b\\\xC3\xBC"), "file://localhost/C:/a b/%C3%BC");
	EXPECT_EQ(fileUrlToPath("file:///C:/a"), "");
}
} // namespace
