"""A virtual screen for the scripts that work in the real program: its desktop, hands, pictures and how a run ends.

Needs xvfb, openbox, xdotool and imagemagick, and nothing but Python's standard library.
"""

import contextlib
import os
import shutil
import struct
import subprocess
import sys
import time
import zlib
from pathlib import Path

SCREEN = (1280, 800)
WINDOW = (1276, 776)  # the size of the program's, at the top left corner of the screen
PATIENCE = 20  # seconds to wait for a window or a file


class Failure(Exception):
    pass


# ---- Pictures, without any library ----------------------------------------------------------------------


def write_png(path, width, height, pixels, colours):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    rows = b"".join(b"\0" + bytes(pixels[y * width : (y + 1) * width]) for y in range(height))
    path.write_bytes(
        b"\x89PNG\r\n\x1a\n"
        + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 3, 0, 0, 0))
        + chunk(b"PLTE", bytes(sum(colours, ())))
        + chunk(b"IDAT", zlib.compress(rows))
        + chunk(b"IEND", b"")
    )


def read_png(data):
    """Rows of indices of a PNG with a palette of 1, 2, 4 or 8 bits a pixel."""
    at, packed, header = 8, b"", None
    while at < len(data):
        size, kind = struct.unpack_from(">I4s", data, at)
        body = data[at + 8 : at + 8 + size]
        if kind == b"IHDR":
            header = struct.unpack(">IIBBBBB", body)
        elif kind == b"IDAT":
            packed += body
        at += 12 + size
    width, height, depth, colour_type, _, _, interlace = header
    if colour_type != 3 or interlace:
        raise Failure("a picture in the project is not indexed")
    stride = (width * depth + 7) // 8
    raw, rows, above = zlib.decompress(packed), [], bytearray(stride)
    for y in range(height):
        kind, *line = raw[y * (stride + 1) : (y + 1) * (stride + 1)]
        for i in range(stride):
            left, up = (line[i - 1] if i else 0), above[i]
            corner = above[i - 1] if i else 0
            guess = left + up - corner
            nearest = min((left, up, corner), key=lambda value: abs(guess - value))
            line[i] = (line[i] + (0, left, up, (left + up) // 2, nearest)[kind]) & 255
        above = bytearray(line)
        rows.append([above[x * depth // 8] >> (8 - depth - x * depth % 8) & (1 << depth) - 1 for x in range(width)])
    return rows


# ---- The desktop ------------------------------------------------------------------------------------------


class Desktop:
    """A virtual screen with a window manager, the program in it, and somebody's hands."""

    patience = PATIENCE

    def __init__(self, command, pictures, home):
        self.command, self.pictures, self.home = command, pictures, home
        self.started, self.shots, self.editor = [], 0, None
        read, write = os.pipe()
        size = "%dx%dx24" % SCREEN
        self.start(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", size, "-nolisten", "tcp", "-noreset"],
            pass_fds=[write],
        )
        os.close(write)
        with os.fdopen(read) as numbers:
            number = numbers.readline().strip()
        if not number:
            raise Failure("the virtual display does not start")
        self.environment = dict(os.environ, DISPLAY=":" + number, QT_QPA_PLATFORM="xcb", HOME=str(home),
                                LC_ALL="C.UTF-8", LANGUAGE="")  # it looks for English names
        self.environment.pop("WAYLAND_DISPLAY", None)
        self.start(["openbox"], env=self.environment)
        # a window that opens while the window manager starts may stay unmapped
        self.wait("the window manager", lambda: self.run("xdotool", "get_desktop"))

    def start(self, command, **options):
        log = open(self.pictures / (Path(command[0]).name + ".log"), "ab")
        process = subprocess.Popen(command, stdout=log, stderr=log, **options)
        self.started.append(process)
        return process

    def end(self):
        for process in reversed(self.started):
            process.terminate()
            process.wait()

    def run(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True).stdout.strip()

    def open_editor(self):
        self.editor = self.start(self.command, env=self.environment, cwd=self.home)
        window = self.wait("the window", lambda: self.run("xdotool", "search", "--onlyvisible", "--name", "Quenmora"))
        window = window.split()[0]
        self.run("xdotool", "windowsize", "--sync", window, *map(str, WINDOW))
        self.run("xdotool", "windowmove", window, "0", "0")
        self.run("xdotool", "windowactivate", window)
        self.wait("the keyboard", lambda: self.run("xdotool", "getactivewindow") == window)
        time.sleep(1)

    def close_editor(self):
        self.menu("f", "q")
        try:
            status = self.editor.wait(self.patience)
        except subprocess.TimeoutExpired:
            raise Failure("the program does not end") from None
        if status != 0:
            raise Failure("the program ended with status %d" % status)

    def wait(self, what, condition):
        deadline = time.monotonic() + self.patience
        while time.monotonic() < deadline:
            if self.editor and self.editor.poll() is not None:
                raise Failure("the program ended while waiting for " + what)
            if result := condition():
                return result
            time.sleep(0.1)
        raise Failure("waited in vain for " + what)

    def dialog(self, title):
        self.wait("the dialog “%s”" % title, lambda: title in self.run("xdotool", "getactivewindow", "getwindowname"))

    def key(self, *keys):
        for key in keys:
            self.run("xdotool", "key", "--clearmodifiers", key)
            time.sleep(0.12)

    def type(self, text):
        self.run("xdotool", "type", "--delay", "15", text)
        time.sleep(0.12)

    def click(self, at, button=1, times=1):
        self.run("xdotool", "mousemove", *map(str, at))
        self.run("xdotool", "click", "--repeat", str(times), "--delay", "60", str(button))
        time.sleep(0.2)

    def drag(self, *points):
        self.run("xdotool", "mousemove", *map(str, points[0]))
        self.run("xdotool", "mousedown", "1")
        for (x1, y1), (x2, y2) in zip(points, points[1:]):
            for step in range(1, 17):
                self.run("xdotool", "mousemove", str(x1 + (x2 - x1) * step // 16), str(y1 + (y2 - y1) * step // 16))
        self.run("xdotool", "mouseup", "1")
        time.sleep(0.2)

    def shot(self, name):
        time.sleep(0.3)
        self.shots += 1
        self.run("import", "-window", "root", str(self.pictures / ("%02d-%s.png" % (self.shots, name))))
        print("  %02d %s" % (self.shots, name), flush=True)

    # What the program offers

    def menu(self, *letters):
        self.key("alt+" + letters[0], *letters[1:])

    def file_dialog(self, title, path):
        self.dialog(title)
        self.type(str(path))
        self.key("Return")


# ---- How a run ends ---------------------------------------------------------------------------------------


def require(holds, text):
    if not holds:
        raise Failure(text)
    print("  right: " + text, flush=True)


@contextlib.contextmanager
def reported(make_desktop, pictures, folder, success):
    """A desktop for a run, whose end is told: what it was for, or why it failed, for which the script ends with 1.

    The folder goes with it. make_desktop() is called within, so that its failures are told as well.
    """
    desktop = None
    try:
        desktop = make_desktop()
        yield desktop
        print("%s. The pictures are in %s" % (success, pictures))
    except Failure as failure:
        if desktop and desktop.editor and desktop.editor.poll() is None:
            desktop.shot("failure")
        sys.exit("FAILED: %s. The pictures are in %s" % (failure, pictures))
    finally:
        if desktop:
            desktop.end()
        shutil.rmtree(folder, ignore_errors=True)
