#!/usr/bin/env python3
"""Installs the packages into a bare system, uses what they bring as musicians do, and removes them again.

    use_packages.py ROOT DEB TAR

ROOT is a Debian system to change root to, with /proc and /dev/shm mounted and the host's X sockets in it. What came
with the Debian package's dependencies stays for the archive, which brings none.
"""

import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path
from time import monotonic, sleep

sys.path.append(str(Path(__file__).parents[1] / "Hosts"))

from sessions import PATIENCE, Fault, end
from x11 import Display

PLUGINS = "https://brenvik.example/plugins/"  # how their URIs begin
USER = "musician"
HOME = f"/home/{USER}"
EXAMPLE = "doc/vornel/Examples/old-hundredth.mid"
HOSTS = ("jackd2", "jalv", "lilv-utils", "python3")  # and what they need would hide what the package forgot
LOADED_BY_NAME = ("libX11.so.6", "libXext.so.6", "libXcursor.so.1", "libXinerama.so.1", "libXrender.so.1",
                  "libXrandr.so.2")

# As a VST3 host does before it asks for anything.
LOAD_VST3 = """
import ctypes, sys
library = ctypes.CDLL(sys.argv[1])
library.ModuleEntry.argtypes = [ctypes.c_void_p]
library.GetPluginFactory.restype = ctypes.c_void_p
assert library.ModuleEntry(library._handle), "ModuleEntry"
assert library.GetPluginFactory(), "GetPluginFactory"
assert library.ModuleExit(), "ModuleExit"
"""

PLAY_IN_JALV = """
export JACK_NO_AUDIO_RESERVATION=1 JACK_NO_START_SERVER=1
jackd --no-realtime -d dummy -r 48000 -p 256 > /dev/null 2>&1 &
jackd=$!
jack_wait -w -t 10 > /dev/null 2>&1
(sleep 2; echo presets; echo "preset $1/presets/patterns-welcome"; sleep 3; echo quit) | timeout 30 jalv "$1" 2>&1
status=$?
kill $jackd
wait $jackd
exit $status
"""


class System:
    """A system to change root to, and who uses it."""

    def __init__(self, root, user="root", home="/root"):
        self.root, self.user, self.home = root, user, home

    def command(self, *words):
        return ["chroot", f"--userspec={self.user}", str(self.root), "env", "--chdir", self.home, *map(str, words)]

    def environment(self, **more):
        return {"PATH": "/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin", "HOME": self.home, "LC_ALL": "C.UTF-8",
                "DEBIAN_FRONTEND": "noninteractive", "DEBCONF_NOWARNINGS": "yes", **more}

    def run(self, *words, **environment):
        result = subprocess.run(self.command(*words), env=self.environment(**environment), text=True,
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                timeout=900, check=False)
        if result.returncode != 0:
            raise Fault(f"{' '.join(map(str, words))} ends with {result.returncode}:\n{result.stdout}")
        return result.stdout

    def apt(self, *words):
        return self.run("apt-get", "--quiet", "--yes", "--no-install-recommends", *words)

    def ours(self):
        """All files and folders that are called after Vornel; what it keeps for its users is theirs, and stays."""
        folders = [self.root / name for name in ("etc", "home", "opt", "root", "usr", "var/lib")]
        found = subprocess.run(["find", *folders, "-xdev", "-ipath", "*vornel*", "-not", "-path", "*/Brenvik/*"], text=True, capture_output=True,
                               check=True).stdout
        return sorted(found.replace(str(self.root), "").split("\n")[:-1])


def step(text):
    print(f"- {text}", flush=True)


def demand_that(condition, what):
    if not condition:
        raise Fault(what)


def check_libraries(system, programs):
    for program in programs:
        demand_that("not found" not in (found := system.run("ldd", program)), f"{program} misses libraries:\n{found}")

    known = system.run("ldconfig", "-p")
    missing = [name for name in LOADED_BY_NAME if name not in known]
    demand_that(not missing, f"what a window needs is missing: {missing}")


