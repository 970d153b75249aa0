// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "ImportOverride.h"

#include <type_traits>

/** Has a platform function do nothing but set the error and give the result. */
template <class Result, class... Arguments>
auto failing(
	const char* name, Result (*function)(Arguments...), DWORD error, std::type_identity_t<Result> result = Result())
{
	return ImportOverride(name, function,
		[error, result](Arguments...)
		{
			SetLastError(error);
			return result;
		});
}

/** For a handle that nobody else opens meanwhile. */
inline bool isClosed(HANDLE handle)
{
	DWORD flags = 0;
	return !GetHandleInformation(handle, &flags);
}
