// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "../../platform/Handle.h"
#include "../../platform/PlatformParts.h"
#include <kiln/Access.h>
#include <kiln/Paths.h>
#include <kiln/Unicode.h>
#include <vector>

namespace Kiln
{
namespace
{
/** A self-relative security descriptor, aligned for its fields; empty when it cannot be read. */
std::vector<DWORD> securityDescriptor(const std::wstring& path)
{
	constexpr SECURITY_INFORMATION parts =
		OWNER_SECURITY_INFORMATION | GROUP_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION;
	std::vector<DWORD> buffer(64);
	for (;;)
	{
		const DWORD room = static_cast<DWORD>(buffer.size() * sizeof(DWORD));
		DWORD needed = 0;
		if (GetFileSecurityW(path.c_str(), parts, buffer.data(), room, &needed))
		{
			return buffer;
		}
		// The descriptor may grow between two calls.
		if (GetLastError() != ERROR_INSUFFICIENT_BUFFER || needed <= room)
		{
			return {};
		}
		buffer.resize((needed + sizeof(DWORD) - 1) / sizeof(DWORD));
	}
}

/** The process's user as a token that access checks take; null when the system refuses. */
Handle impersonationToken()
{
	HANDLE process = nullptr;
	if (!OpenProcessToken(GetCurrentProcess(), TOKEN_DUPLICATE | TOKEN_QUERY, &process))
	{
		return nullptr;
	}
	const Handle owner(process);
	HANDLE token = nullptr;
	return Handle(DuplicateToken(process, SecurityImpersonation, &token) ? token : nullptr);
}
} // namespace

bool hasAccess(const std::string& path, std::uint32_t desiredAccess)
{
	std::vector<DWORD> descriptor = securityDescriptor(widePath(path));
	const Handle token = impersonationToken();
	if (descriptor.empty() || !token)
	{
		return false;
	}
	GENERIC_MAPPING rights{FILE_GENERIC_READ, FILE_GENERIC_WRITE, FILE_GENERIC_EXECUTE, FILE_ALL_ACCESS};
	DWORD wanted = desiredAccess;
	MapGenericMask(&wanted, &rights);
	PRIVILEGE_SET privileges{};
	DWORD privilegesSize = sizeof privileges;
	DWORD granted = 0;
	BOOL allowed = FALSE;
	return AccessCheck(
			   descriptor.data(), token.get(), wanted, &rights, &privileges, &privilegesSize, &granted, &allowed) &&
		   allowed;
}

bool setFileAttributesLong(const std::string& path, std::uint32_t attributes)
{
	std::wstring name = wideAbsolutePath(path);
	if (name.starts_with(L"\\\\?\\") || name.starts_with(L"\\\\.\\"))
	{
		name[2] = L'?';
	}
	else if (name.starts_with(L"\\\\"))
	{
		name.replace(0, 2, L"\\\\?\\UNC\\");
	}
	else if (!name.empty())
	{
		name.insert(0, L"\\\\?\\");
	}
	return SetFileAttributesW(name.c_str(), attributes) != FALSE;
}

std::string currentUserName()
{
	wchar_t name[UNLEN + 1];
	DWORD length = UNLEN + 1;
	return GetUserNameW(name, &length) ? toUtf8(name) : std::string();
}
} // namespace Kiln
