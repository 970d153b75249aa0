// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What goes through whole trees: each keeps a list of what is left to do instead of calling itself.
// Use <cajun/json/elements.h>.
#pragma once

#include <algorithm>
#include <cajun/json/detail/array.h>
#include <cajun/json/detail/object.h>
#include <utility>
#include <vector>

namespace json
{
/** Destroys objects and arrays one at a time, each after its own objects and arrays were taken out. Needs no memory. */
class UnknownElement::Disposal
{
public:
	/** Takes the element's object or array, if it holds one. */
	void Take(UnknownElement& element) noexcept
	{
		if (auto* object = std::get_if<BoxPointer<Object>>(&element.value_))
		{
			Push(objects_, *object);
		}
		else if (auto* array = std::get_if<BoxPointer<Array>>(&element.value_))
		{
			Push(arrays_, *array);
		}
	}

	void Run() noexcept
	{
		while (objects_ || arrays_)
		{
			if (objects_)
			{
				const BoxPointer<Object> box = Pop(objects_);
				for (Object::Member& member : box->content)
				{
					Take(member.element);
				}
			}
			else
			{
				const BoxPointer<Array> box = Pop(arrays_);
				for (UnknownElement& element : box->content)
				{
					Take(element);
				}
			}
		}
	}

private:
	/** Ignores null: what was taken before. */
	template <class Kind>
	static void Push(BoxPointer<Kind>& list, BoxPointer<Kind>& box) noexcept
	{
		if (box)
		{
			box->next = std::move(list);
			list = std::move(box);
		}
	}

	template <class Kind>
	static BoxPointer<Kind> Pop(BoxPointer<Kind>& list) noexcept
	{
		BoxPointer<Kind> first = std::move(list);
		list = std::move(first->next);
		return first;
	}

	BoxPointer<Object> objects_;
	BoxPointer<Array> arrays_;
};

/** Copies deeply. Targets are Null at first; they do not move while others are added behind them. */
class UnknownElement::Copy
{
public:
	void Run(const UnknownElement& source, UnknownElement& target)
	{
		Place(source, target);
		while (!pending_.empty())
		{
			const auto [from, to] = pending_.back();
			pending_.pop_back();
			if (const Object* object = from->Find<Object>())
			{
				Fill(*object, *to);
			}
			else
			{
				Fill(from->As<Array>(), *to);
			}
		}
	}

private:
	/** Copies a plain value; an object or array has to wait. */
	void Place(const UnknownElement& source, UnknownElement& target)
	{
		const auto place = [&]<class Held>(const Held& held)
		{
			if constexpr (ElementKind<Held>)
			{
				target.value_.emplace<Held>(held);
			}
			else
			{
				pending_.emplace_back(&source, &target);
			}
		};
		std::visit(place, source.value_);
	}

	void Fill(const Object& source, Object& target)
	{
		for (const Object::Member& member : source)
		{
			Place(member.element, target[member.name]);
		}
	}

	void Fill(const Array& source, Array& target)
	{
		for (const UnknownElement& element : source)
		{
			Place(element, *target.Insert(UnknownElement()));
		}
	}

	std::vector<std::pair<const UnknownElement*, UnknownElement*>> pending_;
};

/** Compares deeply and stops at the first difference. */
class UnknownElement::Comparison
{
public:
	bool Run(const UnknownElement& left, const UnknownElement& right)
	{
		pending_.emplace_back(&left, &right);
		while (!pending_.empty())
		{
			const auto [first, second] = pending_.back();
			pending_.pop_back();
			if (!IsSame(*first, *second))
			{
				return false;
			}
		}
		return true;
	}

private:
	/** Compares all but the elements inside, which have to wait. */
	bool IsSame(const UnknownElement& left, const UnknownElement& right)
	{
		const auto compare = [&]<class Held>(const Held& held)
		{
			const Held* other = std::get_if<Held>(&right.value_);
			if constexpr (ElementKind<Held>)
			{
				return other && held == *other;
			}
			else
			{
				return other && HaveSameShape(held->content, (*other)->content);
			}
		};
		return std::visit(compare, left.value_);
	}

	template <class Container>
	bool HaveSameShape(const Container& left, const Container& right)
	{
		return left.Size() == right.Size() &&
			   std::equal(left.Begin(), left.End(), right.Begin(),
				   [this](const auto& first, const auto& second) { return this->Put(first, second); });
	}

	bool Put(const Object::Member& left, const Object::Member& right)
	{
		return left.name == right.name && Put(left.element, right.element);
	}

	bool Put(const UnknownElement& left, const UnknownElement& right)
	{
		pending_.emplace_back(&left, &right);
		return true;
	}

	std::vector<std::pair<const UnknownElement*, const UnknownElement*>> pending_;
};
} // namespace json
