#!/usr/bin/env python3
# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
"""Reads the reflected headers of one module and writes what their macros stand for.

    header_tool.py --module NAME --source FOLDER --out FOLDER [--known FILE.types ...] HEADER...

For each header it writes <Header>.generated.h and <Header>.gen.cpp, for the module <NAME>.types: the types that other
modules' runs may name. What it does not know is an error: one line with file, line and reason, exit code 1.
"""
import argparse
import json
import re
import sys
from dataclasses import dataclass, field
from pathlib import Path

TOKEN = re.compile(r"""
      (?P<comment>//[^\n]*|/\*.*?\*/)
    | (?P<directive>^[ \t]*\#(?:\\\n|[^\n])*)
    | (?P<text>"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])*')
    | (?P<word>[A-Za-z_]\w*)
    | (?P<number>\d[\w.]*)
    | (?P<mark>::|->|\S)
""", re.VERBOSE | re.MULTILINE | re.DOTALL)

CLASS_SPECIFIERS = {"config", "minimalapi", "abstract", "hidecategories", "blueprinttype"}
STRUCT_SPECIFIERS = {"blueprinttype"}
PROPERTY_SPECIFIERS = {"config", "editanywhere", "category", "meta", "transient"}
UNSUPPORTED = {"GENERATED_UCLASS_BODY", "GENERATED_USTRUCT_BODY", "UFUNCTION", "UENUM", "UINTERFACE", "UDELEGATE", "RIGVM_METHOD"}
PLAIN_TYPES = {"bool": "FBoolProperty", "float": "FFloatProperty", "int32": "FIntProperty", "FName": "FNameProperty",
               "FString": "FStrProperty"}


class HeaderError(Exception):
    """What is wrong with a header, and where."""


@dataclass
class Token:
    kind: str
    text: str
    line: int


@dataclass
class PropertyType:
    """The property class that stands for a C++ type, and what it refers to: a type's name or an inner PropertyType."""
    kind: str
    cpp: str
    refers: object = None


@dataclass
class Property:
    name: str
    type: PropertyType
    specifiers: dict
    access: str
    comment: str
    line: int


@dataclass
class Type:
    kind: str
    name: str
    api: str
    base: str
    specifiers: dict
    comment: str
    macro_line: int
    body_line: int = 0
    body_access: str = "private"
    declares: set = field(default_factory=set)
    properties: list = field(default_factory=list)


def tokenize(text):
    return [Token(m.lastgroup, m.group(), text.count("\n", 0, m.start()) + 1) for m in TOKEN.finditer(text)]


