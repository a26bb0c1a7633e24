#!/usr/bin/env python3
"""Writes the presets of Resources/Factory/ and their list, Docs/factory-presets.md, from what scores/ holds.

    make_presets.py            write the files
    make_presets.py --check    fail if a file differs from what would be written, or should not be there
"""

from pathlib import Path

from made_files import run
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


if __name__ == "__main__":
    run(made_files(), FACTORY, "make_presets.py", "score")
