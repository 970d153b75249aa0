#!/usr/bin/env python3
# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
"""The C++ examples of the pages compile as the users of library and plug-in would compile them.

    examples_check.py COMPILE_COMMANDS ROOT

A page is one source. A block stands outside of functions; one with "<!-- in: PARAMETERS -->" in the line above it is the body
of a function that has these parameters. Faults are told by page and line.
"""
import itertools
import json
import re
import shlex
import subprocess
import sys
import unittest
from pathlib import Path

COMPILE_COMMANDS, ROOT = Path(sys.argv[1]), Path(sys.argv[2])
# A program that uses the library, and a module that uses the plug-in: examples are compiled as both are.
USERS = ["common/examples/volumes/Main.cpp", "Plugins/Tonalith/Source/TonalithLookFiles/Private/TonalithCubeFactory.cpp"]
KEPT = ("-D", "-I", "-W", "-std=")
# Checks at run time, which take time to compile; and variables that are there to be read.
LEFT_OUT = ("-D_GLIBCXX_DEBUG",)
MORE = ["-Werror", "-Wno-unused-variable", "-fsyntax-only", "-fmax-errors=3", "-x", "c++", "-"]
BLOCK = re.compile(r"^(?:<!-- in:(?P<parameters>[^\n]*)-->\n)?```(?:cpp|c\+\+)\n(?P<code>.*?)^```$", re.MULTILINE | re.DOTALL)
INCLUDE = re.compile(r"^#include .*$", re.MULTILINE)


def compiler():
	"""The compiler, and what it is told by the builds of all users."""
	entries = json.loads(COMPILE_COMMANDS.read_text(encoding="utf-8"))
	commands = {entry["file"]: shlex.split(entry["command"]) for entry in entries}
	options = {}
	for words in (commands[str(ROOT / user)] for user in USERS):
		for word, following in zip(words, words[1:]):
			if word == "-isystem":
				options[word, following] = True
			elif word.startswith(KEPT) and word not in LEFT_OUT:
				options[word,] = True
	return [words[0], *itertools.chain(*options), *MORE]


def source_of(page, text):
	"""The page's blocks as one source, in which the compiler counts the lines of the page. Empty without a block."""
	source = ""
	for number, block in enumerate(BLOCK.finditer(text), 1):
		code = block["code"]
		line = text.count("\n", 0, block.start("code")) + 1
		place = f'#line {line} "{page}"\n'
		if block["parameters"] is not None:
			includes = "".join(one if INCLUDE.match(one) else "\n" for one in code.splitlines(keepends=True))
			head = f"void example{number}({block['parameters'].strip()})"
			code = f"{includes}{head}\n{{\n{place}{INCLUDE.sub('', code)}}}\n"
		source += place + code
	return source


class Examples(unittest.TestCase):
	@classmethod
	def setUpClass(cls):
		cls.command = compiler()

	def faults(self, source):
		result = subprocess.run(self.command, input=source, cwd=ROOT, text=True, capture_output=True, check=False)
		self.assertEqual(bool(result.returncode), bool(result.stderr), result.stderr)
		return result.stderr

	def test_of_all_pages_compile(self):
		pages = [ROOT / "README.md", *sorted((ROOT / "docs").glob("*.md"))]
		sources = {page: source_of(page.relative_to(ROOT), page.read_text(encoding="utf-8")) for page in pages}
		self.assertGreater(sum(map(bool, sources.values())), 1)
		for page, source in sources.items():
			with self.subTest(page=page.name):
				if faults := source and self.faults(source):
					self.fail(faults)

	def test_that_do_not_compile_are_named_by_page_and_line(self):
		outside = "One\n\n```cpp\nint one();\nTwo two();\n```\n"
		inside = "One\n<!-- in: int one -->\n```cpp\n#include <string>\n\nstd::string(one, 'a').two();\n```\n"
		self.assertRegex(self.faults(source_of("page.md", outside)), r"^page\.md:5:1: error: .*Two")
		self.assertRegex(self.faults(source_of("page.md", inside)), r"(?m)^page\.md:6:\d+: error: .*two")


if __name__ == "__main__":
	unittest.main(argv=sys.argv[:1])
