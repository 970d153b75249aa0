# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
"""The project's own files, and what language each is written in."""
import os
import subprocess

ENDINGS = {
	".cpp": "C++", ".h": "C++", ".inl": "C++", ".cs": "C#",
	".cmake": "CMake", ".py": "Python", ".sh": "shell",
}


def files(root):
	"""Paths below root, relative and sorted: those that git tracks or would track; without git, all but what is built."""
	listed = subprocess.run(
		["git", "-C", root, "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
		stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
	if listed.returncode == 0:
		names = set(os.fsdecode(listed.stdout).split("\0"))
	else:
		names = set(_walk(root))
	return sorted(name for name in names if os.path.isfile(os.path.join(root, name)))


def _walk(root):
	for folder, folders, names in os.walk(root):
		folders[:] = [name for name in folders if name not in (".git", "build", "__pycache__")]
		for name in names:
			yield os.path.relpath(os.path.join(folder, name), root)


def lines(root, name):
	"""The lines of a file without their ends. Bytes that are not UTF-8 are replaced."""
	with open(os.path.join(root, name), encoding="utf-8", errors="replace") as file:
		return file.read().splitlines()


def language(root, name):
	"""The language of a source file, None for everything else. Scripts are known by their first line."""
	base = os.path.basename(name)
	ending = os.path.splitext(base)[1]
	if base == "CMakeLists.txt":
		return "CMake"
	if ending in ENDINGS:
		return ENDINGS[ending]
	if ending:
		return None
	with open(os.path.join(root, name), "rb") as file:
		first = file.readline()
	if not first.startswith(b"#!"):
		return None
	return "Python" if b"python" in first else "shell"
