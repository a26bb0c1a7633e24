#!/usr/bin/env python3
"""What can be known of the AAX plug-in without its SDK: that a build that lacks something says what, and that a library
with other entry points than the seven is refused.

    aax_tests.py SOURCE_FOLDER C_COMPILER JUCE_MODULES
"""

import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT, COMPILER, MODULES = Path(sys.argv[1]), sys.argv[2], Path(sys.argv[3])

OPTION = """
cmake_minimum_required (VERSION 3.22)
set (CMAKE_SYSTEM_NAME {system})
set (CMAKE_CXX_COMPILER_ID {compiler})
set (VORNEL_AAX_SDK "{sdk}")
set (JUCE_MODULES_DIR "{modules}")
function (juce_set_aax_sdk_path path)
    message (STATUS "JUCE is given ${{path}}")
endfunction()
include ("{root}/Source/Plugin/Host/AAX.cmake")
zn_add_aax ({name})
message (STATUS "builds ${{aax_format}} ${{aax_settings}} ${{aax_entry_points}}")
"""

SEVEN = (
    "ACFCanUnloadNow",
    "ACFGetClassFactory",
    "ACFGetSDKVersion",
    "ACFRegisterComponent",
    "ACFRegisterPlugin",
    "ACFShutdown",
    "ACFStartup",
)


def run(*command):
    result = subprocess.run([str(word) for word in command], text=True, capture_output=True, check=False)
    return result.returncode, " ".join((result.stdout + result.stderr).split())


class Folder(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)


class Option(Folder):
    """The SDK and the JUCE of each test are complete until it takes something away."""

    def setUp(self):
        super().setUp()
        self.sdk, self.modules = self.folder / "sdk", self.folder / "modules"
        (self.sdk / "Interfaces" / "ACF").mkdir(parents=True)

        for name in ("AAX_Version.h", "AAX_Exports.cpp", "AAX_ICollection.h"):
            (self.sdk / "Interfaces" / name).touch()

        client = self.modules / "juce_audio_plugin_client"
        self.wrapper = client / "AAX" / "juce_AAX_Wrapper.cpp"
        self.settings = client / "utility" / "juce_CheckSettingMacros.h"
        self.extensions = self.modules / "juce_audio_processors" / "utilities" / "juce_AAXClientExtensions.h"

        for file in (self.wrapper, self.settings):
            file.parent.mkdir(parents=True)
            shutil.copy(MODULES / file.relative_to(self.modules), file)

        self.extensions.parent.mkdir(parents=True)
        self.extensions.touch()
        switched_off = "\n# warning JUCE/Debian disabled AAX support\n# undef JucePlugin_Build_AAX\n"
        self.settings.write_text(self.settings.read_text().replace(switched_off, "\n"))

    def configure(self, system="Windows", name="Vornel", compiler="Clang"):
        script = self.folder / "option.cmake"
        script.write_text(OPTION.format(root=ROOT, sdk=self.sdk, modules=self.modules, system=system, name=name,
                                        compiler=compiler))
        return run("cmake", "-P", script)

    def test_takes_a_complete_kit(self):
        code, said = self.configure()
        self.assertEqual(code, 0, said)
        self.assertIn(f"JUCE is given {self.sdk}", said)
        self.assertIn("builds AAX", said)
        self.assertEqual(sorted(word for word in said.replace(";", " ").split() if word.startswith("ACF")), list(SEVEN))

    def test_says_what_is_missing(self):
        rows = (
            ("no folder", lambda: shutil.rmtree(self.sdk), "VORNEL_AAX_SDK is no folder"),
            ("no header", lambda: (self.sdk / "Interfaces" / "AAX_Exports.cpp").unlink(), "no Interfaces/AAX_Exports.cpp"),
            ("no client", lambda: self.wrapper.unlink(), "no AAX client"),
            ("too old a JUCE", lambda: self.extensions.unlink(), "no AAX client with extensions"),
            ("another node name", lambda: self.wrapper.write_text("JucePlugin_Name"), 'MIDI output "Vornel Out"'),
            ("Debian's JUCE", lambda: shutil.copy(MODULES / self.settings.relative_to(self.modules), self.settings),
             "switched AAX off"),
        )

        for what, take_away, answer in rows:
            with self.subTest(what):
                self.setUp()
                take_away()
                code, said = self.configure()
                self.assertNotEqual(code, 0)
                self.assertIn(answer, said)

    def test_knows_where_the_format_exists(self):
        self.assertIn("on Windows and macOS only", self.configure(system="Linux")[1])
        self.assertIn("choose clang-cl", self.configure(compiler="MSVC")[1])
        self.assertEqual(self.configure(system="Darwin", compiler="AppleClang")[0], 0)

    def test_insists_on_the_name_of_the_midi_output(self):
        self.assertIn('would not call its MIDI output "Vornel Out"', self.configure(name="Other")[1])


class EntryPoints(Folder):
    def judge(self, library):
        return run(sys.executable, "-B", ROOT / "Tools" / "check_exports.py", library, *SEVEN)

    def object_of(self, names):
        source, compiled = self.folder / "a.c", self.folder / "a.o"
        source.write_text("".join(f"int {name} (void) {{ return 0; }}\n" for name in names))
        code, said = run(COMPILER, "-c", "-fPIC", "-fno-asynchronous-unwind-tables", source, "-o", compiled)
        self.assertEqual(code, 0, said)
        return compiled

    def linux_library(self, names):
        library = self.folder / "a.so"
        code, said = run(COMPILER, "-shared", "-nostdlib", self.object_of(names), "-o", library)
        self.assertEqual(code, 0, said)
        return library

    def windows_library(self, names):
        compiled, library = self.folder / "a.obj", self.folder / "a.dll"
        code, said = run("objcopy", "-R", ".comment", "-O", "pe-x86-64", self.object_of(names), compiled)

        if code == 0:
            code, said = run("ld", "-m", "i386pep", "-shared", "--export-all-symbols", compiled, "-o", library)

        if code != 0:
            self.skipTest(f"no linker for Windows: {said}")

        return library

    def test_are_the_seven_and_no_others(self):
        rows = (
            (SEVEN, 0, ""),
            ((*SEVEN, "GetEffectDescriptions"), 1, "exports GetEffectDescriptions"),
            (SEVEN[1:], 1, f"does not export {SEVEN[0]}"),
        )

        for make in (self.linux_library, self.windows_library):
            for names, expected, answer in rows:
                with self.subTest(make.__name__, names=names):
                    code, said = self.judge(make(names))
                    self.assertEqual(code, expected, said)
                    self.assertIn(answer, said)

    def test_cannot_be_read_from_anything_but_a_library(self):
        text = self.folder / "text"
        text.write_text("no library")
        self.assertEqual(self.judge(text)[0], 1)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
