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

PROPERTY_FLAGS = {"config": "CPF_Config", "editanywhere": "CPF_Edit"}


def literal(text):
    """C++ source of a wide string."""
    return f"TEXT({json.dumps(text, ensure_ascii=False)})"


class Module:
    """All reflected types of a module, and what is written for them."""

    def __init__(self, name, source, known):
        self.name, self.source, self.known = name, Path(source), known
        self.api = f"{name.upper()}_API"

    def relative(self, path):
        return Path(path).resolve().relative_to(self.source.resolve()).as_posix()

    def file_id(self, path):
        return "FID_" + self.name + "_" + re.sub(r"\W", "_", self.relative(path))

    def check(self, reader, owner):
        """All types that the owner names must be known to some module."""
        wanted = [(owner.base, owner.kind, owner.macro_line)] if owner.base else []
        for item in owner.properties:
            kind, name = reader.referred(item)
            if kind == "class" and "config" in item.specifiers:
                raise reader.error(item.line, "Not allowed to use 'config' with object variables")
            if owner.kind == "struct" and item.type.startswith("TArray<"):
                raise reader.error(item.line, "an array in a struct is not supported")
            if name:
                wanted.append((name, kind, item.line))
        for name, kind, line in wanted:
            if self.known.get(name) != kind:
                raise reader.error(line, f'"{name}" is no reflected {kind} of this module or one that it depends on')

    def body(self, owner):
        """The text that stands for GENERATED_BODY()."""
        if owner.kind == "struct":
            return f"HOST_STRUCT_BODY({owner.name}, {self.api})"
        exported = f"{self.api} " if "minimalapi" in owner.specifiers else ""
        constructor = "" if owner.has_constructor else f" HOST_CONSTRUCTOR({owner.name})"
        return f"HOST_CLASS_BODY({owner.name}, {owner.base}, {exported}){constructor} {owner.body_access}:"

    def generated_header(self, path, types):
        file_id = self.file_id(path)
        lines = ["// Written by the header tool; changes are lost.", "#pragma once", '#include "UObject/ObjectMacros.h"']
        for owner in types:
            kind = "CLASS" if owner.kind == "class" else "STRUCT"
            lines += [f"HOST_DECLARE_{kind}({owner.name}, {self.api})",
                      f"#define {file_id}_{owner.body_line}_GENERATED_BODY {self.body(owner)}"]
        return "\n".join(lines + ["#undef CURRENT_FILE_ID", f"#define CURRENT_FILE_ID {file_id}", ""])

    @staticmethod
    def property_source(item, owner_name):
        flags = [flag for name, flag in PROPERTY_FLAGS.items() if name in item.specifiers] or ["CPF_None"]
        declaration = f"{{{literal(item.name)}, offsetof({owner_name}, {item.name}), {' | '.join(flags)}}}"
        return f"\t\tHostReflection::AddProperty<decltype({owner_name}::{item.name})>(Type, {declaration});"

    def type_source(self, owner):
        name, is_class = owner.name, owner.kind == "class"
        kind = "UClass" if is_class else "UScriptStruct"
        identity = f'TEXT("/Script/{self.name}"), {literal(name[1:])}'
        if is_class:
            config = literal(owner.specifiers.get("config", ""))
            make = f"NewClass({identity}, sizeof({name}), {config}, &HostReflection::Construct<{name}>, {owner.base}::StaticClass())"
        else:
            make = f"NewStruct({identity}, sizeof({name}), {owner.base + '::StaticStruct()' if owner.base else 'nullptr'})"
        lines = [f"struct Z_Construct_{kind}_{name}_Statics", "{", f"\tstatic {kind}* Make()", "\t{",
                 f"\t\t{kind}* Type = HostReflection::{make};"]
        lines += [self.property_source(item, name) for item in owner.properties]
        return lines + ["\t\treturn Type;", "\t}", "};", f"HOST_DEFINE_{'CLASS' if is_class else 'STRUCT'}({name})"]

    def source_file(self, path, types):
        include = re.sub(r"^(Public|Private|Classes)/", "", self.relative(path))
        lines = ["// Written by the header tool; changes are lost.", '#include "UObject/GeneratedCppIncludes.h"',
                 f'#include "{include}"', "#include <cstddef>", ""]
        for owner in types:
            lines += self.type_source(owner) + [""]
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
