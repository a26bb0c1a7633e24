#!/usr/bin/env python3
"""Packs the files of a folder that a list names, so that equal files always give the same archive.

    zip_folder.py FOLDER LIST ARCHIVE

The list holds paths, one a line; entries are named by their path within the folder.
"""

import sys
from pathlib import Path
from zipfile import ZIP_DEFLATED, ZipFile, ZipInfo

UNIX = 3  # the system that the permissions are meant for
READABLE = 0o100644 << 16


def entry(name):
    """Its time is the earliest that the format knows: a file's own differs with each clone."""
    info = ZipInfo(name, (1980, 1, 1, 0, 0, 0))
    info.compress_type = ZIP_DEFLATED
    info.create_system = UNIX
    info.external_attr = READABLE
    return info


def main(folder, file_list, archive):
    paths = {Path(line).relative_to(folder).as_posix(): Path(line)
             for line in Path(file_list).read_text(encoding="utf-8").splitlines() if line}

    with ZipFile(archive, "w") as packed:
        for name in sorted(paths):
            packed.writestr(entry(name), paths[name].read_bytes())


if __name__ == "__main__":
    main(*sys.argv[1:])
