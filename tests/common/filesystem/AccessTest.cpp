// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Failing.h"
#include "TemporaryFolder.h"
#include <kiln/Access.h>

namespace
{
TEST(Attributes, GoToTheLongFormOfThePath)
{
	const std::pair<std::string, std::wstring> rows[] = {
		{"C:\\a\\b", L"\\\\?\\C:\\a\\b"},
		{"\\\\?\\C:\\a", L"\\\\?\\C:\\a"},
		{"\\\\server/share\\a", L"\\\\?\\UNC\\server\\share\\a"},
		{"C:\\" + std::string(32'000, 'a'), L"\\\\?\\C:\\" + std::wstring(32'000, L'a')},
		{"", L""},
	};
	for (const auto& [path, expected] : rows)
	{
		std::wstring seen = L"not called";
		const ImportOverride set("SetFileAttributesW", &SetFileAttributesW,
			[&](const wchar_t* name, DWORD attributes) -> BOOL
			{
				seen = name;
				EXPECT_EQ(attributes, 0x21u);
				return TRUE;
			});
		EXPECT_TRUE(Kiln::setFileAttributesLong(path, 0x21));
		EXPECT_EQ(seen, expected);
	}
}

TEST(Access, FollowsTheFilesRights)
{
	const TemporaryFolder folder;
	const std::string path = folder.file("\xC3\xBC");
	EXPECT_TRUE(Kiln::hasAccess(path, GENERIC_READ | GENERIC_WRITE));
	EXPECT_TRUE(Kiln::hasAccess(folder.path, FILE_LIST_DIRECTORY));
	Kiln::setFileAttributesLong(path, FILE_ATTRIBUTE_READONLY);
	EXPECT_TRUE(Kiln::hasAccess(path, GENERIC_READ));
	EXPECT_FALSE(Kiln::hasAccess(path, GENERIC_WRITE));
	Kiln::setFileAttributesLong(path, FILE_ATTRIBUTE_NORMAL);
}

TEST(Access, ReadsDescriptorsThatGrowAndEndsWhenRefused)
{
	const TemporaryFolder folder;
	const std::string path = folder.file("file");
	int calls = 0;
	DWORD wanted = 0;
	{
		const ImportOverride growing("GetFileSecurityW", &GetFileSecurityW,
			[&, real = &GetFileSecurityW](
				const wchar_t* name, SECURITY_INFORMATION parts, void* descriptor, DWORD size, DWORD* needed) -> BOOL
			{
				if (++calls == 4)
				{
					return real(name, parts, descriptor, size, needed);
				}
				EXPECT_GE(size, wanted);
				*needed = wanted = size + 1;
				SetLastError(ERROR_INSUFFICIENT_BUFFER);
				return FALSE;
			});
		EXPECT_TRUE(Kiln::hasAccess(path, GENERIC_READ));
	}
	const auto noCopy = failing("DuplicateToken", &DuplicateToken, ERROR_ACCESS_DENIED);
	EXPECT_FALSE(Kiln::hasAccess(path, GENERIC_READ));
}

TEST(UserName, ComesFromTheSystem)
{
	const ImportOverride name("GetUserNameW", &GetUserNameW,
		[](wchar_t* out, DWORD* length) -> BOOL
		{
			EXPECT_EQ(*length, 257u);
			return wcscpy(out, L"J\u00FCrgen \u20AC") != nullptr;
		});
	EXPECT_EQ(Kiln::currentUserName(), "J\xC3\xBCrgen \xE2\x82\xAC");
}
} // namespace
