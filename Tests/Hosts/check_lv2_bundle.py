#!/usr/bin/env python3
"""Judges an LV2 bundle as hosts do before they load it: its Turtle, and what they find: its URI, its class, its presets.

    check_lv2_bundle.py BUNDLE URI CLASS PRESETS

CLASS is the class's name, PRESETS the number of presets.
"""

import os
import re
import subprocess
import sys
from pathlib import Path

# What JUCE writes against the letter of LV2, and no host minds: the error, and a word of what follows it.
KNOWN_ERRORS = (
    ("Subject not in domain", "doap#maintainer"),
    ("Subject not in domain", "doap#release"),
    ("Subject not in domain", "lv2core#portProperty"),  # of a parameter with steps, which is no port
    ("Object not in range", "ui#noUserResize"),
    ("Object not in range", "options#interface"),
)


def output_of(*command, **environment):
    result = subprocess.run(command, env=os.environ | environment, text=True, capture_output=True, check=False)
    return result.returncode, result.stdout + result.stderr


def unknown_errors(report):
    errors = report.split("error: ")[1:]
    return [e for e in errors if not any(kind in e and word in e for kind, word in KNOWN_ERRORS)]


def listed_presets(info):
    """The labels that lv2info has listed, each on a line of its own behind the first."""
    lines = info.partition("Presets:")[2].partition("\n\tPort 0:")[0].splitlines()
    return [line.strip() for line in lines if line.strip()]


def unnamed_defaults(description):
    """Parameters whose values have names, but not that with which they begin."""
    for parameter, text in re.findall(r"^plug:(\S+)\n((?:\t.*\n)+)", description, re.MULTILINE):
        named = re.findall(r"rdf:value (\S+)", text)
        default = re.search(r"lv2:default (\S+)", text)
        if named and float(default[1]) not in map(float, named):
            yield parameter


def faults_of(bundle, uri, plugin_class, num_presets):
    turtles = sorted(bundle.rglob("*.ttl"))

    for turtle in turtles:
        # A full base lets relative names, such as that of the library, be read.
        code, report = output_of("sordi", turtle.as_posix(), turtle.as_uri())

        if code != 0 or not report.strip():
            yield f"{turtle.name} is no Turtle: {report.strip()}"

    _, report = output_of("lv2_validate", *map(str, turtles))

    if "checked" not in report:
        yield f"lv2_validate did not run: {report.strip()}"

    yield from unknown_errors(report)

    for parameter in unnamed_defaults((bundle / "dsp.ttl").read_text(encoding="utf-8")):
        yield f"the default of {parameter} is none of its named values"

    _, found = output_of("lv2ls", LV2_PATH=str(bundle.parent))

    if found.split() != [uri]:
        yield f"hosts find {found.split()}, not {uri}"

    _, info = output_of("lv2info", uri, LV2_PATH=f"{bundle.parent}:/usr/lib/lv2")

    if f"Class:             {plugin_class}\n" not in info:
        yield f"hosts do not list it as {plugin_class}"

    presets = listed_presets(info)

    if len(set(presets)) != num_presets or "WELCOME" not in presets:
        yield f"hosts list {len(set(presets))} presets, not {num_presets}: {presets}"


def main():
    bundle, uri, plugin_class, num_presets = sys.argv[1:]
    faults = list(faults_of(Path(bundle).resolve(), uri, plugin_class, int(num_presets)))
    print("\n".join(faults) or "The bundle is in order.")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
