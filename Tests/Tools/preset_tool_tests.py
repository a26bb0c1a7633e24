#!/usr/bin/env python3
"""Calls vornel-presets as a user does: preset_tool_tests.py PROGRAM"""

import json
import re
import sys
import unittest

from tool_calls import ToolTest

STEP = {"Event": {"channel": 1, "noteNum": 64, "velocity": 0.5}, "Time": {"start": 0.25, "length": 0.5}, "enabled": True}
OFF = {"Event": {"noteNum": 66}, "Time": {"start": 0.75, "length": 0.25}, "enabled": False}
BARS = {"Bars": [{"num": 3, "denum": 8}, {"num": 1, "denum": 4}]}

PATTERN = {
    "version": "0.6.0", "product": "Vornel", "name": "Init", "id": "19 Jan 2023 10:42:48", "Params": None,
    "Patterns": {
        "Patterns": [{"Time": BARS, "Pattern": {"Steps": [STEP, OFF], "grid": 4}}],
        "Sequencer": {"Transport": {"BPM": {"value": "87"}, "Swing": {"Value": "40%"}, "SwingRef": {"Value": "1/8"}}},
    },
}

SOUND = {"version": "0.0.0", "product": "Vornel Sounds", "Params": {"Master": "-3.19 dB"}}


