#!/usr/bin/env python3
"""Writes the presets of Resources/Factory/ and their list, Docs/factory-presets.md, from what scores/ holds.

    make_presets.py            write the files
    make_presets.py --check    fail if a file differs from what would be written, or should not be there
"""

import sys
from pathlib import Path

from scores.document import file_bytes, pattern_document, sound_document
from scores.listing import listing
from scores.patterns import PATTERNS
from scores.sounds import SOUNDS

ROOT = Path(__file__).resolve().parent.parent
FACTORY = ROOT / "Resources" / "Factory"


def placed(folder, categories, document):
    return {folder / category / f"{preset.name}.json": file_bytes(document(preset))
            for category, presets in categories.items() for preset in presets}


def made_files():
    """Every file by its path, as bytes."""
    return {**placed(FACTORY / "Presets", PATTERNS, pattern_document),
            **placed(FACTORY / "Sounds", SOUNDS, sound_document),
            ROOT / "Docs" / "factory-presets.md": listing(PATTERNS, SOUNDS).encode()}


def strangers(files):
    """What lies in the folders without being made here."""
    return sorted(path for path in set(FACTORY.rglob("*")) - set(files) if path.is_file())


def faults(files):
    for path, data in files.items():
        if not path.is_file():
            yield f"{path.name} is missing"
        elif path.read_bytes() != data:
            yield f"{path.name} differs from what Tools/make_presets.py writes"

    for path in strangers(files):
        yield f"{path.name} has no score"


def main():
    files = made_files()

    if "--check" in sys.argv:
        sys.exit("\n".join(faults(files)) or 0)

    for path in strangers(files):
        path.unlink()

    for path, data in files.items():
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)


if __name__ == "__main__":
    main()
