// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "HAL/IConsoleManager.h"

#include <sstream>

IConsoleManager& IConsoleManager::Get()
{
	// Never destroyed: commands unregister from static destructors of other images.
	static IConsoleManager* const Manager = new IConsoleManager();
	return *Manager;
}

bool IConsoleManager::ProcessUserConsoleInput(const TCHAR* Input)
{
	std::wistringstream Words{std::wstring(Input)};
	std::wstring Name;
	Words >> Name;
	const FConsoleCommandWithArgsDelegate* Command = Commands.Find(FName(Name.c_str()));
	if (!Command)
	{
		return false;
	}
	TArray<FString> Arguments;
	for (std::wstring Word; Words >> Word;)
	{
		Arguments.Add(FString(Word.c_str()));
	}
	Command->Execute(Arguments);
	return true;
}
