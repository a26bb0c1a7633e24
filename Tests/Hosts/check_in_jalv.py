#!/usr/bin/env python3
"""Plays the built LV2 in jalv on a JACK server of its own, which needs neither sound card nor real-time rights.

    check_in_jalv.py BUNDLE URI TESTS [NAME]

TESTS is the program that holds the tests; each gets a new jalv. With a name, only tests with it in theirs are run. The
end is 0 if all pass, 1 if one fails or a program is missing, and 77 (skipped) where JACK cannot run at all.
"""

import os
import signal
import subprocess
import sys
import tempfile
from pathlib import Path
from time import monotonic, sleep

from sessions import (
    PATIENCE,
    SHARED_MEMORY,
    SKIPPED,
    Fault,
    demand,
    jack_server,
    jack_server_name,
    private_environment,
    running,
    time_left,
)

PROGRAMS = {"jackd": "jackd2", "jack_wait": "jackd2", "jalv": "jalv"}  # and their packages
PRESET = "presets/patterns-down-the-stairs"  # which tests of the suite JalvPreset find loaded


def names_of(tests, environment):
    listed = subprocess.run([tests, "--gtest_list_tests"], env=environment, text=True, capture_output=True,
                            timeout=time_left(), check=True).stdout.splitlines()
    suite = ""

    for line in listed:
        if line.startswith(" "):
            yield suite + line.strip()
        else:
            suite = line.strip()


def choose_preset(jalv, uri, log):
    """As a user does who sees the host's list. jalv tells of the parameters when it has loaded a preset."""
    jalv.stdin.write(f"presets\npreset {uri}/{PRESET}\n".encode())
    jalv.stdin.flush()
    limit = monotonic() + PATIENCE

    while "_Transpose = " not in log.read_text(errors="replace"):
        if monotonic() > limit:
            raise Fault("jalv does not load a preset.")

        sleep(0.05)

    if f"{uri}/{PRESET} (Down the Stairs)" not in log.read_text(errors="replace"):
        raise Fault("jalv does not list the preset.")


def run(test, tests, uri, client, environment, folder):
    has_preset = test.startswith("JalvPreset.")
    console = ["stdbuf", "-oL", "jalv"] if has_preset else ["jalv", "-i"]

    with running([*console, "-x", "-n", client, uri], environment, folder, subprocess.PIPE) as jalv:
        if has_preset:
            choose_preset(jalv, uri, folder / "stdbuf.log")

        # The tests wait for jalv's ports, and tell when they do not come.
        subprocess.run([tests, f"--gtest_filter={test}", "--gtest_brief=1"], timeout=time_left(), check=True,
                       env=environment | {"VORNEL_JACK_CLIENT": client})

        if jalv.poll() is not None:
            raise Fault(f"jalv ended by itself with {jalv.returncode}")


def check(bundle, uri, tests, name=""):
    demand(PROGRAMS)

    # Clients are named after it, since two of one name get in each other's way even on different servers.
    with jack_server_name() as server, tempfile.TemporaryDirectory() as home:
        folder = Path(home)
        environment = private_environment(server, folder) | {"LV2_PATH": str(bundle.parent)}

        with jack_server(server, environment, folder):
            wanted = [test for test in names_of(tests, environment) if name in test]

            for number, test in enumerate(wanted):
                print(test, flush=True)
                run(test, tests, uri, f"{server}-{number}", environment, folder)


def main():
    # What ends us ends the server, too.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("ended from outside"))

    if not os.access(SHARED_MEMORY, os.W_OK):
        print(f"Skipped: JACK needs {SHARED_MEMORY}, and nothing can be written there.")
        return SKIPPED

    try:
        check(Path(sys.argv[1]).resolve(), *sys.argv[2:])
    except (Fault, subprocess.SubprocessError) as fault:
        print(fault)
        return 1

    return 0


if __name__ == "__main__":
    sys.exit(main())
