// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Program.h"

#include "ChildProcess.h"

#include <algorithm>
#include <stdexcept>

FProgramResult RunHeadlessEditor(const std::wstring& Arguments)
{
	SECURITY_ATTRIBUTES Inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
	HANDLE Read = nullptr;
	HANDLE Write = nullptr;
	if (!CreatePipe(&Read, &Write, &Inherited, 0))
	{
		throw std::runtime_error("no pipe");
	}
	const ChildProcess Editor(L"HeadlessEditor.exe " + Arguments, Write);
	CloseHandle(Write);
	FProgramResult Result{};
	char Part[4096];
	for (DWORD Size = 0; ReadFile(Read, Part, sizeof Part, &Size, nullptr) && Size > 0;)
	{
		Result.Output.append(Part, Size);
	}
	std::erase(Result.Output, '\r');
	Result.ExitCode = Editor.exitCode();
	CloseHandle(Read);
	return Result;
}
