// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "ImportOverride.h"

#include <cstdio>
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
		{"file:///C:/", R"(C:\)"},
		{"file://C:/x", R"(C:\x)"},
		{"file:///a%2Fb%5Cc", R"(a\b\c)"},
		{"file://s/h/x%20y/", R"(\\s\h\x y\)"},
		{"file://localhosts/h", R"(\\localhosts\h)"},

		// No name, or no file URL.
		{"file://", ""},
		{"file:///a%00b", ""},
		{"file:///a%2500", "a%00"},
		{"file:///%\xA8\x9F%0\x91%zz%%41%2", "%\xA8\x9F%0\x91%zz%A%2"},
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

/** As many pieces of paths and URLs, or single bytes, as chance has it. */
std::string randomText(std::mt19937& random, std::span<const std::string> pieces)
{
	std::string text;
	for (auto left = random() % 30; left > 0; --left)
	{
		text += random() % 4 ? std::string(1, static_cast<char>(random())) : pieces[random() % pieces.size()];
	}
	return text;
}

TEST(Url, AnyPathComesBackAndAnyTextIsRead)
{
	const std::string pieces[] = {"/", "\\", "%", "%2F", "%5C", "%3a", "%zz", "%00", "file://", "LOCALHOST",
		"C:", "://", "&", "?", "#", " ", "\xC3\xBC", std::string(694, 'a'), std::string(695, ' '),
		std::string(2083, '\xC3')};
	const char* const rounds = std::getenv("KILN_URL_ROUNDS");
	std::mt19937 random(20261114);
	for (int left = rounds ? std::atoi(rounds) : 500; left > 0; --left)
	{
		// All but what is an escape, or NUL; one separator at a time; and a colon only behind a drive.
		const bool isDrive = random() % 2;
		std::string path = isDrive ? R"(C:\x)" : R"(\\s)";
		for (const char c : randomText(random, pieces) + "z")
		{
			const bool isSeparator = c == '/' || c == '\\';
			const bool isLost = c == '%' || c == '\0' || (c == ':' && !isDrive) || (isSeparator && path.back() == '\\');
			path += isLost ? 'y' : isSeparator ? '\\' : c;
		}
		EXPECT_EQ(fileUrlToPath(pathToFileUrl(path)), path);

		std::string url = !isDrive ? "file:" : random() % 2 ? "FILE://LocalHost/" : "file:///";
		for (const char c : path)
		{
			char escape[4];
			std::snprintf(escape, sizeof escape, random() % 2 ? "%%%02X" : "%%%02x", static_cast<unsigned char>(c));
			url += c == '\\' ? "/" : random() % 2 ? escape : std::string(1, c);
		}
		EXPECT_EQ(fileUrlToPath(url), path) << url;

		const std::string text = (random() % 8 ? "file://" : "") + randomText(random, pieces);
		EXPECT_EQ(fileUrlToPath(text).find_first_of("/\0"s), text.npos) << testing::PrintToString(text);
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
