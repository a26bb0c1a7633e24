#!/usr/bin/env python3
"""Holds a finished plug-in to the names that it may show its host: each of them, and none besides.

    Tools/check_exports.py LIBRARY NAME...

Reads ELF and Mach-O libraries through nm, and Windows libraries by itself.
"""

import subprocess
import sys
from pathlib import Path
from struct import unpack_from


class Unreadable(Exception):
    pass


def exports_of(path):
    data = Path(path).read_bytes()
    return windows_exports(data) if data[:2] == b"MZ" else unix_exports(path, data[:4] == b"\x7fELF")


def unix_exports(path, is_elf):
    options = ["--dynamic", "--defined-only"] if is_elf else ["--extern-only", "--defined-only"]
    listed = subprocess.run(["nm", "-P", *options, str(path)], text=True, capture_output=True, check=False)

    if listed.returncode != 0:
        raise Unreadable(listed.stderr.strip())

    names = {line.split()[0].split("@")[0] for line in listed.stdout.splitlines() if line.strip()}
    return names if is_elf else {name.removeprefix("_") for name in names}


def windows_exports(data):
    """The names in the export table, which the first data directory of the optional header points to."""
    (header,) = unpack_from("<I", data, 0x3C)
    sections, optional_size = unpack_from("<6xH12xH", data, header)
    optional = header + 24
    (magic,) = unpack_from("<H", data, optional)
    table, _ = unpack_from("<II", data, optional + (112 if magic == 0x20B else 96))

    def offset_of(address):
        for i in range(sections):
            size, start, raw_size, raw = unpack_from("<IIII", data, optional + optional_size + 40 * i + 8)

            if start <= address < start + max(size, raw_size):
                return raw + address - start

        raise Unreadable(f"no section holds {address:#x}")

    if table == 0:
        return set()

    count, _, names = unpack_from("<24xIII", data, offset_of(table))
    places = unpack_from(f"<{count}I", data, offset_of(names))
    return {text_at(data, offset_of(place)) for place in places}


def text_at(data, offset):
    return data[offset:data.index(b"\0", offset)].decode("ascii", "replace")


def main():
    library, wanted = sys.argv[1], set(sys.argv[2:])

    try:
        found = exports_of(library)
    except (Unreadable, OSError) as error:
        print(f"{library}: {error}")
        return 1

    for name in sorted(wanted - found):
        print(f"{library} does not export {name}.")

    for name in sorted(found - wanted):
        print(f"{library} exports {name}, which its host must not see.")

    return 0 if found == wanted else 1


if __name__ == "__main__":
    sys.exit(main())
