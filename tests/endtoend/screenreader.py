#!/usr/bin/env python3
"""What a screen reader hears of the program, over AT-SPI and on a virtual display.

    dbus-run-session -- tests/endtoend/screenreader.py PROGRAM FOLDER

Opens the sample project with the keyboard, prints the tree of what is on the screen, then moves through editors and
docks and prints what is told. Needs xvfb, openbox, xdotool, imagemagick, at-spi2-core and the bindings of libatspi for
Python. Ends with 0 only when everything was told that should be.
"""

import os
import shutil
import sys
import tempfile
import time
from pathlib import Path

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

from virtualdesktop import Desktop, reported, require  # noqa: E402

SAMPLE = Path(__file__).resolve().parents[2] / "examples" / "sample.quenmora"
MOST_CELLS = 3  # of a table that are printed


class Listener:
    """Collects what the program tells."""

    def __init__(self):
        self.told = []
        Atspi.init()
        self.listener = Atspi.EventListener.new(self.hear)
        for event in ("object:state-changed:focused", "object:property-change:accessible-name"):
            self.listener.register(event)

    def hear(self, event):
        try:
            if event.type.startswith("object:state-changed") and not event.detail1:
                return
            if event.source.get_application().get_name() != "Quenmora":
                return
            if event.source.get_role() == Atspi.Role.STATUS_BAR:
                return  # which shows the same
            text = "%s: %s" % (event.source.get_role_name(), event.source.get_name())
        except GLib.Error:
            return  # it is gone meanwhile
        if not self.told or self.told[-1] != text:
            self.told.append(text)

    def wait(self, seconds=0.6):
        until = time.monotonic() + seconds
        while time.monotonic() < until:
            while GLib.MainContext.default().iteration(False):
                pass
            time.sleep(0.02)

    def after(self, action):
        """What is told because of an action."""
        self.wait()
        self.told.clear()
        action()
        self.wait()
        for text in self.told:
            print("    " + text, flush=True)
        return list(self.told)


def application():
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        child = desktop.get_child_at_index(index)
        if child and child.get_name() == "Quenmora":
            return child
    return None


def nodes(node, depth=0):
    """All of a tree that is showing; of tables only some cells."""
    yield depth, node
    count = node.get_child_count()
    for index in range(min(count, MOST_CELLS) if node.get_role() == Atspi.Role.TABLE else count):
        child = node.get_child_at_index(index)
        if child and (depth == 0 or child.get_state_set().contains(Atspi.StateType.SHOWING)):
            yield from nodes(child, depth + 1)


def print_tree(root):
    nameless = []
    for depth, node in nodes(root):
        states = node.get_state_set()
        role, name = node.get_role_name(), node.get_name()
        size = ""
        if node.get_role() == Atspi.Role.TABLE:
            table = Atspi.Accessible.get_table_iface(node)
            size = " (%d × %d)" % (table.get_n_columns(), table.get_n_rows()) if table else ""
        print("    %s%s “%s”%s" % ("  " * depth, role, name, size))
        if states.contains(Atspi.StateType.FOCUSABLE) and not name:
            nameless.append("%s in %s" % (role, node.get_parent().get_name()))
    return nameless


def use(desktop, listener):
    desktop.key("ctrl+o")
    desktop.file_dialog("Open project", SAMPLE_COPY)
    time.sleep(2)
    root = desktop.wait("the program on the accessibility bus", application)
    print("What is on the screen:")
    nameless = print_tree(root)
    require(not nameless, "everything that takes the keyboard has a name " + str(nameless))

    print("From pane to pane:")
    desktop.run("xdotool", "mousemove", "1279", "799")
    desktop.run("xdotool", "search", "--onlyvisible", "--name", "Lantern Hill", "windowactivate", "--sync")
    listener.after(lambda: desktop.key("F6"))
    said = []
    for _ in range(8):
        said = listener.after(lambda: desktop.key("F6"))
        if any("Column 0, row 0, tile" in text for text in said):
            break
    require(any("Column 0, row 0, tile" in text for text in said), "the map tells its first cell")
    desktop.shot("map")
    print("Over the map:")
    said = listener.after(lambda: desktop.key("ctrl+Right", "ctrl+Down", "Next"))
    require([text.split(", tile")[0] for text in said] == ["table cell: Column 1, row 0", "table cell: Column 1, row 1",
            "table cell: Column 1, row 9"], "each cell is told")
    said = listener.after(lambda: desktop.key("d", "space"))
    desktop.shot("painted")
    require(len(said) >= 1 and "Column 1, row 9, tile" in said[-1], "what was painted is told")
    print("Through the tiles:")
    for _ in range(8):
        said = listener.after(lambda: desktop.key("F6"))
        if any("Tiles" in text for text in said):
            break
    said = listener.after(lambda: desktop.key("Right", "Right"))
    require(len(said) == 2 and said[-1].startswith("table cell: Tile "), "each tile is told")
    desktop.key("ctrl+z")


def main():
    global SAMPLE_COPY
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    program, pictures = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
    pictures.mkdir(parents=True, exist_ok=True)
    home = Path(tempfile.mkdtemp())
    SAMPLE_COPY = home / "sample.quenmora"
    shutil.copy(SAMPLE, SAMPLE_COPY)
    os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
    os.environ.update(LC_ALL="C.UTF-8", LANGUAGE="")  # it listens for English names
    with reported(lambda: Desktop([str(program)], pictures, home), pictures, home, "All was told") as desktop:
        os.environ["DISPLAY"] = desktop.environment["DISPLAY"]
        listener = Listener()
        desktop.open_editor()
        use(desktop, listener)


if __name__ == "__main__":
    main()
