#!/usr/bin/env python3
"""Exports a song from Ardour in which both formats play the same keys, lets Ardour load and save it, and exports it again.

    check_in_ardour.py LV2_BUNDLE VST3_BUNDLE LV2_URI

The song changes its time signature and its tempo on the way. Both formats must sound alike to the sample, both exports
too, and what Ardour has saved of each plug-in must stay what it was. The end is 0 if all is well, 1 if not, and 77
(skipped) where there is no Ardour.
"""

import array
import base64
import json
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET
from itertools import count
from pathlib import Path

from sessions import SKIPPED, Fault, private_environment

PROGRAMS = ("ardour7-lua", "ardour7-export", "/usr/lib/ardour7/ardour-vst3-scanner")
LIBRARIES = "/usr/lib/ardour7"
TICKS = 1920  # of Ardour's in a quarter note
CLOCKS = 282240000  # of Ardour's in a second
QUARTERS = 20  # that the keys are held
CHORD = (60, 64, 67)
TRANSPOSE = 5  # a fourth up
LONGEST_CALL = 60  # seconds
LOUDEST_DIFFERENCE = 1e-5
SESSION = "song"

MAKE = """
AudioEngine:set_backend ("None (Dummy)", "", "")
session = create_session ("{folder}", "{session}", 48000)
assert (session)

local function add_track (name, id, type)
    local info = ARDOUR.LuaAPI.new_plugin_info (id, type)
    assert (info and not info:isnil (), "no plug-in for " .. name)
    local midi = ARDOUR.ChanCount (ARDOUR.DataType ("midi"), 1)
    local stereo = ARDOUR.ChanCount (ARDOUR.DataType ("audio"), 2)
    local tracks = session:new_midi_track (midi, stereo, false, info, nil, nil, 1, name,
        ARDOUR.PresentationInfo.max_order, ARDOUR.TrackMode.Normal, true, true)
    return tracks:front ():nth_plugin (0)
end

add_track ("LV2", "{lv2}", ARDOUR.PluginType.LV2)
local vst3 = add_track ("VST3", "{vst3}", ARDOUR.PluginType.VST3)
assert (ARDOUR.LuaAPI.set_processor_param (vst3, 0, {transpose}))
session:save_state ("")
close_session ()
quit ()
"""

SAVE_AGAIN = """
AudioEngine:set_backend ("None (Dummy)", "", "")
session = load_session ("{folder}", "{session}")
assert (session)
session:save_state ("")
close_session ()
quit ()
"""


def single(number):
    """In the precision that hosts keep parameters in."""
    return struct.unpack("<f", struct.pack("<f", number))[0]


TRANSPOSE_OF_HOST = single((TRANSPOSE + 12) / 24)


class Crash(Exception):
    """Of Ardour's, which happens without us, too."""


class Ardour:
    def __init__(self, home, environment):
        self.home, self.environment = home, environment
        self.session = home / "session"

    def call(self, *command):
        result = subprocess.run(command, env=self.environment, cwd=self.home, text=True, capture_output=True,
                                timeout=LONGEST_CALL, check=False)
        said = result.stdout + result.stderr

        if result.returncode < 0 or result.returncode > 128:
            raise Crash(f"{command[0]} crashed with {result.returncode}:\n{said}")

        if result.returncode != 0:
            raise Fault(f"{command[0]} ended with {result.returncode}:\n{said}")

        return said

    def run(self, script, **values):
        file = self.home / "script.lua"
        file.write_text(script.format(folder=self.session, session=SESSION, **values), encoding="utf-8")
        said = self.call("ardour7-lua", file)

        if "Error:" in said:
            raise Fault(f"Ardour refuses the script:\n{said}")

    def vst3_id(self, bundle):
        """As the scanner finds it, which also tells Ardour of it."""
        said = self.call(PROGRAMS[2], "-f", bundle)
        infos = list((self.home / ".cache").rglob("*.v3i"))

        if len(infos) != 1:
            raise Fault(f"The scanner finds no VST3:\n{said}")

        return ET.parse(infos[0]).getroot().find("VST3Info").get("uid")

    def export(self, name):
        file = self.home / f"{name}.wav"
        self.call("ardour7-export", "-b", "float", "-o", file, self.session, SESSION)
        return channels_of(file)


