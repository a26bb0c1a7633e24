#!/usr/bin/env python3
"""Plays the built LV2 in jalv on a JACK server of its own, which needs neither sound card nor real-time rights.

    check_in_jalv.py BUNDLE URI TESTS

TESTS is the program that holds the tests; each gets a new jalv. The end is 0 if all pass, 1 if one fails or a
program is missing, and 77 (skipped) where JACK cannot run at all.
"""

import os
import secrets
import signal
import subprocess
import sys
import tempfile
from pathlib import Path

from sessions import SHARED_MEMORY, SKIPPED, Fault, demand, jack_server, private_environment, running, time_left

PROGRAMS = {"jackd": "jackd2", "jack_wait": "jackd2", "jalv": "jalv"}  # and their packages


def names_of(tests, environment):
    listed = subprocess.run([tests, "--gtest_list_tests"], env=environment, text=True, capture_output=True,
                            timeout=time_left(), check=True).stdout.splitlines()
    suite = ""

    for line in listed:
        if line.startswith(" "):
            yield suite + line.strip()
        else:
            suite = line.strip()


def run(test, tests, uri, client, environment, folder):
    with running(["jalv", "-i", "-x", "-n", client, uri], environment, folder) as jalv:
        # The tests wait for jalv's ports, and tell when they do not come.
        subprocess.run([tests, f"--gtest_filter={test}", "--gtest_brief=1"], timeout=time_left(), check=True,
                       env=environment | {"VORNEL_JACK_CLIENT": client})

        if jalv.poll() is not None:
            raise Fault(f"jalv ended by itself with {jalv.returncode}")


def check(bundle, uri, tests):
    demand(PROGRAMS)

    # Clients are named after it, since two of one name get in each other's way even on different servers.
    server = f"vornel-{secrets.token_hex(4)}"

    with tempfile.TemporaryDirectory() as home:
        folder = Path(home)
        environment = private_environment(server, folder) | {"LV2_PATH": str(bundle.parent)}

        with jack_server(server, environment, folder):
            for number, test in enumerate(names_of(tests, environment)):
                print(test, flush=True)
                run(test, tests, uri, f"{server}-{number}", environment, folder)


def main():
    # What ends us ends the server, too.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("ended from outside"))

    if not os.access(SHARED_MEMORY, os.W_OK):
        print(f"Skipped: JACK needs {SHARED_MEMORY}, and nothing can be written there.")
        return SKIPPED

    try:
        check(Path(sys.argv[1]).resolve(), sys.argv[2], sys.argv[3])
    except (Fault, subprocess.SubprocessError) as fault:
        print(fault)
        return 1

    return 0


if __name__ == "__main__":
    sys.exit(main())
