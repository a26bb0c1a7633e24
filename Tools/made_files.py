"""Writes files that a script makes, or holds those in the project against them: what make_presets.py and make_chords.py
share.
"""

import sys


def strangers(files, folder):
    """What lies in the folder without being made."""
    return sorted(path for path in set(folder.rglob("*")) - set(files) if path.is_file())


def faults(files, folder, script, source):
    for path, data in files.items():
        if not path.is_file():
            yield f"{path.name} is missing"
        elif path.read_bytes() != data:
            yield f"{path.name} differs from what Tools/{script} writes"

    for path in strangers(files, folder):
        yield f"{path.name} has no {source}"


def run(files, folder, script, source):
    """The main function of a script. The files are bytes by their paths, and the folder has no others; what each is
    made from is a source, such as "score".
    """
    if "--check" in sys.argv:
        sys.exit("\n".join(faults(files, folder, script, source)) or 0)

    for path in strangers(files, folder):
        path.unlink()

    for path, data in files.items():
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)
