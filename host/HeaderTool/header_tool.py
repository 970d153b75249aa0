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

from header_reader import CLASS, HeaderError, Reader

PROPERTY_FLAGS = {"config": "CPF_Config", "editanywhere": "CPF_Edit", "transient": "CPF_Transient"}

# The engine's classes that others may name, and what their properties need.
ENGINE_CLASSES = {"UAssetImportData": "EditorFramework/AssetImportData.h", "UExporter": "Exporters/Exporter.h",
                  "UFactory": "Factories/Factory.h", "UObject": "UObject/Object.h", "UTexture2D": "Engine/Texture2D.h"}


def check(reader, owner, known):
    """All types that the owner names must be known to some module."""
    wanted = [(owner.base, owner.place)] if owner.base else []
    for item in owner.properties:
        name = reader.referred(item)
        wanted += [(name, item.place)] if name else []
        if name.startswith("U") and "config" in item.specifiers:
            raise reader.error(item.place, "Not allowed to use 'config' with object variables")
        if owner.kind is not CLASS and item.type.startswith("TArray<"):
            raise reader.error(item.place, "an array in a struct is not supported")
    for name, place in wanted:
        if name not in known:
            raise reader.error(place, f'"{name}" is no reflected type of this module or one that it depends on')


def generated_header(file_id, api, types):
    """What GENERATED_BODY() stands for in each type, and the entry points that other modules may import."""
    lines = ["// Written by the header tool; changes are lost.", "#pragma once", '#include "UObject/ObjectMacros.h"']
    for owner in types:
        kind = owner.kind.word.upper()
        body = f"HOST_STRUCT_BODY({owner.name}, {api})"
        if owner.kind is CLASS:
            constructor = "" if owner.has_constructor else f" HOST_CONSTRUCTOR({owner.name})"
            exported = api if "minimalapi" in owner.specifiers else ""
            body = f"HOST_CLASS_BODY({owner.name}, {owner.base}, {exported}){constructor} {owner.body_access}:"
        lines += [f"HOST_DECLARE_{kind}({owner.name}, {api})",
                  f"#define {file_id}_{owner.body_line}_GENERATED_BODY {body}"]
    return "\n".join(lines + ["#undef CURRENT_FILE_ID", f"#define CURRENT_FILE_ID {file_id}", ""])


def type_source(module, owner):
    """The functions that make a type with its properties when the object system is ready for it."""
    name, kind = owner.name, owner.kind.type
    identity = f'TEXT("/Script/{module}"), TEXT("{name[1:]}"), sizeof({name})'
    if owner.kind is CLASS:
        config = owner.specifiers.get("config", "")
        make = f'NewClass({identity}, TEXT("{config}"), &HostReflection::Construct<{name}>, {owner.base}::StaticClass())'
    else:
        make = f"NewStruct({identity}, {owner.base + '::StaticStruct()' if owner.base else 'nullptr'})"
    lines = [f"struct Z_Construct_{kind}_{name}_Statics", "{", f"\tstatic {kind}* Make()", "\t{",
             f"\t\t{kind}* Type = HostReflection::{make};"]
    for item in owner.properties:
        flags = [flag for word, flag in PROPERTY_FLAGS.items() if word in item.specifiers] or ["CPF_None"]
        made = f'(TEXT("{item.name}"), offsetof({name}, {item.name}), {" | ".join(flags)})'
        lines.append(f"\t\tType->Properties.push_back(std::make_shared<TProperty<decltype({name}::{item.name})>>{made});")
    return lines + ["\t\treturn Type;", "\t}", "};", f"HOST_DEFINE_{owner.kind.word.upper()}({name})", ""]


def source_file(module, file_id, header, types):
    include = re.sub(r"^(Public|Private|Classes)/", "", header)
    lines = ["// Written by the header tool; changes are lost.", '#include "UObject/GeneratedCppIncludes.h"',
             f'#include "{include}"', "#include <cstddef>"]
    named = {word for owner in types for item in owner.properties for word in re.findall(r"U\w+", item.type)}
    lines += [f'#include "{ENGINE_CLASSES[name]}"' for name in sorted(named & ENGINE_CLASSES.keys())] + [""]
    for owner in types:
        lines += type_source(module, owner)
    makers = ", ".join(f"[]() -> UStruct* {{ return Z_Construct_{o.kind.type}_{o.name}(); }}" for o in types)
    return "\n".join(lines + [f"static const FRegisterCompiledInInfo Register_{file_id}({{{makers}}});", ""])


def write(path, text):
    """Leaves a file alone that is right already, so that nothing is compiled again for it."""
    if not path.exists() or path.read_text(encoding="utf-8") != text:
        path.write_text(text, encoding="utf-8")


def run(arguments):
    module, out, known, readers = arguments.module, Path(arguments.out), set(ENGINE_CLASSES), []
    for file in arguments.known:
        known.update(json.loads(Path(file).read_text(encoding="utf-8")))
    out.mkdir(parents=True, exist_ok=True)
    for path in arguments.headers:
        reader = Reader(path, Path(path).read_text(encoding="utf-8"))
        readers.append((reader, reader.header()))
        known.update(owner.name for owner in readers[-1][1])
    for reader, types in readers:
        for owner in types:
            check(reader, owner, known)
        header = Path(reader.path).resolve().relative_to(Path(arguments.source).resolve())
        file_id = f"FID_{module}_" + re.sub(r"\W", "_", header.as_posix())
        write(out / f"{header.stem}.generated.h", generated_header(file_id, f"{module.upper()}_API", types))
        write(out / f"{header.stem}.gen.cpp", source_file(module, file_id, header.as_posix(), types))
    write(out / f"{module}.types", json.dumps(sorted(known), indent="\t") + "\n")


def main():
    parser = argparse.ArgumentParser()
    for name in ("--module", "--source", "--out"):
        parser.add_argument(name, required=True)
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
