// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <kiln/CajunTypeResolver.h>

namespace Kiln
{
void CajunTypeResolver::set(bool CajunTypeResolver::*field)
{
	isArray = isObject = isNumber = isString = isBoolean = isNull = false;
	this->*field = true;
}

void CajunTypeResolver::Visit(const json::Null&)
{
	set(&CajunTypeResolver::isNull);
}

void CajunTypeResolver::Visit(const json::Boolean&)
{
	set(&CajunTypeResolver::isBoolean);
}

void CajunTypeResolver::Visit(const json::String&)
{
	set(&CajunTypeResolver::isString);
}

void CajunTypeResolver::Visit(const json::Number&)
{
	set(&CajunTypeResolver::isNumber);
}

void CajunTypeResolver::Visit(const json::Object&)
{
	set(&CajunTypeResolver::isObject);
}

void CajunTypeResolver::Visit(const json::Array&)
{
	set(&CajunTypeResolver::isArray);
}
} // namespace Kiln
