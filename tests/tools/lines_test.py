# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
"""The counts and shares for a small tree, counted by hand."""
import os
import subprocess
import sys
import tempfile
import unittest

LINES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools", "lines")
TREE = {
	"Plugins/Look/Look.cpp": "// comment\n\n/** one */\n/*\nint hidden;\n*/\nint a;\n/* x */ /* y */ int b; // c\n\tint d;\n",
	"common/url/Url.h": "#pragma once\n",
	"Plugins/Look/Look.uplugin": "{\n}\n",
	"host/Host.cpp": "int a;\nint b;\n",
	"tests/host/HostTest.cpp": "int a;\n",
	"tests/support/Support.cpp": "int a;\n",
	"tests/CMakeLists.txt": "# comment\nproject(x)\n\tproject(y)\n",
	"tests/tools/lint_test.py": "a = 1\n",
	"benchmarks/Look.cpp": "int a;\n",
	"tools/do": "#!/bin/sh\n# comment\ntrue\n",
	"build/Made.cpp": "int a;\n",
}
EXPECTED = {
	"product": "4", "host": "2", "tests of the product": "3", "tests of the host": "1", "bench": "1", "tools": "2",
	"tests / all": "0.40", "host / product": "0.50",
}


class LinesTest(unittest.TestCase):
	def test_counts_and_shares(self):
		with tempfile.TemporaryDirectory() as root:
			for name, text in TREE.items():
				path = os.path.join(root, name)
				os.makedirs(os.path.dirname(path), exist_ok=True)
				with open(path, "w", encoding="utf-8") as file:
					file.write(text)
			result = subprocess.run([sys.executable, LINES, root], text=True, capture_output=True, check=True)
		printed = {line[:22].rstrip(): line[22:].strip() for line in result.stdout.splitlines()}
		self.assertEqual(EXPECTED, printed)


if __name__ == "__main__":
	unittest.main()
