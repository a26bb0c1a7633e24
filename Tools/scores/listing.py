"""The list of all presets for readers, Docs/factory-presets.md."""

HEAD = """\
# Factory presets

What comes with the plug-in. `Tools/make_presets.py` writes the files in `Resources/Factory` and this list from the
scores in `Tools/scores`; the build packs them into the program. A pattern preset holds eight patterns. Those marked
with a sound bring it along, the others leave yours as it is.
"""

PATTERNS = """
## Patterns

| Folder | Preset | Sound | What it does |
|---|---|---|---|
"""

SOUNDS = """
## Sounds

| Folder | Preset | What it sounds like |
|---|---|---|
"""


def rows(categories, cells):
    return "".join(f"| {' | '.join((category or '-', *cells(preset)))} |\n"
                   for category, presets in categories.items() for preset in presets)


def pattern_cells(preset):
    return preset.name, preset.sound.name if preset.sound else "-", preset.why


def sound_cells(preset):
    return preset.name, preset.why


def listing(patterns, sounds):
    return HEAD + PATTERNS + rows(patterns, pattern_cells) + SOUNDS + rows(sounds, sound_cells)
