// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include <kiln/JSONLoadHelper.h>
#include <rapidjson/document.h>
#include <vector>

namespace Kiln::Locale
{
namespace
{
/** An object under way: its next member, and how long the key was before it. */
struct Level
{
	rapidjson::Value::ConstMemberIterator next;
	rapidjson::Value::ConstMemberIterator end;
	size_t prefixLength;
};
} // namespace

JSONLoadHelper::JSONLoadHelper(StringTable& table) : table_(table) {}

bool JSONLoadHelper::fromRapidJson(const rapidjson::Value& in)
{
	// A stack of our own: documents may be nested deeper than a thread's stack is long.
	std::vector<Level> levels;
	if (in.IsObject())
	{
		levels.push_back({in.MemberBegin(), in.MemberEnd(), 0});
	}
	std::string key;
	while (!levels.empty())
	{
		Level& level = levels.back();
		key.resize(level.prefixLength);
		if (level.next == level.end)
		{
			levels.pop_back();
			continue;
		}
		const auto& [name, value] = *level.next++;
		if (level.prefixLength > 0)
		{
			key += '.';
		}
		key.append(name.GetString(), name.GetStringLength());
		if (value.IsString())
		{
			table_.insert_or_assign(key, std::string(value.GetString(), value.GetStringLength()));
		}
		else if (value.IsObject())
		{
			levels.push_back({value.MemberBegin(), value.MemberEnd(), key.size()});
		}
	}
	return true;
}
} // namespace Kiln::Locale
