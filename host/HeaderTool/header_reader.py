# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
"""Reads a reflected header: its types and their properties."""
import re
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

CLASS_SPECIFIERS = {"config", "minimalapi"}
PROPERTY_SPECIFIERS = {"config", "editanywhere", "category", "meta"}
UNSUPPORTED = {"GENERATED_UCLASS_BODY", "GENERATED_USTRUCT_BODY", "UFUNCTION", "UENUM", "UINTERFACE", "UDELEGATE", "RIGVM_METHOD"}
PLAIN_TYPES = {"bool", "float", "FName", "FVector4"}


class HeaderError(Exception):
    """What is wrong with a header, and where."""


@dataclass
class Token:
    kind: str
    text: str
    line: int


@dataclass
class Property:
    name: str
    type: str
    specifiers: dict
    line: int


@dataclass
class Type:
    kind: str
    name: str
    base: str
    specifiers: dict
    macro_line: int
    body_line: int = 0
    body_access: str = "private"
    has_constructor: bool = False
    properties: list = field(default_factory=list)


class Reader:
    """Walks the tokens of one header."""

    def __init__(self, path, text):
        self.path = path
        self.at = 0
        self.tokens = [Token(m.lastgroup, m.group(), text.count("\n", 0, m.start()) + 1)
                       for m in TOKEN.finditer(text) if m.lastgroup != "comment"]
        self.tokens.append(Token("end", "", text.count("\n") + 1))

    def error(self, line, reason):
        return HeaderError(f"{self.path}:{line}: {reason}")

    def peek(self):
        while self.tokens[self.at].kind == "directive":
            self.at += 1
        return self.tokens[self.at]

    def next(self):
        token = self.peek()
        if token.kind == "end":
            raise self.error(token.line, "the file ends too early")
        self.at += 1
        return token

    def expect(self, text):
        token = self.next()
        if token.text != text:
            raise self.error(token.line, f'"{text}" expected, "{token.text}" found')
        return token

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
        """Reads on behind the brace that closes the one before."""
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
        while self.peek().kind != "end":
            token = self.next()
            if token.text in UNSUPPORTED:
                raise self.error(token.line, f"{token.text} is not supported")
            if token.text in ("UPROPERTY", "GENERATED_BODY"):
                raise self.error(token.line, f"{token.text} outside of a reflected type")
            if token.text in ("UCLASS", "USTRUCT"):
                types.append(self.type(token))
        return types

    def type(self, macro):
        is_class = macro.text == "UCLASS"
        specifiers = self.specifiers(CLASS_SPECIFIERS if is_class else set())
        self.expect("class" if is_class else "struct")
        name = self.next()
        if self.peek().kind == "word" and self.peek().text != "final":
            name = self.next()
        if self.peek().text == "final":
            self.next()
        prefix = "U" if is_class else "F"
        if not re.match(prefix + "[A-Z]", name.text):
            raise self.error(name.line, f'the name does not begin with "{prefix}": "{name.text}"')
        result = Type("class" if is_class else "struct", name.text, "", specifiers, macro.line)
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
            token = self.next()
            if token.text in ("public", "protected", "private") and self.peek().text == ":":
                self.next()
                access = token.text
            elif token.text == "GENERATED_BODY":
                owner.body_line, owner.body_access = token.line, access
                self.expect("(")
                self.expect(")")
            elif token.text == "UPROPERTY":
                owner.properties.append(self.property())
            elif token.text in UNSUPPORTED:
                raise self.error(token.line, f"{token.text} is not supported")
            elif token.text == "{":
                self.skip_braces()
            elif token.text == "~":
                self.expect(owner.name)
            elif token.text == owner.name and self.peek().text == "(":
                owner.has_constructor = True
        self.expect("}")

    def property(self):
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
        return Property(name.text, spelled, specifiers, name.line)

    def referred(self, item):
        """The kind and the name of the reflected type that a property's type refers to; neither for a plain type."""
        element = re.sub(r"^TArray<(.+)>$", r"\1", item.type)
        pointer = re.fullmatch(r"TObjectPtr<(U\w+)>", element)
        if pointer:
            return "class", pointer.group(1)
        if element in PLAIN_TYPES:
            return "", ""
        if re.fullmatch(r"F[A-Z]\w*", element):
            return "struct", element
        raise self.error(item.line, f'unknown property type "{item.type}"')
