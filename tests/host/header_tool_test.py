#!/usr/bin/env python3
# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
"""The header tool on the plug-in's own headers, and on headers that it has to refuse."""
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
TOOL = ROOT / "host/HeaderTool/header_tool.py"
SOURCES = ROOT / "Plugins/Tonalith/Source"

RENAMED = {"Tonalith": "Zephyr", "TONALITH": "ZEPHYR", "TNL": "QRX", "ViewportsSettings": "PaneList",
           "ViewportIdentifier": "PaneName", "DisplayConfiguration": "ShownThing", "bDisplay": "bIsLit",
           "Weight": "Share", "Look": "Picture", "ViewportSettings": "PaneStore"}


def rename(text):
    return re.sub("|".join(sorted(RENAMED, key=len, reverse=True)), lambda found: RENAMED[found.group()], text)


def run(module, source, out, known=()):
    headers = sorted(str(path) for path in source.rglob("*.h") if ".generated.h" in path.read_text(encoding="utf-8"))
    return subprocess.run(
        [sys.executable, TOOL, "--module", module, "--source", source, "--out", out, *[f"--known={k}" for k in known],
         *headers], capture_output=True, text=True, check=False)


class PluginHeaders(unittest.TestCase):
    def generate(self, folder, names):
        """Runs the tool over a copy of both modules with the names changed, and gives all that it wrote."""
        written, known = {}, []
        for module in ("Tonalith", "TonalithEditor"):
            copy, out = folder / names(module), folder / "out" / names(module)
            for path in (SOURCES / module).rglob("*.h"):
                target = copy / names(path.relative_to(SOURCES / module).as_posix())
                target.parent.mkdir(parents=True, exist_ok=True)
                target.write_text(names(path.read_text(encoding="utf-8")), encoding="utf-8")
            result = run(names(module), copy, out, known)
            self.assertEqual((result.returncode, result.stderr), (0, ""))
            known.append(out / f"{names(module)}.types")
            written.update({path.name: path.read_text(encoding="utf-8") for path in out.iterdir()})
        return written

    @staticmethod
    def lines(text):
        """In any order: that of headers and keys follows their names."""
        return sorted(line.rstrip(",") for line in text.splitlines())

    def test_names_mean_nothing_to_the_tool(self):
        with tempfile.TemporaryDirectory() as first, tempfile.TemporaryDirectory() as second:
            original = self.generate(Path(first), lambda text: text)
            renamed = self.generate(Path(second), rename)
        self.assertGreater(len(original), 6)
        for name, text in original.items():
            self.assertEqual(self.lines(rename(text)), self.lines(renamed[rename(name)]), name)
            self.assertNotIn("Tonalith", renamed[rename(name)])


class Refusals(unittest.TestCase):
    CLASS = '#include "Base.h"\n#include "Bad.generated.h"\nUCLASS()\nclass UBad : public UObject\n{\n\tGENERATED_BODY()\n%s\n};\n'
    ROWS = [
        (CLASS % "\tUPROPERTY()\n\tstd::vector<int> Values;", 8, 'unknown property type "std::vector<int>"'),
        (CLASS % "\tUPROPERTY(Replicated)\n\tbool bValue;", 7, 'unknown specifier "Replicated"'),
        (CLASS % "\tUFUNCTION()\n\tvoid Call();", 7, "UFUNCTION is not supported"),
        (CLASS % "\tUPROPERTY()\n\tFUnknown Value;", 8, '"FUnknown" is no reflected type'),
        (CLASS % "\tUPROPERTY(config)\n\tfloat Value;", 3, '"UBad" has config properties but names no config file'),
        ((CLASS % "\tUPROPERTY(config)\n\tTObjectPtr<UObject> Value;").replace("UCLASS()", "UCLASS(config=Editor)"), 8,
         "Not allowed to use 'config' with object variables"),
        (CLASS % "\tUPROPERTY()\n\tbool bValue", 9, "a property is a type and a name"),
        ("#include \"Bad.generated.h\"\nUCLASS(config", 2, "the file ends too early"),
        ((CLASS % "").replace("\tGENERATED_BODY()\n", ""), 3, '"UBad" has no GENERATED_BODY()'),
        ((CLASS % "").replace("UBad", "TBad"), 4, 'the name does not begin with "U": "TBad"'),
        ('#include "Bad.generated.h"\n#include "Late.h"\n', 2, 'the last include must be "Bad.generated.h"'),
    ]

    def test_each_names_file_line_and_reason(self):
        for text, line, reason in self.ROWS:
            with self.subTest(reason), tempfile.TemporaryDirectory() as folder:
                header = Path(folder) / "Bad.h"
                header.write_text(text, encoding="utf-8")
                result = run("Bad", Path(folder), Path(folder) / "out")
                self.assertEqual(result.returncode, 1)
                self.assertIn(f"{header}:{line}: {reason}", result.stderr)
                self.assertEqual(result.stderr.count("\n"), 1)


if __name__ == "__main__":
    unittest.main()
