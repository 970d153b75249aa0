// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Named elements in order. Use <cajun/json/elements.h>.
#pragma once

#include <cajun/json/detail/unknown_element.h>
#include <cstddef>
#include <functional>
#include <list>
#include <string>
#include <string_view>
#include <unordered_set>

namespace json
{
/**
 * A list of members with unique names, in the order in which they were inserted. Iterators and references to members
 * stay valid until the member is erased, also when the object is moved. Looking a name up takes constant time on average.
 */
class Object
{
public:
	struct Member
	{
		Member(std::string memberName = {}, UnknownElement memberElement = {});
		bool operator==(const Member&) const = default;

		/** Constant: the object finds its members by it. */
		const std::string name;
		UnknownElement element;
	};

	using iterator = std::list<Member>::iterator;
	using const_iterator = std::list<Member>::const_iterator;

	Object() = default;
	Object(const Object& other);
	/** The source is left empty. */
	Object(Object&& other) noexcept;
	Object& operator=(Object other) noexcept;
	~Object() = default;

	iterator Begin() noexcept { return members_.begin(); }
	iterator End() noexcept { return members_.end(); }
	const_iterator Begin() const noexcept { return members_.begin(); }
	const_iterator End() const noexcept { return members_.end(); }
	iterator begin() noexcept { return members_.begin(); }
	iterator end() noexcept { return members_.end(); }
	const_iterator begin() const noexcept { return members_.begin(); }
	const_iterator end() const noexcept { return members_.end(); }

	std::size_t Size() const noexcept { return members_.size(); }
	bool Empty() const noexcept { return members_.empty(); }

	/** @return the member of that name, or End() */
	iterator Find(const std::string& name);
	const_iterator Find(const std::string& name) const;

	/**
	 * Adds a member at the end or before the position. Throws Exception when there is a member of that name.
	 * @return the new member
	 */
	iterator Insert(Member member);
	iterator Insert(Member member, const_iterator position);

	/** @return the member behind the erased one */
	iterator Erase(const_iterator member);
	void Clear() noexcept;

	/** The element of that name. A missing one is added at the end as Null, or, in a const object, throws Exception. */
	UnknownElement& operator[](const std::string& name);
	const UnknownElement& operator[](const std::string& name) const;

	/** Equal names and elements in the same order. */
	bool operator==(const Object& other) const;

private:
	struct NameHash
	{
		using is_transparent = void;
		std::size_t operator()(std::string_view name) const { return std::hash<std::string_view>()(name); }
		std::size_t operator()(const_iterator member) const { return operator()(member->name); }
	};

	struct NameEqual
	{
		using is_transparent = void;
		bool operator()(const_iterator left, const_iterator right) const { return left->name == right->name; }
		bool operator()(std::string_view left, const_iterator right) const { return left == right->name; }
		bool operator()(const_iterator left, std::string_view right) const { return left->name == right; }
	};

	/** Up to this many members, comparing all names is faster than the index, and saves its memory. */
	static constexpr std::size_t UnindexedSize = 8;

	/** For a name that is not there yet. */
	iterator Add(const_iterator position, const std::string& name, UnknownElement element);
	void BuildIndex();

	std::list<Member> members_;
	/** All members, or none: an empty index is built when the object grows. */
	std::unordered_set<const_iterator, NameHash, NameEqual> index_;
};
} // namespace json
