#!/usr/bin/env python3
"""Installs what was built as a packager does, and as a musician does from the archive, into folders of its own.

    check_installation.py BUILD
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

BUILD = Path(sys.argv.pop(1))
SOURCE = Path(__file__).resolve().parents[2]
PROGRAMS = ("vornel", "vornel-presets", "vornel-render", "vornel-tonq")
PLUGINS = ("Vornel", "Vornel MIDI")

# Of everything else there may be more with time.
ESSENTIAL = {
    *(f"bin/{program}" for program in PROGRAMS),
    *(f"share/man/man1/{program}.1" for program in PROGRAMS),
    *(f"lib/vst3/{plugin}.vst3/Contents/{os.uname().machine}-linux/{plugin}.so" for plugin in PLUGINS),
    *(f"lib/lv2/{plugin}.lv2/{name}" for plugin in PLUGINS
      for name in (f"lib{plugin}.so", "manifest.ttl", "dsp.ttl", "ui.ttl", "presets/patterns-welcome.ttl")),
    "share/applications/example.brenvik.vornel.desktop",
    "share/icons/hicolor/scalable/apps/example.brenvik.vornel.svg",
    "share/metainfo/example.brenvik.vornel.metainfo.xml",
    *(f"share/doc/vornel/{name}" for name in ("CHANGELOG.md", "copyright", "factory-presets.md")),
}


def files_in(folder):
    return {path.relative_to(folder).as_posix() for path in folder.rglob("*") if not path.is_dir()}


def output_of(*command, **environment):
    return subprocess.run(command, env=os.environ | environment, text=True, check=True, timeout=60,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT).stdout


class Installation(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.scratch.cleanup)
        cls.folder = Path(cls.scratch.name)
        output_of("cmake", "--install", BUILD, "--prefix", "/usr", DESTDIR=str(cls.folder / "staged"))
        cls.staged = cls.folder / "staged/usr"
        cls.installer = cls.staged / "install.sh"
        shutil.copy(SOURCE / "packaging/tar/install.sh", cls.installer)

    def test_has_everything_in_its_place(self):
        staged = files_in(self.staged)
        self.assertLessEqual(ESSENTIAL, staged)
        self.assertEqual({name.split("/")[0] for name in staged}, {"bin", "lib", "share", "install.sh"})
        self.assertEqual(files_in(self.folder / "staged"), {f"usr/{name}" for name in staged})
        self.assertNotIn("@", (self.staged / "share/man/man1/vornel.1").read_text(encoding="utf-8"))

    def test_programs_say_what_they_cannot_do(self):
        for program, arguments, status in (*((program, ["--frobnicate"], 2) for program in PROGRAMS),
                                           ("vornel", ["song.json"], 2), ("vornel", [], 1)):
            with self.subTest(program, arguments=arguments):
                result = subprocess.run([self.staged / "bin" / program, *arguments], env=os.environ | {"DISPLAY": ""},
                                        capture_output=True, timeout=60, text=True, check=False)
                self.assertEqual(result.returncode, status)
                self.assertRegex(result.stderr, f"^{program}: there is no ")

    def test_documents_lead_to_what_is_there(self):
        for document in (self.staged / "share/doc").rglob("*.md"):
            for link in re.findall(r"\]\(([^)#:]+)[)#]", document.read_text(encoding="utf-8")):
                self.assertTrue((document.parent / link).exists(), f"{document.name}: {link}")

    def test_describes_itself_to_desktops(self):
        for program, *arguments, file in (
                ("desktop-file-validate", "applications/example.brenvik.vornel.desktop"),
                ("appstreamcli", "validate", "--no-net", "metainfo/example.brenvik.vornel.metainfo.xml")):
            with self.subTest(program):
                if shutil.which(program) is None:
                    self.skipTest(f"there is no {program}")
                output_of(program, *arguments, self.staged / "share" / file)

    def test_installer_leaves_only_what_is_not_its_own(self):
        for arguments, folders in (
                ([], (".vst3", ".lv2", ".local/bin", ".local/share")),
                (["--prefix", "{home}/else $w%re"], ("else $w%re/lib", "else $w%re/bin", "else $w%re/share"))):
            with self.subTest(arguments), tempfile.TemporaryDirectory(dir=self.folder) as home:
                home = Path(home)
                arguments = [argument.format(home=home) for argument in arguments]
                call = lambda *more: output_of(self.installer, *arguments, *more, HOME=str(home), XDG_DATA_HOME="")

                call()
                installed = files_in(home)
                self.assertTrue(all(name.startswith(folders) for name in installed))
                self.assertEqual(len(installed), len(files_in(self.staged)))  # the list instead of the installer

                entry = next(home.rglob("*.desktop")).read_text(encoding="utf-8")
                program = next(path for path in home.rglob("bin/vornel"))
                quoted = str(program).replace("$", r"\\$").replace("%", "%%")
                self.assertIn(f'\nExec="{quoted}"\nTryExec={program}\n', entry)
                self.assertIn("Usage", output_of(program.with_name("vornel-presets"), "--help"))

                foreign = next(home.rglob("Vornel.lv2")) / "mine.ttl"
                foreign.touch()
                call()  # over itself
                self.assertEqual(files_in(home), installed | {foreign.relative_to(home).as_posix()})
                call("--uninstall")
                self.assertEqual(files_in(home), {foreign.relative_to(home).as_posix()})
                self.assertEqual([path for path in home.rglob("*") if path.is_dir() and not any(path.iterdir())], [])

    def test_installer_that_breaks_off_leaves_nothing_for_good(self):
        for obstacle, is_folder, stays in ((".local/bin", False, True),               # seen before anything is touched
                                           (".local/bin/vornel-tonq", True, False)):  # met on the way
            with self.subTest(obstacle), tempfile.TemporaryDirectory(dir=self.folder) as home:
                home = Path(home)
                call = lambda *more: subprocess.run([self.installer, *more], env=os.environ | {
                    "HOME": str(home), "XDG_DATA_HOME": ""}, capture_output=True, check=False).returncode

                self.assertEqual(call(), 0)
                shutil.move(home / obstacle, home / "moved")
                (home / obstacle).mkdir() if is_folder else (home / obstacle).touch()
                before = files_in(home)

                self.assertEqual(call(), 1)
                self.assertEqual(files_in(home) == before, stays)
                self.assertEqual(call("--uninstall"), 0)
                shutil.rmtree(home / "moved") if stays else (home / "moved").unlink()
                self.assertEqual(files_in(home), {obstacle} if stays else set())

    def test_installer_explains_itself(self):
        self.assertIn("--uninstall", output_of(self.installer, "--help"))
        for arguments in (["--frobnicate"], ["--prefix"], ["--prefix", str(self.folder / "nowhere"), "--uninstall"]):
            with self.subTest(arguments):
                self.assertEqual(subprocess.run([self.installer, *arguments], stderr=subprocess.DEVNULL,
                                                check=False).returncode, 2)


if __name__ == "__main__":
    unittest.main()
