#!/usr/bin/env python3
"""Holds the order of the floors below Source/ and judges every tracked file by it.

    Tools/check_layers.py [ROOT]

Floors include downwards only and use only the modules that their row names; includes are written from Source/ and
never run in a circle; headers start with #pragma once; no file grows past 400 lines; and no text names a path
of one machine.
"""

import os
import re
import subprocess
import sys
from dataclasses import dataclass, field
from pathlib import Path

LONG_FILE, LONGEST_FILE = 300, 400  # lines: worth a look, refused


@dataclass(frozen=True)
class Floor:
    """A folder below Source/, the floors it may include besides itself, and the libraries it may use."""

    folder: str
    floors: tuple = ()
    modules: tuple = ()  # of JUCE, without "juce_"
    libraries: tuple = ()  # first folder of the include


EVENTS = ("core", "events")
MIDI = (*EVENTS, "audio_basics")
HOSTED = (*MIDI, "audio_processors")
SOUND = (*HOSTED, "audio_formats", "dsp")
WINDOWS = ("core", "events", "data_structures", "graphics", "gui_basics", "gui_extra")

FOUNDATIONS = ("Foundation", "Presets/Reflection")
MODELS = (*FOUNDATIONS, "Parameters")
ENGINES = (*MODELS, "Midi", "Sequencer", "Synth/Kernels", "Synth", "Presets")
BASES = (*ENGINES, "Plugin/Transport", "Plugin/Bases")
PLUGIN = (*BASES, "Plugin/Vornel")
EDITOR = (*PLUGIN, "GUI/Framework", "GUI/Widgets", "GUI/Pattern")
EVERYTHING = (*EDITOR, "GUI")

FLOORS = (
    Floor("Foundation", (), EVENTS),
    Floor("Synth/Kernels"),
    Floor("Presets/Reflection", (), ("core",), ("nlohmann",)),
    Floor("Midi", FOUNDATIONS, MIDI),
    Floor("Parameters", FOUNDATIONS, HOSTED),
    Floor("Sequencer", MODELS, HOSTED),
    Floor("Synth", (*MODELS, "Synth/Kernels"), SOUND),
    Floor("Presets", MODELS, EVENTS, ("nlohmann",)),
    Floor("Plugin/Transport", ENGINES, MIDI),
    Floor("Plugin/Bases", (*ENGINES, "Plugin/Transport"), HOSTED, ("nlohmann",)),
    Floor("Plugin/Vornel", BASES, (*HOSTED, "dsp"), ("nlohmann",)),
    Floor("GUI/Framework", FOUNDATIONS, WINDOWS, ("nlohmann",)),
    Floor("GUI/Widgets", (*PLUGIN, "GUI/Framework"), (*WINDOWS, *HOSTED), ("nlohmann",)),
    Floor("GUI/Pattern", (*PLUGIN, "GUI/Framework", "GUI/Widgets"), (*WINDOWS, *HOSTED), ("nlohmann",)),
    Floor("GUI", EDITOR, (*WINDOWS, *HOSTED, "audio_utils"), ("nlohmann",)),
    Floor("Plugin/Host", EVERYTHING, (*WINDOWS, *HOSTED, "audio_devices", "audio_utils"), ("lv2", "juce_audio_plugin_client")),
)

MACHINE_PATH = re.compile(r"(?<![\w.$}/-])/(root|home|tmp)/\w")

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


@dataclass
class Report:
    faults: list = field(default_factory=list)
    remarks: list = field(default_factory=list)

    def fault(self, path, line, text):
        self.faults.append(f"{path}:{line}: {text}")

    def remark(self, path, line, text):
        self.remarks.append(f"{path}:{line}: remark: {text}")


def floor_of(path):
    """The floor with the longest folder that holds this path (written from Source/), if there is one."""
    holders = [floor for floor in FLOORS if path.startswith(floor.folder + "/")]
    return max(holders, key=lambda floor: len(floor.folder), default=None)


