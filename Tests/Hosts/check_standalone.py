#!/usr/bin/env python3
"""Uses the standalone program as somebody does who has just started it: draws notes, hears them, changes their
velocity and chance, saves the pattern under a name, finds it again, takes an edit back, and looks at the devices.

    check_standalone.py PROGRAM SCHEME [PICTURES]

SCHEME is the folder that says where the editor's parts lie. Screen pictures go into the folder PICTURES. The end is 0
if all is well, 1 if not, and 77 (skipped) where JACK cannot run.
"""

import json
import os
import signal
import subprocess
import sys
import tempfile
import wave
from contextlib import contextmanager
from pathlib import Path
from time import monotonic, sleep

from sessions import (
    PATIENCE, SHARED_MEMORY, SKIPPED, Fault, demand, jack_server, jack_server_name, private_environment, running,
    time_left,
)
from x11 import Display, Unavailable

PROGRAMS = {"Xvfb": "xvfb", "jackd": "jackd2", "jack_rec": "jackd2"}  # and their packages
PAGE = ("Main", "ArpHeader", "ArpParamModule", "BrushModule", "SoundModule", "Popups")  # the scheme's files
ROWS, COLUMNS = 16, 16  # of the roll as it opens
SMALLEST, DIALOGUE = 800, 400  # pixels across, of an editor and of the dialogue for devices


class Editor:
    """The program's window, and the parts in it by name."""

    def __init__(self, display, scheme, pictures):
        self.display, self.pictures = display, pictures
        self.entries = {}
        for name in PAGE:
            self.entries |= json.loads((scheme / f"{name}.json").read_text(encoding="utf-8"))

        self.window = wait_for(lambda: next((w for w in display.windows() if display.place_of(w)[2] >= SMALLEST), None),
                               "the window")
        sleep(1.0)  # for what a start still does
        self.x, self.y, self.width, height = display.place_of(self.window)
        self.height = height / 1.12  # the keyboard strip is below
        display.focus(self.window)

    def place(self, name, across=0.5, down=0.5):
        """A point of a part, in pixels of the screen."""
        entry = self.entries[name]
        x, y = across * entry["width"], down * entry["height"]

        while "parent" in entry:
            x, y = x + entry.get("x", 0), y + entry.get("y", 0)
            entry = self.entries[entry["parent"]]

        return self.x + x * self.width / 1000, self.y + y * self.height / 1000

    def click(self, name, **where):
        self.display.click(*self.place(name, **where))
        self.display.flush(0.15)

    def cell(self, column, row):
        """In the roll, counted from its upper left corner."""
        return self.place("PianoRoll", (column + 0.3) / COLUMNS, (row + 0.5) / ROWS)

    def show(self, name):
        self.display.flush(0.3)
        if self.pictures is not None:
            self.display.picture(self.pictures / f"{name}.png")


def wait_for(find, what):
    limit = monotonic() + PATIENCE

    while monotonic() < limit:
        if found := find():
            return found
        sleep(0.1)

    raise Fault(f"{what} does not come")


def demand_that(condition, what):
    if not condition:
        raise Fault(what)


def steps_of(preset):
    """The notes of the first pattern of a preset file."""
    document = json.loads(preset.read_text(encoding="utf-8").split("\0")[0])
    return document["Patterns"]["Patterns"][0]["Pattern"]["Steps"]


@contextmanager
def display_in(folder):
    display = Display(folder)
    try:
        yield display
    finally:
        display.close()


def choose_jack(home):
    """As its dialogue for devices keeps the choice."""
    settings = home / ".config/Brenvik/Vornel/Vornel.settings"
    settings.parent.mkdir(parents=True)
    settings.write_text('''<?xml version="1.0" encoding="UTF-8"?>
<PROPERTIES><VALUE name="audioSetup">
<DEVICESETUP deviceType="JACK" audioOutputDeviceName="system" audioInputDeviceName=""
 audioDeviceRate="48000.0" audioDeviceBufferSize="256" audioDeviceOutChans="11"/>
</VALUE></PROPERTIES>
''', encoding="utf-8")


def loudest_of(recording):
    with wave.open(str(recording)) as sound:
        frames = sound.readframes(sound.getnframes())
        width = sound.getsampwidth()

    return max(abs(int.from_bytes(frames[i:i + width], "little", signed=True)) for i in range(0, len(frames), width))


def heard_level(environment, folder):
    ports = subprocess.run(["jack_lsp", "-p"], env=environment, text=True, capture_output=True, check=True,
                           timeout=time_left()).stdout.splitlines()
    outputs = [port for port, properties in zip(ports, ports[1:])
               if "output" in properties and not port.startswith(("system:", "\t"))]
    demand_that(len(outputs) >= 2, f"the program has no outputs: {ports}")
    recording = folder / "heard.wav"
    subprocess.run(["jack_rec", "-f", recording, "-d", "2", "-b", "16", *outputs[:2]], env=environment,
                   capture_output=True, timeout=time_left(), check=True)
    return loudest_of(recording)


