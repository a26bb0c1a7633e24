#!/usr/bin/env python3
"""Calls vornel-render as a user does: command_line_tests.py PROGRAM EXAMPLES CHORDS"""

import json
import os
import random
import signal
import struct
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

PROGRAM, EXAMPLES, CHORDS = map(Path, sys.argv[1:4])
CHORALE = EXAMPLES / "old-hundredth.mid"
QUICK = ["--sample-rate", "8000", "--tail", "0"]

# The program installs the factory presets wherever its user's folders are.
HOME = tempfile.TemporaryDirectory()
os.environ["HOME"] = HOME.name
os.environ.pop("XDG_CONFIG_HOME", None)


def notes_of(path):
    """The notes of a chord file as (start, end, pitch), and its length, all in quarter notes."""
    data = path.read_bytes()
    place, tick, begun, notes = 22, 0, {}, []

    def number():
        nonlocal place
        value = 0

        while True:
            byte, place = data[place], place + 1
            value = value << 7 | byte & 0x7F

            if byte < 0x80:
                return value

    while place < len(data):
        tick += number()
        status, kind = data[place:place + 2]
        place += 2

        if status == 0xFF:
            size = number()
            place += size
            continue

        pitch, place = kind, place + 1

        if status == 0x90:
            begun[pitch] = tick
        else:
            notes.append((begun.pop(pitch) / 480, tick / 480, pitch))

    return notes, tick / 480


class CommandLine(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = Path(scratch.name)

    def call(self, *arguments):
        return subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, text=True, timeout=120)

    def expect_failure(self, status, message, *arguments):
        before = sorted(self.folder.iterdir())
        result = self.call(*arguments)
        self.assertEqual(result.returncode, status, result.stderr)
        self.assertIn(message, result.stderr)
        self.assertTrue(result.stderr.startswith("vornel-render: ") and result.stderr.count("\n") == 1, result.stderr)
        self.assertEqual(result.stdout, "")
        self.assertEqual(sorted(self.folder.iterdir()), before, "something was left behind")

    def file(self, data):
        path = self.folder / "input.mid"
        path.write_bytes(data)
        return path

    def refuse_input(self, message, path):
        self.expect_failure(1, message, path, "--out-events", self.folder / "events.jsonl", *QUICK)

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

    def test_refuses_what_is_no_midi_file(self):
        self.refuse_input("does not exist", self.folder / "missing.mid")
        self.refuse_input("is a directory", self.folder)
        self.refuse_input("is empty", self.file(b""))
        self.refuse_input("is not a MIDI file", self.file(random.Random(1).randbytes(5000)))
        self.refuse_input("SMPTE", self.file(b"MThd\0\0\0\6\0\0\0\0\xe7\x28"))

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

    def play(self, example, blocks):
        """What the host receives of a song, as (sample, bytes)."""
        events = self.folder / "events.jsonl"
        self.assertEqual(self.call(example, "--out-events", events, "--seed", 1, "--block", blocks).returncode, 0)
        lines = [json.loads(line) for line in events.read_text().splitlines()]
        return [(line["sample"], tuple(line["bytes"])) for line in lines]

    def test_plays_the_same_however_the_blocks_are_cut(self):
        # An event that falls between the last sample of a block and the first of the next happens at the latter. So
        # a seam may delay it by one sample, behind an event of another pitch, and changes nothing else.
        for example in sorted(EXAMPLES.glob("*.mid")):
            whole = self.play(example, 512)
            sounding = set()

            for sample, (status, pitch, velocity) in whole:
                self.assertIn(status, (0x80, 0x90), "only notes on channel 1")
                (sounding.add if status == 0x90 and velocity > 0 else sounding.discard)(pitch)

            self.assertEqual(sounding, set(), "every note ends")

            for blocks in (64, "random:1:777"):
                with self.subTest(example=example.name, blocks=blocks):
                    by_pitch = lambda event: event[1][1]
                    expected, actual = sorted(whole, key=by_pitch), sorted(self.play(example, blocks), key=by_pitch)
                    self.assertEqual([event[1] for event in actual], [event[1] for event in expected])
                    self.assertLessEqual({a[0] - e[0] for a, e in zip(actual, expected)}, {-1, 0, 1})

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

    def project_with_player(self, chords, *options):
        """The state of a project in which the MIDI player is on."""
        state = self.folder / "state"
        self.assertEqual(self.call("--state-out", state, *options).stderr, "")

        project = json.loads(state.read_bytes()[8:].rstrip(b"\0"))
        project["MidiPlayer"] = {"Resource": {"name": chords, "type": "SharedBinary", "data": ""},
                                 "playing": True, "active": True}
        text = json.dumps(project).encode() + b"\0"
        state.write_bytes(b"VC2!" + struct.pack("<i", len(text)) + text)
        return state

    def test_plays_the_chords_of_a_project_at_their_ticks_however_the_host_loops(self):
        quarter = 4000  # samples, at 120 beats a minute and 8000 samples a second
        song = self.file(b"MThd\0\0\0\6\0\0\0\1\0\x18MTrk\0\0\0\x0d"
                         + bytes.fromhex("00903c64 8740803c00 00ff2f00"))  # a key, 40 quarters long, that gives way
        climb = [{"enabled": True, "Event": {"noteNum": 64 + i % 3}, "Time": {"start": i / 16, "length": 1 / 16}}
                 for i in range(16)]
        pattern = self.preset("Vornel", {"Patterns": {"Patterns": [{"Pattern": {"Steps": climb, "grid": 16}}]}})

        def played(state, loop, block):
            out = self.folder / "out.jsonl"
            result = self.call(song, "--state-in", state, "--out-events", out, "--loop", f"{loop[0]}:{loop[1]}",
                               "--block", block, "--set", "Enable-Synth=Off", *QUICK)
            self.assertEqual((result.returncode, result.stderr), (0, ""))
            lines = [json.loads(line) for line in out.read_text().splitlines()]
            return sorted((line["sample"], line["bytes"][0] == 0x90, line["bytes"][1]) for line in lines
                          if line["sample"] < 40 * quarter)

        def expected(notes, loop):
            """The notes of each pass through the loop, cut at its ends."""
            events, elapsed, first = [], 0.0, 0.0

            while elapsed < 40:
                for start, end, pitch in notes:
                    start, end = max(start, first), min(end, loop[1])
                    events += [(round((elapsed + time - first) * quarter), isOn, pitch)
                               for time, isOn in ((start, True), (end, False)) if start < end]

                elapsed, first = elapsed + loop[1] - first, loop[0]

            return sorted(event for event in events if event[0] < 40 * quarter)

        for name in ("Chords 1 - Pop", "Chords 26 - Future Bass", "Chords 27 - Waltz"):
            once, length = notes_of(CHORDS / f"{name}.mid")
            notes = [(start + again * length, end + again * length, pitch) for again in range(4) for start, end, pitch in once]
            steps = [(i / 4, (i + 1) / 4, sorted(pitch for start, end, pitch in notes if start <= i / 4 < end)[i % 16 % 3])
                     for i in range(160)]

            for options, wanted in ((["--set", "Arp-Active=Off"], notes), (["--preset", pattern], steps)):
                state = self.project_with_player(name, *options)

                for loop, block in (((3, 9), 512), ((1.25, 13.75), 64), ((length - 1, length + 1.5), 736)):
                    with self.subTest(name=name, options=options, loop=loop):
                        self.assertEqual(played(state, loop, block), expected(wanted, loop))

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
