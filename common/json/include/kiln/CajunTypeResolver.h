// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include <cajun/json/visitor.h>

namespace Kiln
{
/** Tells which kind an element holds: after element.Accept(resolver) exactly one field is true. */
class CajunTypeResolver : public json::ConstVisitor
{
public:
	void Visit(const json::Null& null) override;
	void Visit(const json::Boolean& boolean) override;
	void Visit(const json::String& string) override;
	void Visit(const json::Number& number) override;
	void Visit(const json::Object& object) override;
	void Visit(const json::Array& array) override;

	bool isArray = false;
	bool isObject = false;
	bool isNumber = false;
	bool isString = false;
	bool isBoolean = false;
	bool isNull = false;

private:
	void set(bool CajunTypeResolver::*field);
};
} // namespace Kiln