def channels_of(wav):
    """Of 32 bits, stereo."""
    data = wav.read_bytes()
    samples = array.array("f", data[data.index(b"data") + 8:])
    return samples[0::2], samples[1::2]


def keys():
    """A MIDI file with one held chord."""
    def length(number):
        return (length(number >> 7)[:-1] + bytes([number >> 7 & 127 | 128]) if number > 127 else b"") + bytes([number & 127])

    on = b"".join(bytes([0, 0x90, key, 100]) for key in CHORD)
    off = b"".join(length(0 if i else QUARTERS * TICKS) + bytes([0x80, key, 64]) for i, key in enumerate(CHORD))
    track = on + off + bytes([0, 0xFF, 0x2F, 0])
    return b"MThd" + struct.pack(">IHHH", 6, 0, 1, TICKS) + b"MTrk" + struct.pack(">I", len(track)) + track


def connect(session):
    """Gives each track its own side of the export. Ardour's own connections are not always there when it saves."""
    path = session / f"{SESSION}.ardour"
    tree = ET.parse(path)

    for port in tree.getroot().iter("Port"):
        for side, track in enumerate(("LV2", "VST3"), start=1):
            for one, other in ((f"{track}/audio_out 1", f"Master/audio_in {side}"),
                               (f"Master/audio_in {side}", f"{track}/audio_out 1"),
                               (f"{track}/audio_out 2", None)):
                if port.get("name") == one:
                    port[:] = [ET.Element("Connection", other=other)] if other else []

    tree.write(path, xml_declaration=True, encoding="UTF-8")


