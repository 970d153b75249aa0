// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A way through a tree from the front to the back. Depth costs memory, but no call stack.
#pragma once

#include <cajun/json/elements.h>
#include <cstddef>
#include <string>
#include <variant>
#include <vector>

namespace json
{
/** Steps through the elements of one object or array; whoever walks decides which of them to enter. */
class Walk
{
public:
	/** Goes on with the members of the object, which must neither change nor move until its end. */
	void Enter(const Object& object) { levels_.push_back(Level{object.Size(), Members{object.Begin(), object.End()}}); }

	/** Goes on with the elements of the array, which must neither change nor move until its end. */
	void Enter(const Array& array) { levels_.push_back(Level{array.Size(), Elements{array.Begin(), array.End()}}); }

	/** How many objects and arrays were entered and not left. */
	std::size_t Depth() const noexcept { return levels_.size(); }

	/** Whether the innermost is an object; for a depth above 0, like all below. */
	bool IsInObject() const noexcept { return std::holds_alternative<Members>(levels_.back().rest); }
	/** How many elements the innermost has in all. */
	std::size_t Size() const noexcept { return levels_.back().size; }

	/** A step: the element and, in an object, its name; without an element at the end. */
	struct Item
	{
		const UnknownElement* element = nullptr;
		const std::string* name = nullptr;
	};

	/** The innermost's next element. */
	Item Next()
	{
		if (Members* members = std::get_if<Members>(&levels_.back().rest))
		{
			if (members->next == members->end)
			{
				return {};
			}
			const Object::Member& member = *members->next++;
			return {&member.element, &member.name};
		}
		Elements& elements = std::get<Elements>(levels_.back().rest);
		return elements.next == elements.end ? Item{} : Item{&*elements.next++};
	}

	/** Goes on where the innermost was entered. */
	void Leave() { levels_.pop_back(); }

private:
	struct Members
	{
		Object::const_iterator next;
		Object::const_iterator end;
	};

	struct Elements
	{
		Array::const_iterator next;
		Array::const_iterator end;
	};

	struct Level
	{
		std::size_t size;
		std::variant<Members, Elements> rest;
	};

	std::vector<Level> levels_;
};
} // namespace json