class PresetTool(ToolTest):
    def setUp(self):
        super().setUp()
        self.home = self.folder / "home"
        (self.home / ".config").mkdir(parents=True)
        (self.home / ".config" / "user-dirs.dirs").write_text('XDG_DOCUMENTS_DIR="$HOME/Documents"\n')
        self.environment = {"HOME": str(self.home), "XDG_CONFIG_HOME": str(self.home / ".config"),
                            "TMPDIR": str(self.folder)}

    def output(self, *arguments, status=0):
        result = self.call(*arguments)
        self.assertEqual((result.returncode, result.stderr), (status, ""), result.stdout)
        return result.stdout

    def file(self, content, name="Tested.json"):
        path = self.folder / name
        path.write_bytes(content if isinstance(content, bytes) else json.dumps(content).encode())
        return path

    def test_explains_itself(self):
        self.assertIn("rewrite [--check] FILE...", self.output("--help"))
        self.assertRegex(self.output("--version"), r"^vornel-presets \d+\.\d+\.\d+\n$")

        for arguments, message in (
                ((), "which command"), (("frobnicate",), "no command"), (("show",), "wants FILE"),
                (("list", "x"), "no files"), (("show", "--check", "x"), "no '--check'"), (("diff", "x"), "wants A B")):
            with self.subTest(arguments=arguments):
                self.expect_failure(2, message, *arguments)

    def test_tells_why_a_file_is_refused(self):
        for content, reason in (
                (b"", "is not JSON"),
                (b'{"version": \n "0.8.0",', "line 2, column"),
                (b'{"name": "\xff"}', "ill-formed UTF-8"),
                (b"[" * 100_000, "nests deeper than 64"),
                (b" " * 9_000_000, "larger than 8 MiB"),
                ([1], "holds no JSON object"),
                ({}, 'has no "product"'),
                ({**PATTERN, "product": "Other"}, 'belongs to "Other"'),
                ({**PATTERN, "version": 8}, 'its "version" is no text'),
                ({**PATTERN, "version": "1.0"}, 'version "1.0" is none'),
                ({**PATTERN, "version": "0.5.2"}, "older than 0.5.3"),
                ({**PATTERN, "Patterns": {"Patterns": [{"Multiply": "perhaps"}]}}, "breaks off: invalid stol argument")):
            with self.subTest(reason=reason):
                line = self.output("validate", self.file(content), status=1)
                self.assertRegex(line, f": refused: .*{re.escape(reason)}")

    def test_judges_each_file_by_its_own_kind(self):
        files = [self.file(PATTERN, "a.json"), self.file(SOUND, "b.JSON"), self.file(PATTERN, "c.txt"), self.folder]
        lines = self.output("validate", *files, status=1).splitlines()
        self.assertEqual([line.split(": ", 1)[1] for line in lines],
                         ["pattern preset", "sound preset", "refused: its name does not end in .json",
                          "refused: is a directory"])

    def test_shows_a_pattern_as_it_is_drawn(self):
        self.assertEqual(self.output("show", self.file(PATTERN)), "\n".join([
            "Tested", "pattern preset, version 0.6.0, 19 Jan 2023 10:42:48", "Tempo 87, swing 40% of 1/8", "",
            "Pattern 1: 3/8 + 1/4, 4 columns, 2 steps", "   66 |...o|", "   64 |.x-.|", "",
            "Empty: 2, 3, 4, 5, 6, 7, 8", "", "Keeps the sound and the settings that are set.", ""]))

    def test_shows_a_sound_by_its_values(self):
        text = self.output("show", self.file(SOUND))
        self.assertIn("  Master -3.19 dB, SynthEnable On", text)
        self.assertRegex(text, r"\n  Oscillators / OSC 3 / Unison: Unison 1, ")

    def test_compares_step_by_step(self):
        other = json.loads(json.dumps(PATTERN))
        steps = other["Patterns"]["Patterns"][0]["Pattern"]["Steps"]
        steps[0]["enabled"] = False
        steps.insert(0, {"Event": {"noteNum": 60}, "Time": {"start": 0}})
        place = "Patterns/Patterns/0/Pattern/Steps"

        self.assertEqual(self.output("diff", self.file(PATTERN, "a.json"), self.file(other, "b.json"), status=1).splitlines(),
                         [f"{place}/row 60 at 0/Event/noteNum: - | 60", f"{place}/row 60 at 0/Time/start: - | 0",
                          f"{place}/row 64 at 0.25/enabled: true | false"])
        self.assertEqual(self.output("diff", self.file(PATTERN, "a.json"), self.file(PATTERN, "c.json")), "")

    def test_rewrites_a_file_once(self):
        path, broken = self.file(PATTERN), self.file(b"{", "broken.json")
        self.assertIn("would be rewritten", self.output("rewrite", "--check", path, status=1))
        self.assertEqual(json.loads(path.read_text()), PATTERN)

        result = self.call("rewrite", broken, path)
        self.assertEqual(result.returncode, 1)
        self.assertIn("broken.json: is not JSON", result.stderr)
        self.assertEqual(broken.read_bytes(), b"{")

        self.assertEqual(path.read_bytes()[-3:], b"}\n\0")
        document = json.loads(path.read_bytes()[:-1])
        self.assertEqual([document[key] for key in ("id", "name", "dirty", "Params")],
                         [PATTERN["id"], "Tested", False, None])
        self.assertEqual(len(document["Patterns"]["Patterns"]), 8)
        self.assertEqual(self.output("rewrite", path) + self.output("rewrite", "--check", path), "")

        sound = self.file(SOUND, "sound.json")
        self.output("rewrite", sound)
        self.assertEqual(len(json.loads(sound.read_bytes()[:-1])["Params"]["Synth"]["Oscillators"]), 5)

    def test_lists_what_the_plug_in_offers(self):
        user = self.home / "Documents" / "Brenvik" / "Vornel" / "Sounds" / "Deep" / "Own"
        user.mkdir(parents=True)
        own = self.file(SOUND, user / "Mine 2.json")
        self.file(b"{}", user / "Refused.json")

        table = self.output("list")
        self.assertRegex(table, r"^Kind +Origin +Category +Name\npattern +factory ")
        self.assertRegex(table, r"\nsound +user +Deep/Own +Mine 2\n$")
        self.assertNotIn("Refused", table)

        paths = self.output("list", "--paths").splitlines()
        self.assertEqual(paths[-1], str(own))
        self.assertEqual(len(paths), len(table.splitlines()) - 1)
        self.assertTrue(self.output("validate", *paths))
        self.assertEqual(self.output("rewrite", "--check", *paths[:-1]), "", "the factory's files are as we write them")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
