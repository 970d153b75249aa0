// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Member functions of Object and Array. Use <cajun/json/elements.h>.
#pragma once

#include <algorithm>
#include <cajun/json/detail/array.h>
#include <cajun/json/detail/object.h>
#include <utility>

namespace json
{
inline Object::Member::Member(std::string memberName, UnknownElement memberElement)
	: name(std::move(memberName)), element(std::move(memberElement))
{
}

inline Object::Object(const Object& other) : members_(other.members_)
{
	if (!other.index_.empty())
	{
		BuildIndex();
	}
}

inline Object::Object(Object&& other) noexcept
{
	members_.swap(other.members_);
	index_.swap(other.index_);
}

inline Object& Object::operator=(Object other) noexcept
{
	members_.swap(other.members_);
	index_.swap(other.index_);
	return *this;
}

inline Object::const_iterator Object::Find(const std::string& name) const
{
	if (index_.empty())
	{
		return std::find_if(Begin(), End(), [&](const Member& member) { return member.name == name; });
	}
	const auto found = index_.find(std::string_view(name));
	return found == index_.end() ? End() : *found;
}

inline Object::iterator Object::Find(const std::string& name)
{
	const const_iterator found = std::as_const(*this).Find(name);
	// Erasing nothing is how a list makes a changeable iterator of a constant one.
	return members_.erase(found, found);
}

inline Object::iterator Object::Insert(Member member)
{
	return Insert(std::move(member), End());
}

inline Object::iterator Object::Insert(Member member, const_iterator position)
{
	if (Find(member.name) != End())
	{
		throw Exception("Object member already exists: " + member.name);
	}
	return Add(position, member.name, std::move(member.element));
}

inline Object::iterator Object::Add(const_iterator position, const std::string& name, UnknownElement element)
{
	const iterator added = members_.emplace(position, name, std::move(element));
	try
	{
		if (!index_.empty())
		{
			index_.insert(added);
		}
		else if (Size() > UnindexedSize)
		{
			BuildIndex();
		}
	}
	catch (...)
	{
		index_.clear();
		members_.erase(added);
		throw;
	}
	return added;
}

inline void Object::BuildIndex()
{
	index_.reserve(Size());
	for (const_iterator member = Begin(); member != End(); ++member)
	{
		index_.insert(member);
	}
}

inline Object::iterator Object::Erase(const_iterator member)
{
	if (!index_.empty())
	{
		index_.erase(member);
	}
	return members_.erase(member);
}

inline void Object::Clear() noexcept
{
	index_.clear();
	members_.clear();
}

inline UnknownElement& Object::operator[](const std::string& name)
{
	const iterator found = Find(name);
	return found == End() ? Add(End(), name, UnknownElement())->element : found->element;
}

inline const UnknownElement& Object::operator[](const std::string& name) const
{
	const const_iterator found = Find(name);
	if (found == End())
	{
		throw Exception("Object member not found: " + name);
	}
	return found->element;
}

inline bool Object::operator==(const Object& other) const
{
	return members_ == other.members_;
}

inline Array::iterator Array::Insert(UnknownElement element)
{
	return Insert(std::move(element), End());
}

inline Array::iterator Array::Insert(UnknownElement element, const_iterator position)
{
	return elements_.insert(position, std::move(element));
}

inline Array::iterator Array::Erase(const_iterator element)
{
	return elements_.erase(element);
}

inline Array::iterator Array::Erase(const_iterator first, const_iterator last)
{
	return elements_.erase(first, last);
}

inline void Array::Resize(std::size_t size)
{
	elements_.resize(size);
}

inline void Array::Clear() noexcept
{
	elements_.clear();
}

inline UnknownElement& Array::operator[](std::size_t index)
{
	if (index >= elements_.max_size())
	{
		throw Exception("Array index out of range: " + std::to_string(index));
	}
	if (index >= Size())
	{
		Resize(index + 1);
	}
	return elements_[index];
}

inline const UnknownElement& Array::operator[](std::size_t index) const
{
	if (index >= Size())
	{
		throw Exception("Array index out of range: " + std::to_string(index));
	}
	return elements_[index];
}

inline bool Array::operator==(const Array& other) const
{
	return elements_ == other.elements_;
}
} // namespace json
