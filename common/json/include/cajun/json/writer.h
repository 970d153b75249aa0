// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The text of a tree.
#pragma once

#include <cajun/json/detail/number_text.h>
#include <cajun/json/detail/text_sink.h>
#include <cajun/json/detail/walk.h>
#include <cajun/json/elements.h>
#include <cajun/json/visitor.h>
#include <ostream>
#include <string_view>

namespace json
{
/**
 * Writes elements as text: one member or element a line, indented by one tab a level; names, then " : ", then values;
 * empty objects and arrays as "{}" and "[]"; no newline at the end. Bytes of texts stay as they are but for the
 * two-character escapes of \b \t \n \f \r " and \. Infinities and what is not a number are written as null.
 */
class Writer : private ConstVisitor
{
public:
	/**
	 * Writes one element and flushes the stream. The stream's locale and format have no effect and stay as they are. A
	 * failure is left in the stream's state; nothing more is written after it.
	 */
	static void Write(const UnknownElement& element, std::ostream& stream)
	{
		Writer writer(stream);
		element.Accept(writer);
		writer.Finish();
	}

	template <ElementKind Kind>
	static void Write(const Kind& element, std::ostream& stream)
	{
		Writer writer(stream);
		static_cast<ConstVisitor&>(writer).Visit(element);
		writer.Finish();
	}

private:
	explicit Writer(std::ostream& stream) : sink_(stream) {}

	void Visit(const Null&) override { sink_.Put("null"); }
	void Visit(const Boolean& boolean) override { sink_.Put(boolean.Value() ? "true" : "false"); }
	void Visit(const String& string) override { PutQuoted(string.Value()); }
	void Visit(const Number& number) override { sink_.Put(number_.Make(number)); }
	void Visit(const Object& object) override { Open(object, "{", "{}"); }
	void Visit(const Array& array) override { Open(array, "[", "[]"); }

	template <class Container>
	void Open(const Container& container, std::string_view opening, std::string_view empty)
	{
		if (container.Empty())
		{
			sink_.Put(empty);
			return;
		}
		sink_.Put(opening);
		walk_.Enter(container);
		isFirst_ = true;
	}

	/** Writes what is inside the element that was visited. */
	void Finish()
	{
		while (walk_.Depth() > 0 && sink_.IsGood())
		{
			const Walk::Item item = walk_.Next();
			if (item.element)
			{
				PutItem(item);
			}
			else
			{
				Close();
			}
		}
		sink_.Flush();
	}

	void PutItem(const Walk::Item& item)
	{
		if (!isFirst_)
		{
			sink_.Put(",");
		}
		isFirst_ = false;
		PutLineBreak();
		if (item.name)
		{
			PutQuoted(*item.name);
			sink_.Put(" : ");
		}
		item.element->Accept(*this);
	}

	void Close()
	{
		const std::string_view closing = walk_.IsInObject() ? "}" : "]";
		walk_.Leave();
		PutLineBreak();
		sink_.Put(closing);
		isFirst_ = false;
	}

	void PutLineBreak()
	{
		sink_.Put("\n");
		sink_.Repeat('\t', walk_.Depth());
	}

	void PutQuoted(std::string_view text)
	{
		sink_.Put("\"");
		std::size_t written = 0;
		for (std::size_t at = 0; at < text.size(); ++at)
		{
			const std::string_view escape = EscapeOf(text[at]);
			if (!escape.empty())
			{
				sink_.Put(text.substr(written, at - written));
				sink_.Put(escape);
				written = at + 1;
			}
		}
		sink_.Put(text.substr(written));
		sink_.Put("\"");
	}

	static std::string_view EscapeOf(char byte)
	{
		switch (byte)
		{
		case '\b':
			return "\\b";
		case '\t':
			return "\\t";
		case '\n':
			return "\\n";
		case '\f':
			return "\\f";
		case '\r':
			return "\\r";
		case '"':
			return "\\\"";
		case '\\':
			return "\\\\";
		default:
			return {};
		}
	}

	TextSink sink_;
	NumberText number_;
	Walk walk_;
	bool isFirst_ = true;
};
} // namespace json
