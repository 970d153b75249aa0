// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

/** What log lines are sorted by. */
class FLogCategoryBase
{
public:
	FLogCategoryBase(const TCHAR* InName, ELogVerbosity::Type InVerbosity) : Name(InName), Verbosity(InVerbosity) {}

	/** Whether lines of this verbosity are dropped. */
	bool IsSuppressed(ELogVerbosity::Type LineVerbosity) const { return LineVerbosity > Verbosity; }

	const FName& GetCategoryName() const { return Name; }

private:
	FName Name;
	ELogVerbosity::Type Verbosity;
};

template <ELogVerbosity::Type Default, ELogVerbosity::Type CompileTime>
class FLogCategory : public FLogCategoryBase
{
public:
	explicit FLogCategory(const TCHAR* InName) : FLogCategoryBase(InName, Default < CompileTime ? Default : CompileTime)
	{
	}
};