class Reader:
    """Walks the tokens of one header."""

    def __init__(self, path, text):
        self.path = path
        self.tokens = tokenize(text)
        self.at = 0

    def error(self, line, reason):
        return HeaderError(f"{self.path}:{line}: {reason}")

    def peek(self):
        while self.at < len(self.tokens) and self.tokens[self.at].kind in ("comment", "directive"):
            self.at += 1
        return self.tokens[self.at] if self.at < len(self.tokens) else None

    def next(self):
        token = self.peek()
        if token is None:
            raise self.error(self.tokens[-1].line if self.tokens else 1, "the file ends too early")
        self.at += 1
        return token

    def expect(self, text):
        token = self.next()
        if token.text != text:
            raise self.error(token.line, f'"{text}" expected, "{token.text}" found')
        return token

    def comment_before(self):
        """The comment lines that stand directly above the next token."""
        lines, index = [], self.at
        self.peek()
        index = self.at - 1
        line = self.tokens[self.at].line
        while index >= 0 and self.tokens[index].kind == "comment":
            comment = self.tokens[index]
            last = comment.line + comment.text.count("\n")
            if last != line - 1 or (index and self.tokens[index - 1].line == comment.line):
                break
            lines.insert(0, comment.text)
            line = comment.line
            index -= 1
        return "\n".join(lines)

    def specifiers(self, known):
        """Reads "(Name, Name=Value, meta=(Name=Value))" into a dictionary with lower-case names."""
        result = {}
        self.expect("(")
        while self.peek().text != ")":
            name = self.next()
            key = name.text.lower()
            if known is not None and key not in known:
                raise self.error(name.line, f'unknown specifier "{name.text}"')
            value = ""
            if self.peek().text == "=":
                self.next()
                value = self.specifiers(None) if self.peek().text == "(" else self.value()
            result[key] = value
            if self.peek().text == ",":
                self.next()
        self.expect(")")
        return result

    def value(self):
        parts = []
        while self.peek().text not in (",", ")"):
            parts.append(self.next().text)
        return "".join(parts).strip('"')

    def skip_braces(self):
        """Reads on behind the brace that closes the one that comes next."""
        self.expect("{")
        depth = 1
        while depth:
            token = self.next()
            depth += (token.text == "{") - (token.text == "}")

    def header(self):
        """Reads the whole file: its reflected types."""
        types = []
        includes = [t for t in self.tokens if t.kind == "directive" and re.match(r"\s*#\s*include", t.text)]
        generated = f'"{Path(self.path).stem}.generated.h"'
        if not includes or generated not in includes[-1].text:
            raise self.error(includes[-1].line if includes else 1, f"the last include must be {generated}")
        while self.peek() is not None:
            comment, token = self.comment_before(), self.next()
            if token.text in UNSUPPORTED:
                raise self.error(token.line, f"{token.text} is not supported")
            if token.text in ("UPROPERTY", "GENERATED_BODY"):
                raise self.error(token.line, f"{token.text} outside of a reflected type")
            if token.text in ("UCLASS", "USTRUCT"):
                types.append(self.type(token, comment))
        return types

    def type(self, macro, comment):
        is_class = macro.text == "UCLASS"
        specifiers = self.specifiers(CLASS_SPECIFIERS if is_class else STRUCT_SPECIFIERS)
        self.expect("class" if is_class else "struct")
        name, api = self.next(), ""
        if self.peek().kind == "word" and self.peek().text != "final":
            api, name = name.text, self.next()
        if self.peek().text == "final":
            self.next()
        prefix = "U" if is_class else "F"
        if not re.match(prefix + "[A-Z]", name.text):
            raise self.error(name.line, f'the name does not begin with "{prefix}": "{name.text}"')
        result = Type("class" if is_class else "struct", name.text, api, "", specifiers, comment, macro.line)
        if self.peek().text == ":":
            self.next()
            self.expect("public")
            result.base = self.next().text
            while self.peek().text != "{":
                self.next()
        if is_class and not result.base:
            raise self.error(name.line, f'"{name.text}" has no base class')
        self.expect("{")
        self.body(result)
        if not result.body_line:
            raise self.error(macro.line, f'"{name.text}" has no GENERATED_BODY()')
        if any("config" in p.specifiers for p in result.properties) and is_class and "config" not in specifiers:
            raise self.error(macro.line, f'"{name.text}" has config properties but names no config file')
        return result

    def body(self, owner):
        access = "private" if owner.kind == "class" else "public"
        while self.peek().text != "}":
            comment, token = self.comment_before(), self.next()
            if token.text in ("public", "protected", "private") and self.peek().text == ":":
                self.next()
                access = token.text
            elif token.text == "GENERATED_BODY":
                owner.body_line, owner.body_access = token.line, access
                self.expect("(")
                self.expect(")")
            elif token.text == "UPROPERTY":
                owner.properties.append(self.property(owner, access, comment))
            elif token.text in UNSUPPORTED:
                raise self.error(token.line, f"{token.text} is not supported")
            elif token.text == "{":
                self.at -= 1
                self.skip_braces()
            elif token.text == "~":
                owner.declares.add("destructor")
            elif token.text == owner.name and self.peek().text == "(":
                is_initializer = "FObjectInitializer" in "".join(t.text for t in self.tokens[self.at:self.at + 3])
                owner.declares.add("initializer" if is_initializer else "default")
        self.expect("}")

    def property(self, owner, access, comment):
        specifiers = self.specifiers(PROPERTY_SPECIFIERS)
        words = []
        while self.peek().text not in (";", "=", "{"):
            words.append(self.next())
        name = words.pop()
        if name.kind != "word" or not words:
            raise self.error(name.line, "a property is a type and a name")
        while self.next().text != ";":
            pass
        spelled = "".join(w.text for w in words if w.text not in ("class", "struct"))
        return Property(name.text, self.property_type(spelled, name.line), specifiers, access, comment, name.line)

    def property_type(self, text, line):
        array = re.fullmatch(r"TArray<(.+)>", text)
        if array:
            return PropertyType("FArrayProperty", text, self.property_type(array.group(1), line))
        pointer = re.fullmatch(r"TObjectPtr<(U\w+)>|(U\w+)\*", text)
        if pointer:
            return PropertyType("FObjectProperty", text, pointer.group(1) or pointer.group(2))
        if text in PLAIN_TYPES:
            return PropertyType(PLAIN_TYPES[text], text)
        if re.fullmatch(r"F[A-Z]\w*", text):
            return PropertyType("FStructProperty", text, text)
        raise self.error(line, f'unknown property type "{text}"')


