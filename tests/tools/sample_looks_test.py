#!/usr/bin/env python3
# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
"""The sample looks in the tree are what their script makes."""
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def files(folder):
    return {path.name: path.read_bytes() for path in Path(folder).iterdir()}


class SampleLooks(unittest.TestCase):
    def test_are_what_their_script_makes(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([ROOT / "tools/sample-looks", folder], check=True)
            self.assertEqual(files(folder), files(ROOT / "Plugins/Tonalith/Resources/Looks"))


if __name__ == "__main__":
    unittest.main()
