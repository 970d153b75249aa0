# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
"""Each case plants one fault in a small clean tree and expects it to be named, alone, with file and line."""
import json
import os
import subprocess
import sys
import tempfile
import unittest

LINT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools", "lint")
MARK = "Copyright 2026 Vantor. SPDX-License-Identifier: MIT"
MODULE = {"Name": "LookEditor", "Type": "Editor", "LoadingPhase": "Default", "PlatformAllowList": ["Win64"]}
PLUGIN = {
	"FileVersion": 3, "Version": 1, "VersionName": "1.0", "FriendlyName": "Look", "Description": "Looks.",
	"Category": "Editor", "CreatedBy": "Vantor", "EngineVersion": "5.4.0", "CanContainContent": True,
	"Modules": [MODULE],
}
SOURCE = f"// {MARK}\nint two()\n{{\n\treturn 2;\n}}\n"
ALLOW = '#include "Windows/AllowWindowsPlatformTypes.h"\n\n'
HIDE = '#include "Windows/HideWindowsPlatformTypes.h"\n'
CLEAN = {
	".clang-format": "{UseTab: Always, TabWidth: 4, IndentWidth: 4, BreakBeforeBraces: Allman,"
		" AllowShortFunctionsOnASingleLine: None}\n",
	"CMakeLists.txt": f"# {MARK}\nset_target_properties(boost_filesystem PROPERTIES UNITY_BUILD ON)\n",
	"tests/CMakeLists.txt": f"# {MARK}\nset(CMAKE_UNITY_BUILD ON)\n",
	"Plugins/Look/Look.uplugin": json.dumps(PLUGIN, indent="\t"),
	"Plugins/Look/Source/Two.cpp": SOURCE,
	"Plugins/Look/Source/LookEditor/LookEditor.Build.cs": f"// {MARK}\n// Needs \"Look\".\n",
	"host/Two.h": f"// {MARK}\n#ifdef HOST_DEBUG\n#endif\n",
	"tools/do": f"#!/bin/sh\n# {MARK}\n",
	"docs/page.md": "no source\n",
}


def plugin(**changes):
	"""The descriptor with some fields changed; None removes a field."""
	fields = {key: value for key, value in {**PLUGIN, **changes}.items() if value is not None}
	return json.dumps(fields, indent="\t")


def module(**changes):
	return plugin(Modules=[{key: value for key, value in {**MODULE, **changes}.items() if value is not None}])


def line_of(text, key):
	return next(number for number, line in enumerate(text.splitlines(), 1) if f'"{key}"' in line)


