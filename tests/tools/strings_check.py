#!/usr/bin/env python3
# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
"""The string checker on files with one fault each, and on the plug-in's own.

    strings_check.py RUN PROGRAM TRANSLATIONS KEYS: RUN is what runs the Windows program
"""
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

RUN, PROGRAM, TRANSLATIONS, KEYS = sys.argv[1:5]
ENGLISH = '{"A": {"one": "One {{n}}", "two": "Two"}}'


def strings(*arguments):
    result = subprocess.run([RUN, PROGRAM, *arguments], capture_output=True, check=False)
    return result.returncode, result.stdout.decode("utf-8").replace("\r", "")


class Faults(unittest.TestCase):
    ROWS = [
        (b'{"A.one": "x {{n}}",\n"A.two" "y"}', ":2:9: Missing a colon after a name of object member."),
        (b'\xef\xbb\xbf{"A.one": "{{n}}", "A.two": "y"}', ":1:1: begins with a byte-order mark"),
        (b'{"A.one": "{{n}}",\n"A.two": "\xff"}', ":2:11: Invalid encoding in string."),
        (b'{"A.one": "{{n}}",\n"A.two": "y",\n"A.two": "z"}', ':3:13: duplicate key "A.two", first in line 2'),
        (b'{"A.one": "{{n}}", "A.two": "y",\n"A": {"two": "z"}}',
         ':2:17: flat and nested spelling of one key "A.two", first in line 1'),
        (b'{"A.one": "{{n}}"}', ': key "A.two" is missing, which en-US has'),
        (b'{"A.one": "{{n}}", "A.two": "y",\n "B": {"c": "z"}}', ':2:16: unknown key "B.c"'),
        (b'{"A.one": "{{m}}",\n"A.two": "y"}', ':1:18: other placeholders than en-US in "A.one"'),
        (b'{"A.one": "{{n}}",\n"A.two": ""}', ':2:12: empty text of "A.two"'),
    ]

    def check(self, german, *more):
        with tempfile.TemporaryDirectory() as folder:
            (Path(folder) / "table_en-US.json").write_text(ENGLISH, encoding="utf-8")
            (Path(folder) / "table_de.json").write_bytes(german)
            return strings("check", f"Z:{folder}", *more)

    def test_each_is_named_with_its_place(self):
        for german, expected in self.ROWS:
            with self.subTest(expected):
                code, output = self.check(german)
                self.assertEqual(code, 1, output)
                self.assertIn(f"table_de.json{expected}\n", output)

    def test_good_files_pass(self):
        self.assertEqual(self.check(b'{"A.two": "y", "A": {"one": "{{n}}"}}'), (0, "2 files, 0 faults\n"))

    def test_keys_come_from_the_code_where_it_is_given(self):
        with tempfile.NamedTemporaryFile("w", suffix=".h") as keys:
            keys.write('constexpr const char* X = "A.one"; // "A.two" "A.three"\n')
            keys.flush()
            code, output = self.check(b'{"A.two": "y", "A.one": "{{n}}"}', f"Z:{keys.name}")
        self.assertEqual(code, 1)
        self.assertEqual(output.count('key "A.three" is missing, which the code has'), 2)


class Choices(unittest.TestCase):
    def test_explains_which_file_serves(self):
        with tempfile.TemporaryDirectory() as folder:
            for locale in ("en-US", "fr-CA"):
                (Path(folder) / f"table_{locale}.json").write_text("{}", encoding="utf-8")
            for locale, expected in (("fr", "table_fr-CA.json (its language is the one asked for)"),
                                     ("it", "table_en-US.json (American English stands in for what is missing)"),
                                     ("fr_ca", "table_fr-CA.json (language, region and variant are those asked for)")):
                self.assertEqual(strings("explain", locale, f"Z:{folder}"), (0, f"{locale}: {expected}\n"))
            self.assertEqual(strings("explain", "it", f"Z:{folder}/missing"),
                             (1, "it: nothing (no file serves the locale)\n"))


class Product(unittest.TestCase):
    def test_the_plug_ins_files_are_complete(self):
        code, output = strings("check", f"Z:{TRANSLATIONS}", f"Z:{KEYS}")
        self.assertEqual((code, output), (0, "7 files, 0 faults\n"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