def tool_tip(comment):
    """The comment as a user reads it: without markers and common indentation; line breaks stay."""
    is_starred = comment.lstrip().startswith("/**")
    lines = []
    for line in comment.replace("\r", "").split("\n"):
        text = line.strip() if re.match(r"\s*(//|/\*)", line) else line
        if text.startswith("//~"):
            continue
        text = re.sub(r"^///?|^/\*+|\*+/\s*$", "", text)
        if is_starred:
            text = re.sub(r"^\s*\*", "", text)
        lines.append(text.replace("\t", "    ").rstrip())
    while lines and not lines[0].strip():
        lines.pop(0)
    while lines and not lines[-1].strip():
        lines.pop()
    indents = [len(line) - len(line.lstrip()) for line in lines if line.strip()]
    return "\n".join(line[min(indents):] for line in lines) if lines else ""


def literal(text):
    """C++ source of a wide string."""
    for old, new in (("\\", "\\\\"), ('"', '\\"'), ("\n", "\\n"), ("\t", "\\t")):
        text = text.replace(old, new)
    return f'TEXT("{text}")'


def metadata(comment, specifiers, extra):
    pairs = dict(extra)
    if comment:
        pairs.update(Comment=comment + "\n", ToolTip=tool_tip(comment))
    if "category" in specifiers:
        pairs["Category"] = specifiers["category"]
    pairs.update(specifiers.get("meta") or {})
    return "{" + ", ".join(f"{{{literal(k)}, {literal(v)}}}" for k, v in sorted(pairs.items())) + "}"


class Module:
    """All reflected types of a module, and what is written for them."""

    def __init__(self, name, source, known):
        self.name, self.source, self.known = name, Path(source), known
        self.api = f"{name.upper()}_API"

    def relative(self, path):
        return Path(path).resolve().relative_to(self.source.resolve()).as_posix()

    def include_path(self, path):
        return re.sub(r"^(Public|Private|Classes)/", "", self.relative(path))

    def file_id(self, path):
        return "FID_" + self.name + "_" + re.sub(r"\W", "_", self.relative(path))

    def check(self, reader, owner):
        """All types that the owner names must be known to some module."""
        wanted = [(owner.base, owner.kind, owner.macro_line)] if owner.base else []
        for item in owner.properties:
            kind = item.type.refers if item.type.kind == "FArrayProperty" else item.type
            if kind.kind == "FArrayProperty":
                raise reader.error(item.line, "an array of arrays is no property")
            if "config" in item.specifiers and item.type.kind == "FObjectProperty":
                raise reader.error(item.line, "Not allowed to use 'config' with object variables")
            if kind.refers:
                wanted.append((kind.refers, "class" if kind.kind == "FObjectProperty" else "struct", item.line))
        for name, kind, line in wanted:
            if self.known.get(name) != kind:
                raise reader.error(line, f'"{name}" is no reflected {kind} of this module or one that it depends on')

    def body(self, owner):
        """The text that stands for GENERATED_BODY()."""
        if owner.kind == "struct":
            return f"HOST_STRUCT_BODY({owner.name}, {self.api})"
        exported = f"{self.api} " if "minimalapi" in owner.specifiers else ""
        has_constructor = bool(owner.declares & {"initializer", "default"})
        body = f'HOST_CLASS_BODY({owner.name}, {owner.base}, TEXT("/Script/{self.name}"), {exported})'
        body += "" if has_constructor else f" HOST_CONSTRUCTOR({owner.name})"
        if "abstract" not in owner.specifiers:
            argument = "" if owner.declares & {"default"} and "initializer" not in owner.declares else "Initializer"
            body += f" HOST_MAKE({owner.name}, {argument})"
        body += "" if "destructor" in owner.declares else f" virtual ~{owner.name}();"
        return f"{body} {owner.body_access}:"

    def generated_header(self, path, types):
        file_id = self.file_id(path)
        lines = ["// Written by the header tool; changes are lost.", "#pragma once", '#include "UObject/ObjectMacros.h"']
        for owner in types:
            kind = "CLASS" if owner.kind == "class" else "STRUCT"
            lines += [f"HOST_DECLARE_{kind}({owner.name}, {self.api})",
                      f"#define {file_id}_{owner.macro_line}_PROLOG",
                      f"#define {file_id}_{owner.body_line}_GENERATED_BODY {self.body(owner)}"]
        return "\n".join(lines + ["#undef CURRENT_FILE_ID", f"#define CURRENT_FILE_ID {file_id}", ""])

    def property_source(self, item, owner_name, path):
        def make(kind, offset):
            extra = ""
            if kind.kind == "FObjectProperty":
                extra = f", &{kind.refers}::StaticClass"
            elif kind.kind == "FStructProperty":
                extra = f", {kind.refers}::StaticStruct()"
            elif kind.kind == "FArrayProperty":
                extra = f", ArrayOperations<{kind.refers.cpp}>(), {make(kind.refers, '0')}"
            return f"new {kind.kind}({literal(item.name)}, {offset}, Flags{extra})"
        flags = ["CPF_NativeAccessSpecifier" + item.access.capitalize()]
        flags += ["CPF_Protected"] if item.access == "protected" else []
        flags += ["CPF_Config"] if "config" in item.specifiers else []
        flags += ["CPF_Edit"] if "editanywhere" in item.specifiers else []
        flags += ["CPF_Transient"] if "transient" in item.specifiers else []
        source = make(item.type, f"offsetof({owner_name}, {item.name})")
        meta = metadata(item.comment, item.specifiers, {"ModuleRelativePath": self.relative(path)})
        return ["\t\t{", f"\t\t\tconstexpr uint64 Flags = {' | '.join(flags)};",
                f"\t\t\tHostReflection::AddProperty(Type, {source}, {meta});", "\t\t}"]

    def type_source(self, owner, path):
        name, is_class = owner.name, owner.kind == "class"
        kind = "UClass" if is_class else "UScriptStruct"
        identity = f'TEXT("/Script/{self.name}"), {literal(name[1:])}'
        extra = {"ModuleRelativePath": self.relative(path)}
        if is_class:
            extra["IncludePath"] = self.include_path(path)
            config = owner.specifiers.get("config", "")
            flags = ["CLASS_Native"] + (["CLASS_Config"] if config else []) + (["CLASS_RequiredAPI"] if owner.api else [])
            flags += ["CLASS_" + text for text in ("Abstract", "MinimalAPI") if text.lower() in owner.specifiers]
            constructor = "nullptr" if "abstract" in owner.specifiers else f"&{name}::__DefaultConstructor"
            make = (f"NewClass({identity}, sizeof({name}), {' | '.join(flags)}, {literal(config)}, {constructor}, "
                    f"{owner.base}::StaticClass())")
        else:
            make = f"NewStruct<{name}>({identity}, {owner.base + '::StaticStruct()' if owner.base else 'nullptr'})"
        lines = [f"struct Z_Construct_{kind}_{name}_Statics", "{", f"\tstatic {kind}* Make()", "\t{",
                 f"\t\t{kind}* Type = HostReflection::{make};",
                 f"\t\tHostReflection::AddMetaData(Type, {metadata(owner.comment, owner.specifiers, extra)});"]
        for item in owner.properties:
            lines += self.property_source(item, name, path)
        lines += ["\t\treturn Type;", "\t}", "};", f"HOST_DEFINE_{'CLASS' if is_class else 'STRUCT'}({name})"]
        if is_class and not owner.declares & {"initializer", "default"}:
            lines.append(f"{name}::{name}(const FObjectInitializer& ObjectInitializer) : Super(ObjectInitializer) {{}}")
        if is_class and "destructor" not in owner.declares:
            lines.append(f"{name}::~{name}() {{}}")
        return lines

    def source_file(self, path, types):
        lines = ["// Written by the header tool; changes are lost.", '#include "UObject/GeneratedCppIncludes.h"',
                 f'#include "{self.include_path(path)}"', "#include <cstddef>", ""]
        for owner in types:
            lines += self.type_source(owner, path) + [""]
        makers = ", ".join(f"[]() -> UStruct* {{ return Z_Construct_{k}_{o.name}(); }}" for o in types
                           for k in ["UClass" if o.kind == "class" else "UScriptStruct"])
        file_id = self.file_id(path)
        return "\n".join(lines + [f"static const FRegisterCompiledInInfo Register_{file_id}({{{makers}}});", ""])


