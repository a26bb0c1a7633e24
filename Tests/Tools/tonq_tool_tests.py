#!/usr/bin/env python3
"""Calls vornel-tonq as a user does: tonq_tool_tests.py PROGRAM"""

import os
import random
import struct
import sys
import unittest

from tool_calls import ToolTest

WHOLE, FLOAT, EXTENSIBLE = 1, 3, 0xFFFE
SUBFORMAT_END = bytes.fromhex("000000001000800000aa00389b71")


def chunk(name, content):
    return name + struct.pack("<I", len(content)) + content + bytes(len(content) % 2)


def wav(samples, channels, bits, tag=WHOLE, rate=48000, speakers=None, more=b""):
    frame = channels * bits // 8
    form = struct.pack("<HHIIHH", tag if speakers is None else EXTENSIBLE, channels, rate, rate * frame, frame, bits)

    if speakers is not None:
        form += struct.pack("<HHIH", 22, bits, speakers, tag) + SUBFORMAT_END

    return chunk(b"RIFF", b"WAVE" + chunk(b"fmt ", form) + more + chunk(b"data", samples))


def aiff(samples, channels, bits, rate=44100):
    """With the samples' bytes in the order of a WAV file."""
    size = bits // 8
    swapped = b"".join(samples[i:i + size][::-1] for i in range(0, len(samples), size))
    exponent = rate.bit_length() - 1
    form = struct.pack(">hIhHQ", channels, len(samples) // size // channels, bits, 16383 + exponent, rate << 63 - exponent)
    chunks = b"".join(name + struct.pack(">I", len(content)) + content + bytes(len(content) % 2)
                      for name, content in ((b"COMM", form), (b"SSND", bytes(8) + swapped)))
    return b"FORM" + struct.pack(">I", 4 + len(chunks)) + b"AIFF" + chunks


def parts(file):
    """The tag, what follows it as tuples, the speakers, and the samples of a WAV file."""
    chunks, place = {}, 12

    while place < len(file):
        name, size = struct.unpack_from("<4sI", file, place)
        chunks[name] = file[place + 8:place + 8 + size]
        place += 8 + size + size % 2

    tag, channels, rate, _, _, bits = struct.unpack_from("<HHIIHH", chunks[b"fmt "])
    speakers, tag = struct.unpack_from("<IH", chunks[b"fmt "], 20) if tag == EXTENSIBLE else (0, tag)
    return tag, channels, bits, rate, speakers, chunks[b"data"]


def noise(frames, channels, bits):
    return random.Random(frames + channels + bits).randbytes(frames * channels * bits // 8)


class TonqTool(ToolTest):
    def file(self, content, name):
        path = self.folder / name
        path.write_bytes(content)
        return path

    def convert(self, source, name):
        target = self.folder / name
        result = self.call("--force", source, target)
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))
        return target

    def test_explains_itself(self):
        self.assertIn("[--force] SOURCE TARGET", self.call("--help").stdout)
        self.assertRegex(self.call("--version").stdout, r"^vornel-tonq \d+\.\d+\.\d+\n$")

        for message, arguments in (("two files", ()), ("two files", ("a.wav",)), ("two files", ("a", "b", "c")),
                                   ("no '--quick'", ("--quick", "a", "b")), ("needs a name", ("", "b"))):
            self.expect_failure(2, message, *arguments)

    def test_gives_back_the_same_wav(self):
        for tag, bits in ((WHOLE, 16), (WHOLE, 24), (WHOLE, 32), (FLOAT, 32)):
            for channels, frames in ((1, 0), (1, 8193), (2, 10001), (3, 1), (16, 8192), (32, 3)):
                with self.subTest(tag=tag, bits=bits, channels=channels, frames=frames):
                    samples = noise(frames, channels, bits)
                    source = self.file(wav(samples, channels, bits, tag), "a.wav")
                    back = self.convert(self.convert(source, "b.tnq"), "c.wav").read_bytes()
                    self.assertTrue(parts(back) == (tag, channels, bits, 48000, 0, samples))

    def test_keeps_what_a_wav_says_besides(self):
        title = chunk(b"LIST", b"INFO" + chunk(b"INAM", b"A title\0"))

        for tag, bits in ((WHOLE, 24), (WHOLE, 32), (FLOAT, 32)):
            samples = noise(9, 6, bits)
            source = self.file(wav(samples, 6, bits, tag, 96000, 0x3F, title), "a.wav")
            tonq = self.convert(source, "b.tnq")
            back = self.convert(tonq, "c.wav").read_bytes()
            self.assertEqual(parts(back), (tag, 6, bits, 96000, 0x3F, samples))
            self.assertIn(b"A title", back)

        self.assertNotIn(b"A title", self.convert(self.convert(self.file(
            wav(noise(9, 1, 16), 1, 16, more=title), "a.wav"), "b.tnq"), "c.aif").read_bytes())

    def test_leaves_out_marks_that_are_not_there(self):
        cue = struct.pack("<6I", 1, 0, 0x61746164, 0, 0, 0)
        samples = noise(2, 2, 16)

        for told, kept in ((1, True), (2_000_000, False), (178_956_971, False), (0x7FFFFFFF, False)):
            with self.subTest(told=told):
                marks = chunk(b"cue ", struct.pack("<I", told) + cue)
                source = self.file(wav(samples, 2, 16, more=marks), "a.wav")
                back = self.convert(self.convert(source, "b.tnq"), "c.wav").read_bytes()
                self.assertEqual((parts(back)[-1], b"cue " in back), (samples, kept))

    def test_knows_the_other_kinds(self):
        for bits in (16, 24):
            for channels in (1, 2, 8):
                with self.subTest(bits=bits, channels=channels):
                    samples = noise(20001, channels, bits)
                    source = self.file(aiff(samples, channels, bits), "a.aif")
                    tonq = self.convert(source, "b.tnq").read_bytes()
                    self.assertTrue(tonq[48:] == samples)

                    for name in ("c.aiff", "c.flac"):
                        other = self.convert(self.folder / "b.tnq", name)
                        self.assertEqual(other.read_bytes()[:4], b"fLaC" if name == "c.flac" else b"FORM")
                        self.assertTrue(self.convert(other, "d.tnq").read_bytes() == tonq, name)

    def test_widens_what_is_narrow(self):
        source = self.file(wav(bytes(range(0, 256, 5)), 1, 8), "a.wav")
        tonq = self.convert(source, "b.tnq").read_bytes()
        self.assertEqual(struct.unpack("<52h", tonq[48:]), tuple((value - 128) * 256 for value in range(0, 256, 5)))

    def test_refuses_what_it_could_not_keep(self):
        whole = wav(noise(20000, 2, 24), 2, 24)
        source = self.file(whole, "whole.wav")
        tonq = self.convert(source, "whole.tnq").read_bytes()
        flac = self.convert(self.folder / "whole.tnq", "whole.flac").read_bytes()
        floats = self.convert(self.file(wav(noise(9, 1, 32), 1, 32, FLOAT), "float.wav"), "float.tnq")
        wide = self.convert(self.file(wav(noise(9, 9, 16), 9, 16), "wide.wav"), "wide.tnq")
        self.convert(self.file(wav(noise(9, 1, 16), 1, 16, rate=1920000), "fast.wav"), "fast.tnq")
        (self.folder / "folder").mkdir()
        os.mkfifo(self.folder / "pipe.wav")

        rows = (
            ("does not exist", "nothing.wav", "x.tnq"),
            ("is no file", "folder", "x.tnq"),
            ("is no file", "pipe.wav", "x.tnq"),
            ("is no sound file", self.file(b"{}", "text.wav"), "x.tnq"),
            ("is no sound file", self.file(b"", "empty.wav"), "x.tnq"),
            ("breaks off", self.file(whole[:-1], "cut.wav"), "x.tnq"),
            ("breaks off", self.file(aiff(noise(9, 1, 16), 1, 16)[:-3], "cut.aif"), "x.tnq"),
            ("breaks off", self.file(tonq[:-1], "cut.tnq"), "x.wav"),
            ("breaks off", self.file(flac[:-100], "cut.flac"), "x.tnq"),
            ("is damaged", self.file(flac[:-9000] + bytes([flac[-9000] ^ 1]) + flac[-8999:], "bent.flac"), "x.tnq"),
            ("is no sound file", self.file(tonq[:20] + b"\1" + tonq[21:], "wrong.tnq"), "x.wav"),
            ("has 33 channels", self.file(wav(noise(1, 33, 16), 33, 16), "wider.wav"), "x.tnq"),
            ("20 bits", self.file(wav(noise(2, 1, 20), 1, 20), "odd.wav"), "x.tnq"),
            ("is no .tnq file", source, "x.wav"),
            ("is a .tnq file", "whole.tnq", "x.tnq"),
            ("ends in none of", "whole.tnq", "x.mp3"),
            ("is there already", source, "whole.tnq"),
            ("directory does not exist", source, "nowhere/x.tnq"),
            ("AIFF holds 16 or 24 bits, not 32 bits of floating point", floats, "x.aif"),
            ("FLAC holds 16 or 24 bits", floats, "x.flac"),
            ("FLAC holds up to 8 channels, not 9", wide, "x.flac"),
            ("sample rate", "fast.tnq", "x.flac"),
        )

        for message, given, target in rows:
            with self.subTest(given=given, target=target):
                self.expect_failure(1, message, self.folder / given, self.folder / target)

        (self.folder / "folder.tnq").mkdir()
        self.expect_failure(1, "is a directory", "--force", source, self.folder / "folder.tnq")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
