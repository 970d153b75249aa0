#!/usr/bin/env python3
# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
"""example_check.py RUNNER PROGRAM: runs the example that lists and watches volumes, and reads its output as JSON."""
import json
import os
import re
import signal
import subprocess
import sys
import time


def check_volume(volume):
	assert len(volume) == 12, volume
	assert re.fullmatch("file://localhost/[A-Z]:", volume["resource"]), volume
	assert volume["capacity"] >= volume["availableBytes"], volume


def main():
	run = sys.argv[1:3]
	listed = subprocess.run(run, stdout=subprocess.PIPE, encoding="utf-8", timeout=60, check=True)
	volumes = json.loads(listed.stdout)
	for volume in volumes:
		check_volume(volume)
	assert "file://localhost/C:" in [volume["resource"] for volume in volumes], volumes

	with subprocess.Popen([*run, "--watch"], stdout=subprocess.PIPE, encoding="utf-8", start_new_session=True) as program:
		# One object, up to the line that closes it.
		lines = []
		while not lines or lines[-1].rstrip() != "}":
			lines.append(program.stdout.readline())
		os.killpg(program.pid, signal.SIGINT)
		program.communicate(timeout=30)
	event = json.loads("".join(lines))
	assert event["event"] == "mounted" and abs(event["time"] - time.time()) < 60, event
	check_volume(event["volume"])


main()
