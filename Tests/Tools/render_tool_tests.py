#!/usr/bin/env python3
"""Calls vornel-render as a user does: render_tool_tests.py PROGRAM EXAMPLES"""

import json
import os
import signal
import struct
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

from tool_calls import PROGRAM, ToolTest

EXAMPLES = Path(sys.argv[2])
CHORALE = EXAMPLES / "old-hundredth.mid"
QUICK = ["--sample-rate", "8000", "--tail", "0"]

# The program installs the factory presets wherever its user's folders are.
HOME = tempfile.TemporaryDirectory()
os.environ["HOME"] = HOME.name
os.environ.pop("XDG_CONFIG_HOME", None)


class RenderTool(ToolTest):
    def file(self, data):
        path = self.folder / "input.mid"
        path.write_bytes(data)
        return path

    def test_explains_itself(self):
        self.assertIn("--out-wav FILE", self.call("--help").stdout)
        self.assertRegex(self.call("--version").stdout, r"^vornel-render \d+\.\d+\.\d+\n$")
        self.assertRegex(self.call("--list-params").stdout, r"^ID +Name +Value +Range\n")

    def test_refuses_wrong_arguments(self):
        out = self.folder / "events.jsonl"
        self.expect_failure(2, "--help", "--frobnicate")
        self.expect_failure(2, "nothing to write", CHORALE)
        self.expect_failure(2, "--list-params", CHORALE, "--out-events", out, "--set", "Nonsense=1")
        self.expect_failure(2, "no parameter 'Cutoff'", CHORALE, "--out-events", out, "--learn", "cc 64 = Cutoff")
        self.expect_failure(2, "10 milliseconds", CHORALE, "--out-events", out, "--loop", "1:1.001")

    def test_refuses_places_that_cannot_be_written(self):
        below_a_file = self.file(b"x") / "out"

        for option in ("--out-wav", "--out-midi", "--out-events"):
            for place in (self.folder, self.folder / "none" / "out", below_a_file, Path("/dev/null")):
                with self.subTest(option=option, place=place):
                    self.expect_failure(1, f"{place}: cannot be written", CHORALE, option, place, *QUICK)

    def test_renders_every_example(self):
        wav, midi, events = (self.folder / name for name in ("out.wav", "out.mid", "out.jsonl"))

        for example in sorted(EXAMPLES.glob("*.mid")):
            with self.subTest(example=example.name):
                result = self.call(example, "--out-wav", wav, "--out-midi", midi, "--out-events", events,
                                   "--sample-rate", 16000, "--block", "random:1:700", "--seed", 1)
                self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))

                frames = (wav.stat().st_size - wav.read_bytes().index(b"data") - 8) / 6
                lines = [json.loads(line) for line in events.read_text().splitlines()]
                samples = [line["sample"] for line in lines]
                self.assertGreater(len(lines), 100)
                self.assertEqual(samples, sorted(samples))
                self.assertLess(samples[-1], frames)
                self.assertEqual(midi.read_bytes()[18:22], struct.pack(">I", midi.stat().st_size - 22))
                self.assertEqual(self.call(midi, "--out-events", events, *QUICK).returncode, 0, "its own output")

    def test_switches_the_slot_by_a_learned_key(self):
        # At 120 beats a minute and 8000 samples a second: key 60 for 8 quarters, key 36 after 4.5.
        track = bytes.fromhex("00903c64 841c902464 3c802400 8268803c00 00ff2f00")
        song = self.file(b"MThd\0\0\0\6\0\0\0\1\0\x78MTrk" + struct.pack(">I", len(track)) + track)

        def onsets(slot, *options):
            events = self.folder / "events.jsonl"
            learn = ["--learn", f"note 36 = slot {slot}"]
            self.assertEqual(self.call(song, "--out-events", events, *QUICK, *learn, *options).returncode, 0)
            lines = map(json.loads, events.read_text().splitlines())
            return {(line["sample"], *line["bytes"]) for line in lines if line["bytes"][0] == 0x90}

        def first_change(*options):
            same_slot, other_slot = onsets(1, *options), onsets(2, *options)
            return min((sample for sample, *_ in same_slot ^ other_slot), default=None)

        self.assertIn(first_change(), range(20000, 22000), "the switch waits for the next quarter")
        self.assertIn(first_change("--block", 33), range(20000, 22000))
        self.assertIsNone(first_change("--set", "Quantize=4/4"))

    def preset(self, product, contents):
        path = self.folder / f"{product}.json"
        path.write_text(json.dumps({"version": "0.8.0", "product": product, **contents}))
        return path

    def test_plays_presets_and_states(self):
        step = {"enabled": True, "Event": {"noteNum": 64}, "Time": {"start": 0.5, "length": 0.25}}
        pattern = self.preset("Vornel", {"Patterns": {"Patterns": [{"Pattern": {"Steps": [step], "grid": 4}}]}})
        sound = self.preset("Vornel Sounds", {"Params": {"Master": "-3.19 dB"}})
        state = self.folder / "state"

        def events(*options):
            out = self.folder / "out.jsonl"
            self.assertEqual(self.call(CHORALE, "--out-events", out, *QUICK, *options).returncode, 0)
            return out.read_text()

        played = events("--preset", pattern)
        self.assertNotEqual(played, events())
        self.assertEqual(self.call("--preset", pattern, "--sound", sound, "--state-out", state).stderr, "")
        self.assertEqual(played, events("--state-in", state))
        self.assertIn("-3.19 dB", self.call("--state-in", state, "--list-params").stdout)
        self.assertNotIn("-3.19 dB", self.call("--state-in", state, "--set", "Synth-Volume=1", "--list-params").stdout)

        for option, file, message in (("--preset", sound, "is no pattern preset"), ("--sound", pattern, "is no sound"),
                                      ("--state-in", CHORALE, "is no state"), ("--state-in", self.folder, "directory"),
                                      ("--preset", self.folder / "missing.json", "does not exist")):
            with self.subTest(option=option, message=message):
                self.expect_failure(1, message, option, file, "--state-out", self.folder / "new")

    def test_repeats_a_render_with_the_same_seed(self):
        renders = []

        for name in ("first", "second"):
            path = self.folder / name
            self.call(CHORALE, "--seed", 5, "--out-wav", path, *QUICK)
            renders.append(path.read_bytes())

        self.assertEqual(*renders)

    def test_needs_no_more_memory_for_a_longer_render(self):
        usage = []

        for seconds in (1, 900):
            out = self.folder / "out.wav"
            call = [PROGRAM, CHORALE, "--out-wav", out, "--sample-rate", "8000", "--tail", str(seconds)]
            process = subprocess.Popen(call)
            _, process.returncode, used = os.wait4(process.pid, 0)
            usage.append(used.ru_maxrss)

        self.assertLess(usage[1] - usage[0], 8000, "kilobytes; the longer file has 43 megabytes")

    def test_leaves_nothing_behind_when_it_is_interrupted(self):
        process = subprocess.Popen([PROGRAM, CHORALE, "--out-wav", self.folder / "out.wav", "--tail", "3600"])

        while not list(self.folder.iterdir()) and process.poll() is None:
            time.sleep(0.01)

        process.send_signal(signal.SIGINT)
        self.assertEqual(process.wait(30), 130)
        self.assertEqual(list(self.folder.iterdir()), [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