def compose(session):
    """Gives both tracks the same keys."""
    path = session / f"{SESSION}.ardour"
    tree = ET.parse(path)
    root = tree.getroot()
    new_id = map(str, count(int(root.get("id-counter"))))
    (session / f"interchange/{session.name}/midifiles/keys.mid").write_bytes(keys())

    for playlist in root.iter("Playlist"):
        source, length = next(new_id), f"b{QUARTERS * TICKS}@b0"
        ET.SubElement(root.find("Sources"), "Source", {
            "name": "keys.mid", "type": "midi", "flags": "", "id": source, "origin": "keys.mid", "channel": "0"})
        ET.SubElement(playlist, "Region", {
            "name": "keys", "type": "midi", "id": next(new_id), "start": "b0", "length": length, "source-0": source,
            "master-source-0": source, "channels": "1", "opaque": "1"})

    ET.SubElement(root.find("Locations"), "Location", {
        "id": next(new_id), "name": "session", "start": "a0", "end": f"b{(QUARTERS + 2) * TICKS}",
        "flags": "IsSessionRange"})
    root.set("id-counter", next(new_id))

    # Two bars of 4/4, then of 3/4; the tempo changes a bar later.
    ET.SubElement(root.find("TempoMap/Meters"), "Meter", {
        "note-value": "4", "divisions-per-bar": "3", "sclock": str(8 * CLOCKS // 2), "quarters": "8:0",
        "bbt": "3|1|0"})
    tempo = dict(root.find("TempoMap/Tempos/Tempo").attrib)
    ET.SubElement(root.find("TempoMap/Tempos"), "Tempo", tempo | {
        "npm": "133", "enpm": "133", "sclock": str(11 * CLOCKS // 2), "quarters": "11:0", "bbt": "4|1|0"})

    tree.write(path, xml_declaration=True, encoding="UTF-8")


# JUCE's own way to write bytes as text: six bits a character, the lowest first.
BASE64 = ".ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+"


def bytes_from(text):
    size, characters = text.split(".", 1)
    bits = sum(BASE64.index(character) << 6 * i for i, character in enumerate(characters))
    return (bits & (1 << 8 * int(size)) - 1).to_bytes(int(size), "little")


def text_from(data):
    bits, characters = int.from_bytes(data, "little"), []
    binary = bin(bits)[2:].zfill(8 * len(data) + (-8 * len(data)) % 6)

    for end in range(len(binary), 0, -6):
        characters.append(BASE64[int(binary[end - 6:end], 2)])

    return f"{len(data)}." + "".join(characters)


def document_in(chunk):
    start = chunk.index(b"VC2!") + 8
    document = json.JSONDecoder().raw_decode(chunk[start:].decode("utf-8", errors="replace"))[0]
    document["Patterns"]["Sequencer"]["Transport"].pop("BPM", None)  # follows the host
    return document


class SavedStates:
    """What Ardour has saved of both plug-ins."""

    STRING = re.compile(r'(StateString> ")([^"]*)')

    def __init__(self, session):
        root = ET.parse(session / f"{SESSION}.ardour").getroot()
        self.lv2 = session.joinpath("plugins", root.find(".//Processor[@type='lv2']").get("id"),
                                    root.find(".//lv2").get("state-dir"), "state.ttl")
        self.vst3 = base64.b64decode(root.find(".//vst3/chunk").text)

    def documents(self):
        text = self.lv2.read_text(encoding="utf-8")
        return document_in(bytes_from(self.STRING.search(text).group(2))), document_in(self.vst3)

    def transpose_lv2(self):
        """Its parameters are none that a script of Ardour's can set."""
        document = self.documents()[0]
        document["Params"]["Transpose"] = str(TRANSPOSE)
        document["FlatParams"][0] = TRANSPOSE_OF_HOST
        chunk = json.dumps(document).encode() + b"\0"
        encoded = text_from(b"VC2!" + struct.pack("<i", len(chunk)) + chunk)
        text = self.lv2.read_text(encoding="utf-8")
        self.lv2.write_text(self.STRING.sub(lambda match: match.group(1) + encoded, text), encoding="utf-8")


def demand(condition, what):
    if not condition:
        raise Fault(what)


def demand_alike(first, second, what):
    loudest = max(map(abs, first))
    difference = max(abs(a - b) for a, b in zip(first, second))
    where = next((i for i, (a, b) in enumerate(zip(first, second)) if abs(a - b) > LOUDEST_DIFFERENCE), None)
    demand(loudest > 0.01, f"{what}: silent")
    demand(where is None and len(first) == len(second),
           f"{what}: different from sample {where} on, by up to {difference} of {loudest}")


def check(lv2, vst3, uri):
    with tempfile.TemporaryDirectory() as folder:
        home = Path(folder)
        (home / ".vst3").mkdir()
        (home / ".vst3" / vst3.name).symlink_to(vst3)
        ardour = Ardour(home, private_environment("none", home) | {
            "LV2_PATH": str(lv2.parent), "LD_LIBRARY_PATH": LIBRARIES})

        ardour.run(MAKE, lv2=uri, vst3=ardour.vst3_id(home / ".vst3" / vst3.name), transpose=TRANSPOSE_OF_HOST)
        SavedStates(ardour.session).transpose_lv2()
        compose(ardour.session)
        connect(ardour.session)
        states = SavedStates(ardour.session).documents()
        left, right = ardour.export("first")
        demand_alike(left, right, "LV2 and VST3")

        ardour.run(SAVE_AGAIN)
        connect(ardour.session)
        saved = SavedStates(ardour.session).documents()

        for name, before, after in zip(("LV2", "VST3"), states, saved):
            demand(before["FlatParams"][0] == TRANSPOSE_OF_HOST, f"{name}: the transposition is not in its state")
            demand(before == after, f"{name}: its state is another one after Ardour has loaded and saved it")

        for name, before, after in zip(("LV2", "VST3"), (left, right), ardour.export("second")):
            demand_alike(before, after, f"{name}, before and after")


def main():
    missing = [program for program in PROGRAMS if shutil.which(program) is None]

    if missing:
        print(f"Skipped: there is no {missing[0]}; install the package ardour.")
        return SKIPPED

    lv2, vst3, uri = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve(), sys.argv[3]

    try:
        try:
            check(lv2, vst3, uri)
        except Crash as crash:
            print(f"{crash}\nOnce more.")
            check(lv2, vst3, uri)
    except (Crash, Fault, subprocess.SubprocessError) as fault:
        print(fault)
        return 1

    return 0


if __name__ == "__main__":
    sys.exit(main())