def check_tools(system, programs, share):
    for tool in Path(f"{system.root}/{programs}").glob("vornel*"):
        demand_that("Usage" in system.run(f"{programs}/{tool.name}", "--help"), f"{tool.name} tells nothing")

    system.run(f"{programs}/vornel-render", f"{share}/{EXAMPLE}", "--out-wav", f"{system.home}/played.wav")
    played = Path(f"{system.root}/{system.home}/played.wav")
    demand_that(any(played.read_bytes()[44:]), "the renderer is silent")
    played.unlink()


def check_window(system, program):
    """The program without a host shows a window with an editor, and stays."""
    with tempfile.TemporaryDirectory() as folder:
        display = Display(folder)

        try:
            process = subprocess.Popen(system.command(program), env=system.environment(DISPLAY=display.name),
                                       stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            try:
                limit = monotonic() + PATIENCE
                while monotonic() < limit and process.poll() is None:
                    if any(display.place_of(window)[2] >= 800 for window in display.windows()):
                        break
                    sleep(0.2)
                else:
                    raise Fault(f"{program} shows no window")

                sleep(3)
                demand_that(process.poll() is None, f"{program} ends by itself with {process.poll()}")
            finally:
                end(process)
        finally:
            display.close()


def check_plugins(system, vst3):
    uris = [uri for uri in system.run("lv2ls").split() if uri.startswith(PLUGINS)]
    demand_that(PLUGINS + "vornel" in uris, "no LV2 host finds the plug-in")

    for uri in uris:
        said = system.run("sh", "-c", PLAY_IN_JALV, "jalv", uri)
        demand_that("JACK Name" in said, f"jalv does not run {uri}:\n{said}")
        demand_that(f"{uri}/presets/patterns-welcome (WELCOME)" in said, f"jalv lists no presets of {uri}:\n{said}")

    bundles = Path(f"{system.root}/{vst3}")
    libraries = list(bundles.glob(f"*.vst3/Contents/{os.uname().machine}-linux/*.so"))
    demand_that(libraries, f"there is no VST3 in {vst3}")

    for library in libraries:
        system.run("python3", "-c", LOAD_VST3, f"{vst3}/{library.relative_to(bundles)}")


def check_deb(system, package):
    step(f"install {package.name} into a bare system")
    shutil.copy(package, system.root / "tmp")
    system.apt("update")
    system.apt("install", f"/tmp/{package.name}")
    files = system.run("dpkg", "--listfiles", "vornel").split("\n")
    check_libraries(system, [file for file in files if file.endswith(".so") or "/bin/" in file])
    check_tools(system, "/usr/bin", "/usr/share")

    step("start the program")
    check_window(system, "vornel")

    step("load the plug-ins")
    system.apt("install", *HOSTS)
    check_plugins(system, "/usr/lib/vst3")

    step("purge it")
    system.apt("purge", "vornel")
    demand_that(not system.ours(), f"left behind: {system.ours()}")


def check_archive(system, installer, arguments, programs, share, vst3):
    step(" ".join(["as", system.user, "install.sh", *arguments]))
    system.run(f"{installer}/install.sh", *arguments)
    system.run(f"{installer}/install.sh", *arguments)  # over itself
    check_tools(system, programs, share)
    check_window(system, f"{programs}/vornel")
    check_plugins(system, vst3)
    system.run(f"{installer}/install.sh", *arguments, "--uninstall")
    demand_that(not system.ours(), f"left behind: {system.ours()}")


def check_tar(system, package):
    step(f"unpack {package.name}")
    system.run("useradd", "--create-home", USER)
    subprocess.run(["tar", "--extract", "--file", package, "--directory", system.root / "srv"], check=True)
    installer = "/srv/" + package.name.removesuffix(".tar.gz")
    user = System(system.root, USER, HOME)
    check_archive(user, installer, [], f"{HOME}/.local/bin", f"{HOME}/.local/share", f"{HOME}/.vst3")
    check_archive(system, installer, ["--system"], "/usr/local/bin", "/usr/local/share", "/usr/local/lib/vst3")


def main():
    root, deb, tar = map(Path, sys.argv[1:])

    try:
        check_deb(System(root), deb)
        check_tar(System(root), tar)
    except (Fault, subprocess.SubprocessError) as fault:
        print(fault)
        return 1

    print("The packages are in order.")
    return 0


if __name__ == "__main__":
    sys.exit(main())
