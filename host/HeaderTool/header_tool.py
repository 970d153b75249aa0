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
from pathlib import Path

from header_reader import HeaderError, Reader


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
    known = {"UFactory": "class", "UObject": "class"}
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
