"""Each fault that check_layers.py exists for, in the smallest tree that has it."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "Tools"))

import check_layers


def faults_of(files):
    with tempfile.TemporaryDirectory() as folder:
        for path, text in files.items():
            file = Path(folder, path)
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text, encoding="utf-8")

        return check_layers.check(Path(folder)).faults


def header(*includes):
    return "\n".join(["#pragma once", *(f"#include {include}" for include in includes)])


class CheckLayers(unittest.TestCase):
    def test_accepts_a_tree_that_keeps_to_the_floors(self):
        self.assertEqual([], faults_of({
            "Source/Midi/NoteGate.h": header('"Foundation/BlockSlice.h"', "<juce_core/juce_core.h>", "<sys/stat.h>"),
            "Source/Foundation/BlockSlice.h": header("<span>"),
            "README.md": "Version 0.8.0, part of the build/tmp/x, for VST3.",
        }))

    def test_refuses_what_a_floor_may_not_include(self):
        for floor, include in (
                ("Sequencer", '"Midi/NoteGate.h"'),
                ("Midi", '"NoteGate.h"'),
                ("Midi", '"../Midi/NoteGate.h"'),
                ("Plugin/Bases", '"Plugin/Vornel/State.h"'),
                ("Synth/Kernels", "<juce_core/juce_core.h>"),
                ("Midi", "<juce_gui_basics/juce_gui_basics.h>"),
                ("Presets/Reflection", "<juce_core/text/juce_String.h>"),
                ("Midi", "<nlohmann/json.hpp>")):
            with self.subTest(floor=floor, include=include):
                self.assertEqual(1, len(faults_of({
                    f"Source/{floor}/Tested.h": header(include),
                    "Source/Midi/NoteGate.h": header(),
                    "Source/Plugin/Vornel/State.h": header(),
                })))

    def test_refuses_a_circle(self):
        faults = faults_of({
            "Source/Midi/A.h": header('"Midi/B.h"'),
            "Source/Midi/B.h": header('"Midi/C.h"'),
            "Source/Midi/C.h": header('"Midi/A.h"'),
        })
        self.assertEqual(1, len(faults))
        self.assertIn("Midi/A.h > Midi/B.h > Midi/C.h > Midi/A.h", faults[0])

    def test_refuses_a_header_without_guard_a_long_file_and_a_stray_folder(self):
        for path, text in (
                ("Source/Midi/A.h", "int a;"),
                ("Source/Midi/A.cpp", "\n" * 401),
                ("Source/Elsewhere/A.h", header())):
            with self.subTest(path=path):
                self.assertEqual(1, len(faults_of({path: text})))

    def test_refuses_a_path_of_one_machine(self):
        self.assertEqual(1, len(faults_of({"CHANGELOG.md": "see /home" + "/me/x"})))


if __name__ == "__main__":
    unittest.main()
