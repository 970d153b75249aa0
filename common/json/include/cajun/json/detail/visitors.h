// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// One operation for each kind of element. Use <cajun/json/visitor.h>.
#pragma once

namespace json
{
class Null;
class Boolean;
class String;
class Number;
class Object;
class Array;

/** Is shown elements that it may change. Visiting does not go into objects and arrays by itself. */
class Visitor
{
public:
	virtual ~Visitor() = default;
	virtual void Visit(Null& null) = 0;
	virtual void Visit(Boolean& boolean) = 0;
	virtual void Visit(String& string) = 0;
	virtual void Visit(Number& number) = 0;
	virtual void Visit(Object& object) = 0;
	virtual void Visit(Array& array) = 0;
};

/** Is shown elements that it may only read. Visiting does not go into objects and arrays by itself. */
class ConstVisitor
{
public:
	virtual ~ConstVisitor() = default;
	virtual void Visit(const Null& null) = 0;
	virtual void Visit(const Boolean& boolean) = 0;
	virtual void Visit(const String& string) = 0;
	virtual void Visit(const Number& number) = 0;
	virtual void Visit(const Object& object) = 0;
	virtual void Visit(const Array& array) = 0;
};
} // namespace json