def write(path, text):
    """Leaves a file alone that is right already, so that nothing is compiled again for it."""
    if not path.exists() or path.read_text(encoding="utf-8") != text:
        path.write_text(text, encoding="utf-8")


def run(arguments):
    known = {"UObject": "class"}
    for file in arguments.known:
        known.update(json.loads(Path(file).read_text(encoding="utf-8")))
    out, own, readers = Path(arguments.out), {}, []
    out.mkdir(parents=True, exist_ok=True)
    for path in arguments.headers:
        reader = Reader(path, Path(path).read_text(encoding="utf-8"))
        readers.append((reader, reader.header()))
        own.update({owner.name: owner.kind for owner in readers[-1][1]})
    module = Module(arguments.module, arguments.source, known | own)
    for reader, types in readers:
        for owner in types:
            module.check(reader, owner)
        stem = Path(reader.path).stem
        write(out / f"{stem}.generated.h", module.generated_header(reader.path, types))
        write(out / f"{stem}.gen.cpp", module.source_file(reader.path, types))
    write(out / f"{arguments.module}.types", json.dumps(known | own, indent="\t") + "\n")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--module", required=True)
    parser.add_argument("--source", required=True)
    parser.add_argument("--out", required=True)
    parser.add_argument("--known", action="append", default=[])
    parser.add_argument("headers", nargs="*")
    try:
        run(parser.parse_args())
    except (HeaderError, OSError) as error:
        print(error, file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
