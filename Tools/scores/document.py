"""Preset files as the program writes them: the keys of a document, and its bytes."""

import json
import re
from pathlib import Path

from .notation import single

PROJECT = Path(__file__).resolve().parent.parent.parent / "CMakeLists.txt"
VERSION = re.search(r"^ +VERSION ([\d.]+)", PROJECT.read_text(encoding="utf-8"), re.MULTILINE)[1]  # of the writer
NEVER_READ = [{"denum": 4, "num": 2}]  # the bars beside a length that is given in quarters


def on_off(is_on):
    return "On" if is_on else "Off"


def decimal(number):
    return f"{number:.2f}"


def decibels(number):
    return f"{number:.2f} dB"


def bars(pairs):
    return {"Bars": [{"denum": denominator, "num": numerator} for numerator, denominator in pairs]}


def header(preset, product):
    return {"dirty": False, "id": preset.stamp, "name": preset.name, "product": product, "version": VERSION}


def play(note):
    """Chance and variation, which are left out where a note has neither."""
    if note.chance == 100 and note.spread == 0:
        return {}

    return {"Play": {"chance": single(note.chance / 100), "spreadHigh": single(note.spread / 100),
                     "spreadLow": -single(note.spread / 100) + 0.0}}


def step(note, columns):
    return {"Event": {"channel": 1, "noteNum": note.row, "velocity": single(note.velocity / 100)},
            "Time": {"length": note.length / columns, "start": note.column / columns},
            "enabled": True, **play(note)}


def quarters(slot):
    length = sum(numerator * 4.0 / denominator for numerator, denominator in slot.bars)
    return length * (slot.columns if slot.time_is_of_a_column else 1.0)


def pattern(slot):
    drawing = {"Duration": {"Time": {"Bars": NEVER_READ}, "duration": quarters(slot), "mode": 1},
               "Steps": [step(note, slot.columns) for note in slot.notes] or None,
               "grid": slot.columns, "length": 1.0, "name": ""}
    return {"Multiply": slot.time_is_of_a_column, "Pattern": drawing, "Time": bars(slot.bars)}


def oscillator(osc, sound):
    return {"Enable": on_off(osc.is_on), "Octave": str(osc.octave), "Tune": str(osc.tune), "Type": osc.table,
            "Volume": decibels(osc.level),
            "Unison": {"Unison": str(sound.unison), "UnisonDepth": decimal(sound.width),
                       "UnisonSpread": decimal(sound.width)}}


def synth(sound):
    oscillators = {f"OSC {index}": oscillator(osc, sound) for index, osc in enumerate(sound.oscillators)}
    return {"ADSR": {"Attack": decimal(sound.attack), "Decay": decimal(sound.decay),
                     "Release": decimal(sound.release), "Sustain": decimal(sound.sustain)},
            "Delay": {"Analog": decimal(sound.delay.dark), "Feedback": decimal(sound.delay.feedback),
                      "Mix": decimal(sound.delay.mix), "Mode": sound.delay.mode,
                      "Time": decimal(sound.delay.seconds), "TimeSync": sound.delay.note_value},
            "Filter": {"Cutoff": decimal(sound.cutoff), "Enable": on_off(sound.filter_is_on),
                       "KeyTracking": decimal(sound.tracking), "Resonance": decimal(sound.resonance)},
            "Oscillators": {**oscillators, "Sync": "Off"},
            "Sub": {"SubOctave": str(sound.sub_octave), "SubVolume": decibels(sound.sub)}}


def sound_params(sound):
    return {"Master": decibels(sound.master), "SynthEnable": "On", "Unison": str(sound.unison),
            "UnisonAmount": decimal(sound.width), "Synth": synth(sound)}


def sound_document(sound):
    return {**header(sound, "Vornel Sounds"), "Params": sound_params(sound)}


def pattern_params(preset):
    if preset.sound is None:
        return None

    return {"Quantize": preset.quantise, "Retrigger": on_off(preset.retrigger), "Swing": f"{preset.swing}%",
            "SwingRef": preset.swing_note, "Transpose": "0", "Synth": sound_params(preset.sound)}


def pattern_document(preset):
    transport = {"BPM": {"value": str(preset.tempo)}, "Swing": {"Value": f"{preset.swing}%"},
                 "SwingRef": {"Value": preset.swing_note}}
    return {**header(preset, "Vornel"), "Params": pattern_params(preset),
            "Patterns": {"Patterns": [pattern(slot) for slot in preset.slots],
                         "Sequencer": {"Transport": transport}}}


def file_bytes(document):
    """Sorted keys, an indent of four, a line feed, and the NUL that ends every preset file."""
    return (json.dumps(document, indent=4, sort_keys=True) + "\n\0").encode()
