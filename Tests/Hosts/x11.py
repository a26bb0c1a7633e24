"""A display of its own without a screen, and a hand on its mouse and keys, through the X libraries themselves."""

import ctypes
import os
import shutil
import struct
import subprocess
import time
import zlib
from ctypes import byref, c_int, c_uint, c_ulong, c_void_p
from pathlib import Path


class Unavailable(Exception):
    """The machine has no X server or no XTest library."""


def load(name):
    try:
        return ctypes.CDLL(name)
    except OSError as error:
        raise Unavailable(str(error)) from error


def start_server(name, folder, screen):
    """The server, and whether it has got the display."""
    read, write = os.pipe()
    command = ["Xvfb", name, "-displayfd", str(write), "-screen", "0", screen, "-fbdir", str(folder)]
    server = subprocess.Popen(command, pass_fds=[write], stderr=subprocess.DEVNULL)
    os.close(write)

    with os.fdopen(read) as answer:
        return server, answer.readline().strip() != ""


class Display:
    """An Xvfb of its own. Positions are pixels of its screen."""

    def __init__(self, folder, width=1300, height=1000):
        if shutil.which("Xvfb") is None:
            raise Unavailable("no Xvfb")

        self.x11, self.xtst = load("libX11.so.6"), load("libXtst.so.6")
        self.frame = Path(folder) / "Xvfb_screen0"

        # Not the first: programs take that for the user's where they are told of none.
        for number in range(50, 100):
            self.name = f":{number}"
            self.server, is_ready = start_server(self.name, folder, f"{width}x{height}x24")

            if is_ready:
                break
        else:
            raise Unavailable("no display is free")

        self.x11.XOpenDisplay.restype = c_void_p
        self.x11.XDefaultRootWindow.restype = c_ulong
        self.x11.XStringToKeysym.restype = c_ulong
        self.display = c_void_p(self.x11.XOpenDisplay(self.name.encode()))

        if not self.display:
            raise Unavailable("cannot open " + self.name)

        self.root = self.x11.XDefaultRootWindow(self.display)

    def close(self):
        self.server.terminate()
        self.server.wait()

    def flush(self, seconds=0.05):
        self.x11.XSync(self.display, 0)
        time.sleep(seconds)

    def windows(self):
        """The windows on the screen, the topmost last."""
        root, parent, children, count = c_ulong(), c_ulong(), ctypes.POINTER(c_ulong)(), c_uint()
        self.x11.XQueryTree(
            self.display, c_ulong(self.root), byref(root), byref(parent), byref(children), byref(count)
        )
        return [children[i] for i in range(count.value)]

    def place_of(self, window):
        """x, y, width, height"""
        root, x, y = c_ulong(), c_int(), c_int()
        width, height, border, depth = c_uint(), c_uint(), c_uint(), c_uint()
        self.x11.XGetGeometry(
            self.display,
            c_ulong(window),
            *map(byref, (root, x, y, width, height, border, depth)),
        )
        return x.value, y.value, width.value, height.value

    def focus(self, window):
        self.x11.XSetInputFocus(self.display, c_ulong(window), 1, c_ulong(0))
        self.flush(0.2)

    def move(self, x, y):
        self.xtst.XTestFakeMotionEvent(self.display, -1, int(x), int(y), c_ulong(0))
        self.flush()

    def button(self, down, number=1):
        self.xtst.XTestFakeButtonEvent(self.display, number, int(down), c_ulong(0))
        self.flush()

    def click(self, x, y, number=1):
        self.drag([(x, y)], number)

    def drag(self, points, number=1):
        self.move(*points[0])
        self.button(True, number)

        for point in points[1:]:
            self.move(*point)

        self.button(False, number)

    def key(self, name, down):
        symbol = self.x11.XStringToKeysym(name.encode())
        code = self.x11.XKeysymToKeycode(self.display, c_ulong(symbol))
        self.xtst.XTestFakeKeyEvent(self.display, code, int(down), c_ulong(0))
        self.flush(0.02)

    def press(self, *names):
        """Keys that go down together, such as "Control_L", "z"."""
        for name in names:
            self.key(name, True)
        for name in reversed(names):
            self.key(name, False)
        self.flush()

    def write(self, text):
        for letter in text:
            self.press("space" if letter == " " else letter)

    def rows(self):
        """What the screen shows: red, green, blue of one pixel after the other."""
        dump = self.frame.read_bytes()
        header = struct.unpack(">25I", dump[:100])
        size, width, height, line, colours = header[0], header[4], header[5], header[12], header[19]
        start = size + colours * 12
        rows = []

        for y in range(height):
            pixels = dump[start + y * line : start + y * line + width * 4]
            row = bytearray(width * 3)
            row[0::3], row[1::3], row[2::3] = pixels[2::4], pixels[1::4], pixels[0::4]
            rows.append(bytes(row))

        return rows

    def colours_in(self, x, y, width, height):
        return {row[i : i + 3] for row in self.rows()[y : y + height] for i in range(3 * x, 3 * (x + width), 3)}

    def picture(self, path):
        """Saves the screen as a PNG."""
        rows = self.rows()

        def chunk(kind, content):
            return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))

        Path(path).write_bytes(
            b"\x89PNG\r\n\x1a\n"
            + chunk(b"IHDR", struct.pack(">IIBBBBB", len(rows[0]) // 3, len(rows), 8, 2, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(b"".join(b"\0" + row for row in rows), 6))
            + chunk(b"IEND", b"")
        )