class LintTest(unittest.TestCase):
	def lint(self, files, git=False):
		"""The messages and the exit code for a tree of these files beside the clean ones."""
		with tempfile.TemporaryDirectory() as root:
			for name, text in {**CLEAN, **files}.items():
				path = os.path.join(root, name)
				os.makedirs(os.path.dirname(path), exist_ok=True)
				with open(path, "w", encoding="utf-8") as file:
					file.write(text)
			if git:
				subprocess.run(["git", "init", "--quiet", root], check=True)
			result = subprocess.run([sys.executable, LINT, root], text=True, capture_output=True, check=False)
		self.assertEqual("", result.stderr)
		return result.stdout.splitlines(), result.returncode

	def test_clean_tree(self):
		self.assertEqual(([], 0), self.lint({}))

	def test_each_fault_is_named_alone(self):
		source, descriptor = "Plugins/Look/Source/Two.cpp", "Plugins/Look/Look.uplugin"
		line = {key: line_of(CLEAN[descriptor], key) for key in ("FileVersion", "FriendlyName", "Name")}
		cases = [
			(source, SOURCE.replace("2026", "2025"), f"{source}:1: this line must be: // {MARK}"),
			("tools/do", "#!/bin/sh\ntrue\n", f"tools/do:2: this line must be: # {MARK}"),
			("Look.cmake", "", f"Look.cmake:1: this line must be: # {MARK}"),
			(source, SOURCE.replace("return 2", "return  2"), f"{source}:4: format"),
			(source, SOURCE + "// line\n" * 396, f"{source}:401: 401 lines"),
			(source, SOURCE + "#if defined(HEADLESS_EDITOR)\n#endif\n", f"{source}:6: plug-ins must not tell"),
			(source, SOURCE + '#include "Host/Trace.h"\n', f"{source}:6: plug-ins must not include"),
			(source, SOURCE + "#include <windows.h>\n", f"{source}:6: a platform header stands between"),
			(source, SOURCE + ALLOW + HIDE + "\n#include <shlobj.h>\n", f"{source}:10: a platform header stands between"),
			("common/url/src/Two.cpp", SOURCE + "#include <shlobj.h>\n", "common/url/src/Two.cpp:6: the library reaches"),
			("CMakeLists.txt", f"# {MARK}\nset(CMAKE_UNITY_BUILD ON)\n", "CMakeLists.txt:2: files of product and host are compiled"),
			("CMakePresets.json", '{\n"CMAKE_UNITY_BUILD": true}\n', "CMakePresets.json:2: files of product and host are compiled"),
			("CMakeLists.txt", f"# {MARK}\ntarget_precompile_headers(x y)\n", "CMakeLists.txt:2: the product's files"),
			(descriptor, "{\n,", f"{descriptor}:2: no JSON"),
			(descriptor, "[]", f"{descriptor}:1: a descriptor is an object"),
			(descriptor, plugin(FileVersion=2), f"{descriptor}:{line['FileVersion']}: FileVersion must be 3"),
			(descriptor, plugin(CreatedBy=None), f"{descriptor}:{line['FriendlyName']}: Look: the field CreatedBy is missing"),
			(descriptor, module(LoadingPhase=None), f"{descriptor}:{line['Name']}: LookEditor: the field LoadingPhase"),
			(descriptor, plugin(Whitelist=[]), ": Look: unknown field Whitelist"),
			(descriptor, module(LoadingPhase="PostEngineInit"), ": LookEditor: the phase must be Default"),
			(descriptor, module(Type="Program"), ": LookEditor: the type must be Runtime or Editor"),
			(descriptor, plugin(Modules=[MODULE, {**MODULE, "Name": "Look"}]), ": LookEditor must stand behind Look"),
			(descriptor, module(WhitelistPlatforms=["Win64"]), ": LookEditor: unknown field WhitelistPlatforms"),
		]
		for name, text, expected in cases:
			with self.subTest(expected):
				messages, code = self.lint({name: text})
				self.assertEqual(1, len(messages), messages)
				self.assertIn(expected, messages[0])
				self.assertEqual(1, code)

	def test_what_looks_like_a_fault(self):
		for name, text in (
			("Plugins/Look/Source/Two.cpp", SOURCE + "// line\n" * 395),
			("Plugins/Look/Source/Two.cpp", SOURCE + "#if WITH_EDITOR\n#endif\n"),
			("Plugins/Look/Source/Two.cpp", SOURCE + ALLOW + "#include <shlobj.h>\n\n" + HIDE),
			("Plugins/Look/Source/Two.cpp", SOURCE + "#include <kiln/Two.h>\n#include <string>\n"),
			("host/Two.h", f"// {MARK}\n#include <windows.h>\n"),
			("common/platform/Platform.h", f"// {MARK}\n#include <windows.h>\n"),
			("common/examples/Two.cpp", SOURCE + "#include <windows.h>\n"),
			("tools/do", "no first line of a script\n"),
			("host/Look.uplugin", "{}"),
		):
			with self.subTest(name):
				self.assertEqual(([], 0), self.lint({name: text}))

	def test_git_decides_what_belongs_to_the_project(self):
		bad = {"made/Bad.cpp": "int   x;\n", "Bad.cpp": SOURCE.replace("2026", "2025")}
		messages, _ = self.lint({**bad, ".gitignore": "/made/\n"}, git=True)
		self.assertEqual([f"Bad.cpp:1: this line must be: // {MARK}"], messages)


if __name__ == "__main__":
	unittest.main()