def includes_of(lines):
    for number, line in enumerate(lines, 1):
        if match := INCLUDE.match(line):
            yield number, match[1] == '"', match[2]


def fault_of_own_include(floor, target, sources):
    if target not in sources:
        return f'"{target}" is no file below Source/: includes of ours start there, all others take <>'

    below = floor_of(target)

    if below not in (floor, None) and below.folder not in floor.floors:
        return f"{floor.folder} may not include {below.folder}"

    return None


def fault_of_library_include(floor, target):
    library = target.split("/")[0]

    if library in floor.libraries:
        return None

    if library.startswith("juce_"):
        module = library.removeprefix("juce_")

        if target != f"{library}/{library}.h":
            return f"include JUCE by its module header <{library}/{library}.h>"

        return None if module in floor.modules else f"{floor.folder} may not use {library}"

    if "/" in target and library != "sys":
        return f"{floor.folder} may not use <{target}>"

    return None


def check_includes(path, lines, sources, report):
    floor = floor_of(path)

    if floor is None:
        report.fault(f"Source/{path}", 1, "lies on no floor")
        return

    for number, is_ours, target in includes_of(lines):
        fault = fault_of_own_include(floor, target, sources) if is_ours else fault_of_library_include(floor, target)

        if fault:
            report.fault(f"Source/{path}", number, fault)


def check_shape(path, lines, report):
    if path.endswith(".h") and next((line for line in lines if line.strip()), "") != "#pragma once":
        report.fault(f"Source/{path}", 1, "a header starts with #pragma once")

    if len(lines) > LONGEST_FILE:
        report.fault(f"Source/{path}", LONGEST_FILE, f"{len(lines)} lines: there is a second idea in this file")
    elif len(lines) > LONG_FILE:
        report.remark(f"Source/{path}", LONG_FILE, f"{len(lines)} lines: look for the second idea")


def check_circles(sources, report):
    """Depth first through the includes: a file met again while it is still open closes a circle."""
    closed = set()

    def visit(path, open_files):
        if path in open_files:
            circle = open_files[open_files.index(path):] + [path]
            report.fault(f"Source/{path}", 1, "includes run in a circle: " + " > ".join(circle))
        elif path not in closed:
            for _, is_ours, target in includes_of(sources[path]):
                if is_ours and target in sources:
                    visit(target, open_files + [path])

            closed.add(path)

    for path in sources:
        visit(path, [])


def check_words(path, lines, report):
    for number, line in enumerate(lines, 1):
        if match := MACHINE_PATH.search(line):
            report.fault(path, number, f"'{match[0]}' is a path of one machine")


def tracked_files(root):
    """What git tracks or would add; in a copy without git, every file outside build/."""
    listed = subprocess.run(
        ["git", "-C", root, "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
        capture_output=True, text=True, check=False)

    if (root / ".git").exists() and listed.returncode == 0:
        return [path for path in listed.stdout.split("\0") if path and (root / path).is_file()]

    found = (Path(folder, name).relative_to(root) for folder, _, names in os.walk(root) for name in names)
    return [str(path) for path in found if path.parts[0] not in ("build", ".git")]


def text_of(path):
    try:
        return path.read_text(encoding="utf-8").splitlines()
    except UnicodeDecodeError:
        return None  # an image, a font, a sound


def check(root):
    report = Report()
    texts = {path: lines for path in sorted(tracked_files(root)) if (lines := text_of(root / path)) is not None}
    sources = {path.removeprefix("Source/"): lines for path, lines in texts.items()
               if path.startswith("Source/") and path.endswith((".h", ".cpp"))}

    for path, lines in sources.items():
        check_includes(path, lines, sources, report)
        check_shape(path, lines, report)

    check_circles(sources, report)

    for path, lines in texts.items():
        check_words(path, lines, report)

    return report


def main():
    root = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent
    report = check(root)

    for line in (*report.remarks, *report.faults):
        print(line)

    sys.exit(1 if report.faults else 0)


if __name__ == "__main__":
    main()