def use(editor, environment, folder):
    display = editor.display
    editor.show("1-started")

    editor.click("ClearAll")
    for column, row in ((0, 7), (2, 6), (4, 5), (6, 4)):
        display.click(*editor.cell(column, row))
    editor.show("2-drawn")

    for key in ("a", "d", "g"):  # a chord on the computer's keyboard
        display.key(key, True)
    display.flush(0.5)
    demand_that(heard_level(environment, folder) > 300, "nothing is heard")
    editor.show("3-playing")
    for key in ("a", "d", "g"):
        display.key(key, False)

    def paint(tool, column, row, pixels):
        editor.click(tool)
        x, y = editor.cell(column, row)
        display.drag([(x, y), (x, y + pixels / 2), (x, y + pixels)])

    paint("BrushVelocity", 0, 7, 60)
    paint("BrushChance", 2, 6, 75)
    editor.click("BrushPencil")
    editor.show("4-changed")

    display.press("Control_L", "Shift_L", "s")
    display.flush(0.4)
    display.press("Control_L", "a")
    display.write("my first")
    editor.show("5-saving")
    display.press("Return")
    preset = wait_for(lambda: next(folder.rglob("my first.json"), None), "the saved preset")
    steps = steps_of(preset)
    demand_that(len(steps) == 4, f"four notes were drawn, saved are {steps}")
    velocities = [step["Event"]["velocity"] for step in steps]
    demand_that(min(velocities) < 0.6 < max(velocities), f"one note was made softer: {velocities}")
    chances = [step.get("Play", {}).get("chance", 1.0) for step in steps]
    demand_that(min(chances) < 0.9, f"one note was given a chance: {chances}")

    editor.click("PresetNext")
    display.press("Control_L", "f")
    display.flush(0.4)
    display.write("my first")
    editor.show("6-found")
    display.press("Return")
    display.press("Escape")
    editor.show("7-loaded")

    display.click(*editor.cell(10, 3))
    display.press("Control_L", "z")
    display.press("Control_L", "s")
    display.flush(0.5)
    demand_that(len(steps_of(preset)) == 4, "the note that was taken back is still there")
    editor.show("8-undone")


def look_at_devices(editor):
    """Their dialogue has the editor's font, so that it can be read where none is installed."""
    display, place = editor.display, editor.display.place_of(editor.window)
    before = set(display.windows())
    display.click(editor.x + place[2] * 0.1, editor.y + place[3] * 0.926)
    dialogue = wait_for(lambda: next((w for w in display.windows() if w not in before
                                      and display.place_of(w)[2] >= DIALOGUE), None), "the dialogue for devices")
    display.flush(1.0)
    editor.show("9-devices")
    x, y, width, height = display.place_of(dialogue)
    for what, left, top, across, down in (("labels", 0.0, 0.0, 0.3, 1.0), ("lists", 0.4, 0.69, 0.5, 0.08)):
        place = (x + left * width, y + top * height, across * width, down * height)
        demand_that(len(display.colours_in(*map(int, place))) > 10, f"the dialogue for devices has no {what}")
    display.focus(dialogue)
    display.press("Escape")


def end_from_outside(program, folder):
    """As at the end of a session: what was being done is there the next time."""
    program.terminate()
    demand_that(program.wait(timeout=20) == 0, "the program did not end cleanly when it was told to")
    kept = any("filterState" in settings.read_text() for settings in folder.rglob("*.settings"))
    demand_that(kept, "what was done is lost when the program is ended from outside")


def check(program, scheme, pictures):
    demand(PROGRAMS)

    with jack_server_name() as server, tempfile.TemporaryDirectory() as home:
        folder = Path(home)
        environment = private_environment(server, folder)
        choose_jack(folder)

        with jack_server(server, environment, folder), display_in(folder) as display:
            environment |= {"DISPLAY": display.name, "JUCE_FONT_PATH": str(folder / "no fonts")}

            with running([program], environment, folder) as running_program:
                editor = Editor(display, scheme, pictures)
                use(editor, environment, folder)
                look_at_devices(editor)
                demand_that(running_program.poll() is None, "the program ended by itself")
                end_from_outside(running_program, folder)


def main():
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("ended from outside"))

    if not os.access(SHARED_MEMORY, os.W_OK):
        print(f"Skipped: JACK needs {SHARED_MEMORY}, and nothing can be written there.")
        return SKIPPED

    pictures = Path(sys.argv[3]) if len(sys.argv) > 3 else None

    try:
        check(sys.argv[1], Path(sys.argv[2]), pictures)
    except Unavailable as reason:
        print(f"Skipped: {reason}")
        return SKIPPED
    except (Fault, subprocess.SubprocessError) as fault:
        print(fault)
        return 1

    return 0


if __name__ == "__main__":
    sys.exit(main())
