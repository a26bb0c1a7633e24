#!/usr/bin/env python3
"""Plays the built LV2 in jalv on a JACK server of its own, which needs neither sound card nor real-time rights.

    check_in_jalv.py BUNDLE URI TESTS

TESTS is the program that holds the tests; each gets a new jalv. The end is 0 if all pass, 1 if one fails or a
program is missing, and 77 (skipped) where JACK cannot run at all.
"""

import os
import secrets
import shutil
import signal
import subprocess
import sys
import tempfile
from contextlib import contextmanager
from pathlib import Path
from time import monotonic, sleep

SKIPPED = 77
LONGEST_RUN = 55.0  # seconds, for everything
PATIENCE = 10  # seconds, for one program to start or to end
SHARED_MEMORY = Path("/dev/shm")  # where JACK's clients and server meet
PROGRAMS = {"jackd": "jackd2", "jack_wait": "jackd2", "jalv": "jalv"}  # and their packages

deadline = monotonic() + LONGEST_RUN


class Fault(Exception):
    pass


def time_left():
    return max(0.1, deadline - monotonic())


@contextmanager
def running(command, environment, folder):
    """A program in the background. Ends it in any case, and shows what it said if something went wrong."""
    log = folder / f"{command[0]}.log"

    with open(log, "wb") as output:
        process = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL, stdout=output, stderr=output)

    try:
        yield process
    except BaseException:
        print(f"{command[0]} said:\n{log.read_text(errors='replace')}", flush=True)
        raise
    finally:
        end(process)


def end(process):
    process.terminate()

    try:
        process.wait(PATIENCE)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


def private_environment(server, bundle, folder):
    environment = {key: value for key, value in os.environ.items() if not key.startswith(("JACK_", "XDG_"))}
    environment.pop("DISPLAY", None)
    return environment | {
        "HOME": str(folder),
        "JACK_DEFAULT_SERVER": server,
        "JACK_NO_AUDIO_RESERVATION": "1",
        "JACK_NO_START_SERVER": "1",
        "LV2_PATH": str(bundle.parent),
    }


@contextmanager
def jack_server(server, environment, folder):
    command = ["jackd", "--no-realtime", "--sync", "-n", server, "-d", "dummy", "-r", "48000", "-p", "256"]

    with running(command, environment, folder) as jackd:
        wait_for(server, environment, jackd)
        yield


def wait_for(server, environment, jackd):
    limit = monotonic() + PATIENCE

    while jackd.poll() is None and monotonic() < limit:
        found = subprocess.run(["jack_wait", "-s", server, "-n", f"{server}-wait", "-c"], env=environment, text=True,
                               capture_output=True, timeout=time_left(), check=False)

        if found.stdout.startswith("running"):
            return

        sleep(0.1)

    raise Fault("The JACK server does not start.")


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
    for program, package in PROGRAMS.items():
        if shutil.which(program) is None:
            raise Fault(f"There is no {program}: install the package {package}.")

    # Clients are named after it, since two of one name get in each other's way even on different servers.
    server = f"vornel-{secrets.token_hex(4)}"

    with tempfile.TemporaryDirectory() as home:
        folder = Path(home)
        environment = private_environment(server, bundle, folder)

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
