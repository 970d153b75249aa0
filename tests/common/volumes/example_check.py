#!/usr/bin/env python3
# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
"""example_check.py RUNNER PROGRAM: runs the example that lists and watches volumes, and reads its output as JSON."""
import json
import os
import signal
import subprocess
import sys
import unittest

RUN = []


class Example(unittest.TestCase):
	def run_example(self, *arguments):
		return subprocess.run([*RUN, *arguments], capture_output=True, encoding="utf-8", timeout=60, check=False)

	def check_volume(self, volume):
		self.assertEqual(len(volume), 12)
		self.assertRegex(volume["resource"], r"^file://localhost/[A-Z]:$")
		self.assertGreaterEqual(volume["capacity"], volume["availableBytes"])

	def test_lists_the_volumes(self):
		result = self.run_example()
		self.assertEqual(result.returncode, 0)
		volumes = json.loads(result.stdout)
		for volume in volumes:
			self.check_volume(volume)
		self.assertIn("file://localhost/C:", [volume["resource"] for volume in volumes])

	def test_watches_until_it_is_interrupted(self):
		with subprocess.Popen([*RUN, "--watch"], stdout=subprocess.PIPE, encoding="utf-8", start_new_session=True) as program:
			# One object, up to the line that closes it.
			lines = []
			while not lines or lines[-1].rstrip() != "}":
				lines.append(program.stdout.readline())
			os.killpg(program.pid, signal.SIGINT)
			program.communicate(timeout=30)
		event = json.loads("".join(lines))
		self.assertEqual(event["event"], "mounted")
		self.assertGreater(event["time"], 0)
		self.check_volume(event["volume"])


RUN = sys.argv[1:3]
unittest.main(argv=sys.argv[:1])
