#!/usr/bin/env python3
# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
"""What the pages name is there: linked files, paths of the tree, tests; and the README leads to every page."""
import re
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
PAGES = [*ROOT.glob("*.md"), *ROOT.glob("docs/*.md"), ROOT / "host/README.md"]
LINK = re.compile(r"\]\((?!https?:)([^)#]+)")
PATH = re.compile(r"`((?:Plugins|benchmarks|common|docs|host|stories|tests|tools)/[\w./-]+)`")
TEST = re.compile(r"`([A-Z]\w+\.[A-Z]\w+)`")
TEST_MADE = re.compile(r"^TEST(?:_F)?\((\w+), (\w+)\)", re.MULTILINE)


class Pages(unittest.TestCase):
	def named(self, pattern):
		"""What matches in each page: pairs of page and name."""
		found = [(page, name) for page in PAGES for name in pattern.findall(page.read_text(encoding="utf-8"))]
		self.assertTrue(found)
		return found

	def test_link_to_files_that_are_there(self):
		links = {(page, (page.parent / link).resolve()) for page, link in self.named(LINK)}
		self.assertEqual([], [f"{page.name}: {link}" for page, link in links if not link.exists()])
		readme = {link for page, link in links if page == ROOT / "README.md"}
		self.assertEqual(set(), {*PAGES} - readme - {ROOT / "README.md"}, "not linked from the README")

	def test_name_paths_that_are_there(self):
		self.assertEqual([], [f"{page.name}: {name}" for page, name in self.named(PATH) if not (ROOT / name).exists()])

	def test_name_tests_that_are_there(self):
		made = {".".join(names) for file in (ROOT / "tests").rglob("*.cpp")
			for names in TEST_MADE.findall(file.read_text(encoding="utf-8"))}
		self.assertEqual([], [f"{page.name}: {name}" for page, name in self.named(TEST) if name not in made])


if __name__ == "__main__":
	unittest.main()
