# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
"""Reads a reflected header: its types and their properties."""
import re
from collections import namedtuple
from dataclasses import dataclass, field
from pathlib import Path

TOKEN = re.compile(r"""
      //[^\n]* | /\*.*?\*/
    | ^[ \t]*\#(?:\\\n|[^\n])*
    | "(?:\\.|[^"\\\n])*" | '(?:\\.|[^'\\\n])*'
    | \w+ | :: | -> | \S
""", re.VERBOSE | re.MULTILINE | re.DOTALL)
PROPERTY_SPECIFIERS = {"config", "editanywhere", "visibleanywhere", "transient", "instanced", "category", "meta"}
UNSUPPORTED = re.compile(r"U(CLASS|STRUCT|PROPERTY|FUNCTION|ENUM|INTERFACE|DELEGATE)|GENERATED_\w*BODY|RIGVM_METHOD")
PLAIN_TYPES = {"bool", "float", "uint8", "FName", "FString", "FVector4"}

Token = namedtuple("Token", "text line")
# The word before a type's name, the name's first letter, the C++ class of the type's own object.
Kind = namedtuple("Kind", "word prefix type specifiers")
CLASS = Kind("class", "U", "UClass", {"config", "minimalapi"})
KINDS = {"UCLASS": CLASS, "USTRUCT": Kind("struct", "F", "UScriptStruct", set())}
Property = namedtuple("Property", "name type specifiers place")


class HeaderError(Exception):
    """What is wrong with a header, and where."""


@dataclass
class Type:
    kind: Kind
    name: str
    specifiers: dict
    place: Token
    base: str = ""
    body_line: int = 0
    body_access: str = ""
    has_constructor: bool = False
    properties: list = field(default_factory=list)


class Reader:
    """Walks the tokens of one header."""

    def __init__(self, path, text):
        self.path, self.at = path, 0
        tokens = [Token(found.group().strip(), text.count("\n", 0, found.start()) + 1) for found in TOKEN.finditer(text)]
        self.includes = [token for token in tokens if re.match(r"#\s*include", token.text)]
        self.tokens = [token for token in tokens if not token.text.startswith(("//", "/*", "#"))]
        self.tokens.append(Token("", text.count("\n") + 1))

    def error(self, token, reason):
        return HeaderError(f"{self.path}:{token.line}: {reason}")

    def peek(self):
        return self.tokens[self.at].text

    def next(self, expected=""):
        token = self.tokens[self.at]
        if not token.text:
            raise self.error(token, "the file ends too early")
        if expected and token.text != expected:
            raise self.error(token, f'"{expected}" expected, "{token.text}" found')
        self.at += 1
        return token

    def until(self, *marks):
        """Reads what stands before the next of the marks, whatever is in brackets in between."""
        read, depth = [], 0
        while depth > 0 or self.peek() not in marks:
            read.append(self.next())
            depth += (read[-1].text in ("(", "{")) - (read[-1].text in (")", "}"))
        return read

    def specifiers(self, known):
        """Reads "(Name, Name=Value, meta=(Name=Value))" into a dictionary with lower-case names."""
        result = {}
        self.next("(")
        while self.peek() != ")":
            name, *value = self.until(",", ")")
            if name.text.lower() not in known:
                raise self.error(name, f'unknown specifier "{name.text}"')
            result[name.text.lower()] = "".join(token.text for token in value[1:]).strip('"')
            if self.peek() == ",":
                self.next()
        self.next(")")
        return result

    def header(self):
        """Reads the whole file: its reflected types."""
        generated = f'"{Path(self.path).stem}.generated.h"'
        last = self.includes[-1] if self.includes else Token("", 1)
        if generated not in last.text:
            raise self.error(last, f"the last include must be {generated}")
        types = []
        while self.peek():
            token = self.next()
            if token.text in KINDS:
                types.append(self.type(token))
            elif UNSUPPORTED.fullmatch(token.text):
                raise self.error(token, f"{token.text} is not supported here")
        return types

    def type(self, macro):
        kind = KINDS[macro.text]
        specifiers = self.specifiers(kind.specifiers)
        self.next(kind.word)
        name = [token for token in self.until(":", "{") if token.text != "final"][-1]
        if not re.match(kind.prefix + "[A-Z]", name.text):
            raise self.error(name, f'the name does not begin with "{kind.prefix}": "{name.text}"')
        owner = Type(kind, name.text, specifiers, macro)
        if kind is CLASS or self.peek() == ":":
            self.next(":")
            self.next("public")
            owner.base = self.next().text
            self.until("{")
        self.next("{")
        self.body(owner)
        if not owner.body_line:
            raise self.error(macro, f'"{owner.name}" has no GENERATED_BODY()')
        if kind is CLASS and "config" not in specifiers and any("config" in p.specifiers for p in owner.properties):
            raise self.error(macro, f'"{owner.name}" has config properties but names no config file')
        return owner

    def body(self, owner):
        access = "private" if owner.kind is CLASS else "public"
        while self.peek() != "}":
            token = self.next()
            if token.text in ("public", "protected", "private") and self.peek() == ":":
                access = token.text
            elif token.text == "GENERATED_BODY":
                owner.body_line, owner.body_access = token.line, access
            elif token.text == "UPROPERTY":
                owner.properties.append(self.property())
            elif UNSUPPORTED.fullmatch(token.text):
                raise self.error(token, f"{token.text} is not supported here")
            elif token.text == "{":
                self.until("}")
                self.next()
            elif token.text == "~":
                self.next(owner.name)
            elif token.text == owner.name and self.peek() == "(":
                owner.has_constructor = True
        self.next("}")

    def property(self):
        specifiers = self.specifiers(PROPERTY_SPECIFIERS)
        words = self.until(";", "=", "{")
        name = self.tokens[self.at - 1]
        if len(words) < 2 or not name.text.isidentifier():
            raise self.error(name, "a property is a type and a name")
        self.until(";")
        spelled = "".join(token.text for token in words[:-1] if token.text not in ("class", "struct"))
        return Property(name.text, spelled, specifiers, name)

    def referred(self, item):
        """The reflected type that a property's type refers to; empty for a plain type."""
        element = re.sub(r"^TArray<(.+)>$", r"\1", item.type)
        if element in PLAIN_TYPES:
            return ""
        found = re.fullmatch(r"TObjectPtr<(U\w+)>|(F[A-Z]\w*)", element)
        if not found:
            raise self.error(item.place, f'unknown property type "{item.type}"')
        return found[1] or found[2]
