// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A process that a test starts and outlives.
#pragma once

#include <stdexcept>
#include <string>
#include <windows.h>

class ChildProcess
{
public:
	/**
	 * Starts a program; on a loaded machine that may take several attempts, and is not what the tests are about.
	 * @param output an inheritable handle for all that it writes; without one it writes where this process does
	 * @throws std::runtime_error when it never starts
	 */
	explicit ChildProcess(std::wstring commandLine, HANDLE output = nullptr)
	{
		STARTUPINFOW startup{};
		startup.cb = sizeof startup;
		startup.dwFlags = output ? STARTF_USESTDHANDLES : 0;
		startup.hStdOutput = startup.hStdError = output;
		constexpr int lastAttempt = 20;
		for (int attempt = 0; !CreateProcessW(
				 nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process);
			 ++attempt)
		{
			if (attempt == lastAttempt)
			{
				throw std::runtime_error("a process does not start, error " + std::to_string(GetLastError()));
			}
			Sleep(static_cast<DWORD>(attempt) * 50);
		}
	}

	~ChildProcess()
	{
		CloseHandle(process.hThread);
		CloseHandle(process.hProcess);
	}

	ChildProcess(const ChildProcess&) = delete;
	ChildProcess& operator=(const ChildProcess&) = delete;

	/** Waits for the end. */
	DWORD exitCode() const
	{
		WaitForSingleObject(process.hProcess, INFINITE);
		DWORD code = 0;
		GetExitCodeProcess(process.hProcess, &code);
		return code;
	}

private:
	PROCESS_INFORMATION process{};
};
