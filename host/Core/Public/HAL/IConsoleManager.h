// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Commands that a user types into the console.
#pragma once

#include "CoreMinimal.h"

DECLARE_DELEGATE_OneParam(FConsoleCommandWithArgsDelegate, const TArray<FString>&);

class IConsoleManager
{
public:
	CORE_API static IConsoleManager& Get();

	/** Runs a line: a command's name, then its arguments, separated by blanks. @return false for an unknown command */
	CORE_API bool ProcessUserConsoleInput(const TCHAR* Input);

private:
	friend class FAutoConsoleCommand;

	TMap<FName, FConsoleCommandWithArgsDelegate> Commands;
};

/** A command for as long as the object lives. */
class FAutoConsoleCommand
{
public:
	FAutoConsoleCommand(const TCHAR* InName, const TCHAR*, const FConsoleCommandWithArgsDelegate& Command)
		: Name(InName)
	{
		IConsoleManager::Get().Commands.Add(Name, Command);
	}

	~FAutoConsoleCommand() { IConsoleManager::Get().Commands.Remove(Name); }

	FAutoConsoleCommand(const FAutoConsoleCommand&) = delete;
	FAutoConsoleCommand& operator=(const FAutoConsoleCommand&) = delete;

private:
	FName Name;
};
