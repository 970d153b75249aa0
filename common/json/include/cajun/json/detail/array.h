// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Elements by number. Use <cajun/json/elements.h>.
#pragma once

#include <cajun/json/detail/unknown_element.h>
#include <cstddef>
#include <deque>

namespace json
{
/** A sequence of elements. References to elements stay valid while elements are added or erased at the end. */
class Array
{
public:
	using iterator = std::deque<UnknownElement>::iterator;
	using const_iterator = std::deque<UnknownElement>::const_iterator;

	iterator Begin() noexcept { return elements_.begin(); }
	iterator End() noexcept { return elements_.end(); }
	const_iterator Begin() const noexcept { return elements_.begin(); }
	const_iterator End() const noexcept { return elements_.end(); }
	iterator begin() noexcept { return elements_.begin(); }
	iterator end() noexcept { return elements_.end(); }
	const_iterator begin() const noexcept { return elements_.begin(); }
	const_iterator end() const noexcept { return elements_.end(); }

	std::size_t Size() const noexcept { return elements_.size(); }
	bool Empty() const noexcept { return elements_.empty(); }

	/** Adds an element at the end or before the position. @return the new element */
	iterator Insert(UnknownElement element);
	iterator Insert(UnknownElement element, const_iterator position);

	/** @return the element behind the erased ones */
	iterator Erase(const_iterator element);
	iterator Erase(const_iterator first, const_iterator last);

	/** Cuts elements off at the end, or adds Nulls there. */
	void Resize(std::size_t size);
	void Clear() noexcept;

	/** The element at that index. Behind the end the array grows; a const one, and one that would be larger than an
	 * array can be, throws Exception. */
	UnknownElement& operator[](std::size_t index);
	const UnknownElement& operator[](std::size_t index) const;

	bool operator==(const Array& other) const;

private:
	std::deque<UnknownElement> elements_;
};
} // namespace json
