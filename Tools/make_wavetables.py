#!/usr/bin/env python3
"""Writes the wavetables of Resources/Wavetables/ and their list, Docs/wavetables.md, from the recipes in wavetables/.

    make_wavetables.py            write the files
    make_wavetables.py --check    fail if a file differs from what would be written, or should not be there
"""

import sys
from pathlib import Path

from wavetables.cycle import samples_of, wav_file
from wavetables.listing import listing
from wavetables.recipes import CATEGORIES

ROOT = Path(__file__).resolve().parent.parent
FOLDER = ROOT / "Resources" / "Wavetables"


def made_files():
    """Every file by its path, as bytes."""
    channels = {f"{category} - {table.name}": samples_of(table.pair())
                for category, tables in CATEGORIES.items() for table in tables}
    files = {FOLDER / f"{name}.wav": wav_file(waves) for name, waves in channels.items()}
    files[ROOT / "Docs" / "wavetables.md"] = listing(CATEGORIES, channels).encode()
    return files


def faults(files):
    for path, data in files.items():
        if not path.is_file():
            yield f"{path.name} is missing"
        elif path.read_bytes() != data:
            yield f"{path.name} differs from what Tools/make_wavetables.py writes"

    for path in sorted(set(FOLDER.glob("*")) - set(files)):
        yield f"{path.name} has no recipe"


def main():
    files = made_files()

    if "--check" in sys.argv:
        sys.exit("\n".join(faults(files)) or 0)

    for path, data in files.items():
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)


if __name__ == "__main__":
    main()
