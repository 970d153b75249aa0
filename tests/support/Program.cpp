// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Program.h"

#include <algorithm>
#include <stdexcept>
#include <windows.h>

FProgramResult RunHeadlessEditor(const std::wstring& Arguments)
{
	SECURITY_ATTRIBUTES Inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
	HANDLE Read = nullptr;
	HANDLE Write = nullptr;
	if (!CreatePipe(&Read, &Write, &Inherited, 0))
	{
		throw std::runtime_error("no pipe");
	}
	STARTUPINFOW Startup{};
	Startup.cb = sizeof Startup;
	Startup.dwFlags = STARTF_USESTDHANDLES;
	Startup.hStdOutput = Write;
	Startup.hStdError = Write;
	PROCESS_INFORMATION Process{};
	std::wstring CommandLine = L"HeadlessEditor.exe " + Arguments;
	if (!CreateProcessW(nullptr, CommandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &Startup, &Process))
	{
		throw std::runtime_error("HeadlessEditor.exe does not start");
	}
	CloseHandle(Write);
	FProgramResult Result{};
	char Part[4096];
	for (DWORD Size = 0; ReadFile(Read, Part, sizeof Part, &Size, nullptr) && Size > 0;)
	{
		Result.Output.append(Part, Size);
	}
	std::erase(Result.Output, '\r');
	WaitForSingleObject(Process.hProcess, INFINITE);
	GetExitCodeProcess(Process.hProcess, &Result.ExitCode);
	CloseHandle(Process.hThread);
	CloseHandle(Process.hProcess);
	CloseHandle(Read);
	return Result;
}
