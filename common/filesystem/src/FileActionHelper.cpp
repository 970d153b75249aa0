// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "../../platform/ItemList.h"
#include <kiln/FileActionHelper.h>
#include <kiln/Paths.h>
#include <kiln/Unicode.h>

namespace Kiln
{
namespace
{
constexpr FILEOP_FLAGS recycleFlags =
	FOF_SILENT | FOF_NOCONFIRMATION | FOF_ALLOWUNDO | FOF_NOCONFIRMMKDIR | FOF_NOERRORUI | FOF_NORECURSION;
static_assert(recycleFlags == 0x1654);

/** COM on this thread for a scope, as the shell's calls want it. A thread that uses it in another way already does as well. */
class ComScope
{
public:
	ComScope() : result_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)) {}

	~ComScope()
	{
		if (SUCCEEDED(result_))
		{
			CoUninitialize();
		}
	}

	ComScope(const ComScope&) = delete;
	ComScope& operator=(const ComScope&) = delete;

private:
	const HRESULT result_;
};

bool holdsNul(const std::string& text)
{
	return text.find('\0') != text.npos;
}

/**
 * Whether the last name is of dots and blanks alone: the platform takes such a path for the folder above. So it takes a drive
 * alone for that drive's current folder.
 */
bool endsInNoName(const std::string& path)
{
	const std::string names = path.substr(0, path.find_last_not_of("/\\") + 1);
	return names.find_first_not_of(" .", names.find_last_of("/\\:") + 1) == names.npos;
}

/** An optional text for the shell, which takes null for none. */
const wchar_t* orNull(const std::wstring& text)
{
	return text.empty() ? nullptr : text.c_str();
}
} // namespace

bool FileActionHelper::openDocument(const std::string& path)
{
	return openDocument(path, {});
}

bool FileActionHelper::openDocument(const std::string& path, const std::string& parameters)
{
	const std::wstring document = widePath(path);
	if (document.empty() || holdsNul(parameters))
	{
		return false;
	}
	const std::wstring wideParameters = toWide(parameters);
	const ComScope com;
	const HINSTANCE result =
		ShellExecuteW(nullptr, L"open", document.c_str(), orNull(wideParameters), nullptr, SW_SHOWNORMAL);
	return reinterpret_cast<INT_PTR>(result) > 32;
}

bool FileActionHelper::revealInFolder(const std::string& path)
{
	const std::wstring file = wideAbsolutePath(path);
	if (file.empty())
	{
		return false;
	}
	const ComScope com;
	const ItemList item(ILCreateFromPathW(file.c_str()));
	return item && SUCCEEDED(SHOpenFolderAndSelectItems(item.get(), 0, nullptr, 0));
}

bool FileActionHelper::runProgram(
	const std::string& program, const std::string& parameters, const std::string& directory, std::uint32_t flags)
{
	const std::wstring file = widePath(program);
	if (file.empty() || holdsNul(parameters) || holdsNul(directory))
	{
		return false;
	}
	const std::wstring wideParameters = toWide(parameters);
	const std::wstring wideDirectory = toWide(directory);
	SHELLEXECUTEINFOW launch{};
	launch.cbSize = sizeof launch;
	launch.fMask = flags & WaitForEnd ? SEE_MASK_NOCLOSEPROCESS : 0;
	launch.lpVerb = flags & Elevated ? L"runas" : nullptr;
	launch.lpFile = file.c_str();
	launch.lpParameters = orNull(wideParameters);
	launch.lpDirectory = orNull(wideDirectory);
	launch.nShow = SW_SHOW;
	const ComScope com;
	if (!ShellExecuteExW(&launch))
	{
		return false;
	}
	// There is none where a running program took the request over.
	if (launch.hProcess)
	{
		WaitForSingleObject(launch.hProcess, INFINITE);
		CloseHandle(launch.hProcess);
	}
	return true;
}

bool FileActionHelper::moveToRecycleBin(const std::string& path)
{
	// What is not absolute would be deleted for good.
	std::wstring list = wideAbsolutePath(path);
	const bool namesOneFile = !list.empty() && !endsInNoName(path) && !PathIsRootW(list.c_str()) &&
							  list.find_first_of(L"*?") == list.npos && list.size() < MAX_PATH;
	if (!namesOneFile)
	{
		return false;
	}
	list.push_back(L'\0'); // a list of one: its end follows
	SHFILEOPSTRUCTW operation{};
	operation.wFunc = FO_DELETE;
	operation.pFrom = list.c_str();
	operation.fFlags = recycleFlags;
	return SHFileOperationW(&operation) == 0;
}
} // namespace Kiln
