// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Replaces an exported platform function for a scope by a jump at its entry. For functions that callers look up at run
// time: no import table names those. One thread may call the function meanwhile.
#pragma once

#include <array>
#include <cstring>
#include <gtest/gtest.h>
#include <stdexcept>
#include <windows.h>

template <class Result, class... Arguments>
class CodeOverride
{
public:
	using Function = Result(Arguments...);

	CodeOverride(const wchar_t* library, const char* function, Function* standIn)
		: name(function), entry(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(library), function)))
	{
		if (!entry)
		{
			throw std::logic_error("not exported: " + name);
		}
		// mov rax, <address>; jmp rax
		jump = {0x48, 0xB8, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xE0};
		std::memcpy(&jump[2], &standIn, sizeof standIn);
		std::memcpy(code.data(), entry, code.size());
		write(jump);
	}

	~CodeOverride()
	{
		write(code);
		EXPECT_GT(realCalls, 0) << name << " was replaced and never called";
	}

	CodeOverride(const CodeOverride&) = delete;
	CodeOverride& operator=(const CodeOverride&) = delete;

	/** Calls what is replaced. */
	Result real(Arguments... arguments)
	{
		++realCalls;
		write(code);
		const Result result = reinterpret_cast<Function*>(entry)(arguments...);
		const DWORD error = GetLastError();
		write(jump);
		SetLastError(error);
		return result;
	}

private:
	using Code = std::array<unsigned char, 12>;

	void write(const Code& bytes)
	{
		DWORD protection = 0;
		VirtualProtect(entry, bytes.size(), PAGE_EXECUTE_READWRITE, &protection);
		std::memcpy(entry, bytes.data(), bytes.size());
		VirtualProtect(entry, bytes.size(), protection, &protection);
		FlushInstructionCache(GetCurrentProcess(), entry, bytes.size());
	}

	const std::string name;
	void* const entry;
	Code jump{};
	Code code{};
	int realCalls = 0;
};
