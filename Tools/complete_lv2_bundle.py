#!/usr/bin/env python3
"""Completes the LV2 bundle that JUCE has described: with the factory presets, in the list that hosts keep themselves,
with what the values of parameters in whole numbers are called, and with the licence.

    complete_lv2_bundle.py FACTORY BUNDLE URI [--patterns]

FACTORY holds "Presets" (patterns, some with the sound they were drawn for) and "Sounds". In a host's list each does what
it does in the plug-in's own: a pattern comes with its sound or leaves the sound alone, a sound leaves the patterns alone.
For that a preset is a state of the plug-in that holds no more than its file does. Each has a file in the folder
"presets"; the manifest names them, with their banks.

With --patterns the sounds are left out, and the class says so: for a plug-in that has no sound.
"""

import argparse
import json
import re
import shutil
from dataclasses import dataclass
from pathlib import Path
from struct import pack

KINDS = ("Presets", "Patterns"), ("Sounds", "Sounds")  # the folder of the files, and what hosts show


@dataclass(frozen=True)
class Preset:
    kind: str  # "Patterns" or "Sounds"
    category: str  # its folder; may be empty
    name: str
    state: bytes

    @property
    def identifier(self):
        """What hosts remember: it changes with the name only."""
        return f"{self.kind}-{self.name}".lower().replace(" ", "-")

    @property
    def label(self):
        """Many hosts show one list without banks: the sounds stay together in it."""
        return f"Sound - {self.name}" if self.kind == "Sounds" else self.name

    @property
    def bank(self):
        return f"{self.kind}: {self.category}" if self.category else ""


def presets_of(factory, with_sounds):
    for folder, kind in KINDS[: 2 if with_sounds else 1]:
        root = factory / folder

        for path in sorted(root.rglob("*.json")):
            category = path.parent.relative_to(root).as_posix()
            document = json.loads(path.read_text(encoding="utf-8").rstrip("\0"))
            yield Preset(kind, "" if category == "." else category, path.stem, state_of(kind, document | {"name": path.stem}))


def state_of(kind, document):
    """The document in the container of a host's project."""
    if kind == "Sounds":
        document = {"version": document["version"], "Synth": document}
    elif document.get("Params"):  # a sound comes with it, and is called as the plug-in's own browser calls it
        document = document | {"Synth": {"version": document["version"], "name": f"from {document['name']}", "dirty": False}}

    present = {key: value for key, value in document.items() if value is not None}
    text = json.dumps(present, ensure_ascii=False, separators=(",", ":")).encode() + b"\0"
    return b"VC2!" + pack("<i", len(text)) + text


# JUCE's parameters go from 0 to 1; of those with named choices it writes the names itself.
WHOLE_NUMBERS = {
    "Transpose": (-12, 12),
    "Octave": (-3, 3),
    "Unison-Voice": (1, 2),
    "Sub-Octave": (-3, 3),
    **{f"OSC-{oscillator}-Tune": (-24, 24) for oscillator in range(4)},
}

LICENCE = "https://spdx.org/licenses/GPL-3.0-or-later"

PREFIXES = """@prefix lv2: <http://lv2plug.in/ns/lv2core#> .
@prefix pset: <http://lv2plug.in/ns/ext/presets#> .
@prefix rdf: <http://www.w3.org/1999/02/22-rdf-syntax-ns#> .
@prefix rdfs: <http://www.w3.org/2000/01/rdf-schema#> .
@prefix state: <http://lv2plug.in/ns/ext/state#> .
"""

# JUCE offers its one program as a preset, which would do nothing.
PROGRAM = re.compile(r"<[^>]*:preset1>\s+a pset:Preset ;.*?\] \.\n", re.DOTALL)


def base64(data):
    """JUCE's own: the number of bytes, then groups of six bits from the lowest on."""
    digits = ".ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+"
    text = [str(len(data)), "."]

    for start in range(0, len(data), 3):
        group = data[start:start + 3]
        bits = int.from_bytes(group, "little")
        text += (digits[bits >> shift & 63] for shift in range(0, 8 * len(group), 6))

    return "".join(text)


