"""Programs that tests run in the background, among them a JACK server that needs neither sound card nor rights."""

import fcntl
import os
import shutil
import subprocess
from contextlib import contextmanager
from itertools import count
from pathlib import Path
from time import monotonic, sleep

SKIPPED = 77
LONGEST_RUN = 55.0  # seconds, for everything
PATIENCE = 10  # seconds, for one program to start or to end
SHARED_MEMORY = Path("/dev/shm")  # where JACK's clients and server meet

deadline = monotonic() + LONGEST_RUN


class Fault(Exception):
    pass


def time_left():
    return max(0.1, deadline - monotonic())


@contextmanager
def running(command, environment, folder, stdin=subprocess.DEVNULL):
    """A program in the background. Ends it in any case, and shows what it said if something went wrong."""
    log = folder / f"{Path(command[0]).name}.log"

    with open(log, "wb") as output:
        process = subprocess.Popen(command, env=environment, stdin=stdin, stdout=output, stderr=output,
                                   close_fds=False)

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


def private_environment(server, folder):
    """Nothing of the user's: no folders, no display, no other JACK."""
    environment = {key: value for key, value in os.environ.items() if not key.startswith(("JACK_", "XDG_"))}
    environment.pop("DISPLAY", None)
    return environment | {
        "HOME": str(folder),
        "JACK_DEFAULT_SERVER": server,
        "JACK_NO_AUDIO_RESERVATION": "1",
        "JACK_NO_START_SERVER": "1",
    }


def demand(programs):
    """Each program with the package that brings it."""
    for program, package in programs.items():
        if shutil.which(program) is None:
            raise Fault(f"There is no {program}: install the package {package}.")


@contextmanager
def jack_server_name():
    """A name that no other run uses meanwhile, and that comes again: JACK gives the place of a server that was killed
    only to one of the same name, and has eight places."""
    for number in count():
        name = f"vornel-{os.getuid()}-{number}"

        with open(SHARED_MEMORY / f"{name}.lock", "w", encoding="utf-8") as lock:
            try:
                fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
            except BlockingIOError:
                continue

            os.set_inheritable(lock.fileno(), True)  # a server that outlives us keeps its name
            yield name
            return


@contextmanager
def jack_server(server, environment, folder):
    command = ["jackd", "--no-realtime", "--sync", "-n", server, "-d", "dummy", "-r", "48000", "-p", "256"]

    for attempt in range(2):  # where one was killed, the first only clears its place
        with running(command, environment, folder) as jackd:
            if answers(server, environment, jackd):
                yield
                return

            if attempt == 1:
                raise Fault("The JACK server does not start.")


def answers(server, environment, jackd):
    limit = monotonic() + PATIENCE

    while jackd.poll() is None and monotonic() < limit:
        found = subprocess.run(["jack_wait", "-s", server, "-n", f"{server}-wait", "-c"], env=environment, text=True,
                               capture_output=True, timeout=time_left(), check=False)

        if found.stdout.startswith("running"):
            return True

        sleep(0.1)

    return False