def quoted(text):
    return json.dumps(text, ensure_ascii=False)


def bank_uri(uri, bank):
    return f"{uri}/banks/" + re.sub("[^a-z0-9]+", "-", bank.lower())


def manifest_entry(preset, uri):
    bank = f"\tpset:bank <{bank_uri(uri, preset.bank)}> ;\n" if preset.bank else ""
    return (
        f"<{uri}/presets/{preset.identifier}>\n"
        "\ta pset:Preset ;\n"
        f"\tlv2:appliesTo <{uri}> ;\n"
        f"\trdfs:label {quoted(preset.label)} ;\n"
        f"{bank}"
        f"\trdfs:seeAlso <presets/{preset.identifier}.ttl> .\n\n"
    )


def preset_file(preset, uri):
    return (
        f"{PREFIXES}\n"
        f"<{uri}/presets/{preset.identifier}>\n"
        "\ta pset:Preset ;\n"
        f"\tlv2:appliesTo <{uri}> ;\n"
        f"\trdfs:label {quoted(preset.label)} ;\n"
        f"\tstate:state [ <{uri}:StateString> \"{base64(preset.state)}\" ] .\n"
    )


def replace_once(path, pattern, replacement):
    text, count = pattern.subn(replacement, path.read_text(encoding="utf-8"))

    if count != 1:
        raise SystemExit(f"{path}: {pattern.pattern} is there {count} times")

    path.write_text(text, encoding="utf-8")


def state_property(uri):
    """JUCE uses it without saying what it is."""
    return (
        f"\n<{uri}:StateString>\n"
        "\ta <http://www.w3.org/1999/02/22-rdf-syntax-ns#Property> , <http://www.w3.org/2002/07/owl#DatatypeProperty> ;\n"
        '\trdfs:label "State" ;\n'
        "\trdfs:range xsd:string .\n"
    )


def name_values(description, parameter, lowest, highest):
    points = (f'[\n\t\trdfs:label "{value}" ;\n\t\trdf:value {(value - lowest) / (highest - lowest):.6g} ;\n\t]'
              for value in range(lowest, highest + 1))
    end = re.compile(rf"(?<=\nplug:{parameter}\n)((?:\t.*;\n)+\tlv2:maximum 1\.0) \.\n")
    replace_once(description, end, rf"\1 ;\n\tlv2:scalePoint {', '.join(points)} .\n")


def complete(presets, bundle, uri, has_sound):
    folder = bundle / "presets"
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir()

    for preset in presets:
        (folder / f"{preset.identifier}.ttl").write_text(preset_file(preset, uri), encoding="utf-8")

    replace_once(bundle / "manifest.ttl", PROGRAM, "")
    banks = sorted({preset.bank for preset in presets if preset.bank})

    with open(bundle / "manifest.ttl", "a", encoding="utf-8") as manifest:
        manifest.writelines(manifest_entry(preset, uri) for preset in presets)
        manifest.writelines(f"<{bank_uri(uri, b)}>\n\ta pset:Bank ;\n\trdfs:label {quoted(b)} .\n\n" for b in banks)

    with open(bundle / "dsp.ttl", "a", encoding="utf-8") as description:
        description.write(state_property(uri))

    for parameter, (lowest, highest) in WHOLE_NUMBERS.items():
        name_values(bundle / "dsp.ttl", parameter, lowest, highest)

    replace_once(bundle / "dsp.ttl", re.compile("(?=\tdoap:name )"), f"\tdoap:license <{LICENCE}> ;\n")

    if not has_sound:
        replace_once(bundle / "dsp.ttl", re.compile("\ta lv2:Plugin ;"), "\ta lv2:MIDIPlugin , lv2:Plugin ;")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("factory", type=Path)
    parser.add_argument("bundle", type=Path)
    parser.add_argument("uri")
    parser.add_argument("--patterns", action="store_true")
    given = parser.parse_args()
    has_sound = not given.patterns
    complete(list(presets_of(given.factory, has_sound)), given.bundle, given.uri, has_sound)


if __name__ == "__main__":
    main()
