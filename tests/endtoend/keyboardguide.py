#!/usr/bin/env python3
"""The first level of the guide (docs/guide/first-level.md), done with the keyboard alone.

    tests/endtoend/keyboardguide.py PROGRAM FOLDER

The mouse rests in a corner of a virtual display, xdotool presses keys only, and a picture of the screen is kept in
FOLDER after each step. What was saved and exported is then compared with what was done. Needs xvfb, openbox, xdotool
and imagemagick. Ends with 0 only when everything was right.
"""

import json
import shutil
import struct
import sys
import tempfile
import time
import zipfile
from pathlib import Path

from virtualdesktop import SCREEN, Desktop, read_png, reported, require

PICTURE = Path(__file__).resolve().parents[2] / "examples" / "pictures" / "level.png"


class Hands:
    """Two of them, and no mouse."""

    def __init__(self, desktop):
        self.desktop = desktop
        desktop.run("xdotool", "mousemove", *(str(side - 1) for side in SCREEN))

    def press(self, key, times=1):
        self.desktop.key(*[key] * times)

    def move(self, right=0, down=0, keys="ctrl"):
        self.press(keys + ("+Right" if right > 0 else "+Left"), abs(right))
        self.press(keys + ("+Down" if down > 0 else "+Up"), abs(down))

    def drag(self, right=0, down=0):
        """Moves with Space held."""
        self.desktop.run("xdotool", "keydown", "space")
        time.sleep(0.1)
        for key, times in (("Right", right), ("Down", down)):
            for _ in range(times):
                # --clearmodifiers would let go of what is held
                self.desktop.run("xdotool", "key", "ctrl+" + key)
                time.sleep(0.1)
        self.desktop.run("xdotool", "keyup", "space")
        time.sleep(0.2)

    def shot(self, name):
        self.desktop.shot(name)


# ---- What is done, chapter by chapter -----------------------------------------------------------------------


def make_project(hands, project):
    desktop = hands.desktop
    hands.press("ctrl+n")
    desktop.dialog("New Project")
    desktop.type("First Level")
    hands.press("Return")
    hands.press("ctrl+s")
    desktop.file_dialog("Save project", project.with_suffix(""))
    desktop.wait(project.name, project.exists)
    hands.shot("project")


def import_picture(hands, folder):
    desktop = hands.desktop
    picture = folder / "level.png"
    shutil.copy(PICTURE, picture)
    desktop.menu("m", "i")
    desktop.file_dialog("Import Map Data", picture)
    time.sleep(2)
    hands.shot("imported")


def paint(hands):
    """Leaves the keyboard on the map."""
    choose_tile(hands, 5)
    hands.shot("tile-chosen")
    go_to_map(hands)
    hands.press("ctrl+Home")
    hands.press("d")
    hands.drag(right=4)
    hands.shot("painted")
    hands.press("ctrl+r")
    hands.move(down=1)
    hands.press("space")
    hands.press("ctrl+r")
    hands.shot("turned")

    hands.press("ctrl+Home")
    hands.move(right=2, keys="ctrl+shift")
    hands.press("ctrl+c")
    hands.press("ctrl+v")
    hands.move(right=2, down=3)
    hands.press("space")
    hands.press("Escape")
    hands.shot("pasted")

    hands.press("ctrl+Home")
    hands.move(right=10, down=2)
    hands.press("shift+r")
    hands.drag(right=3, down=2)
    hands.press("ctrl+z")
    hands.press("ctrl+shift+z")
    hands.shot("rectangle")

    choose_tile(hands, 1)
    hands.press("shift+Right", 2)
    hands.shot("stamp-marked")
    go_to_map(hands)
    hands.press("ctrl+Home")
    hands.move(right=20, down=1)
    hands.press("d")
    hands.press("space")
    hands.shot("stamped")


def choose_tile(hands, number):
    """From the map to the tiles: over the Project dock and the tile editor."""
    hands.press("F6", 3)
    hands.press("Home")
    hands.press("Right", number)


def go_to_map(hands, behind=2):
    """From the tiles to the map: over the map objects, if there are any, and the map tool bar."""
    hands.press("F6", behind)


def animate(hands):
    hands.desktop.menu("t", "c")
    hands.desktop.dialog("New Map Objects")
    hands.desktop.type("Gems")
    hands.press("Return")
    time.sleep(1)
    hands.shot("create-animations")
    hands.press("Insert")  # the keyboard is on the list of animations
    hands.press("Tab", 3)  # over the two buttons below it
    hands.desktop.type("Gem")
    hands.press("Tab", 4)  # over kind, width and height
    hands.desktop.type("10")
    hands.shot("animation-added")
    hands.press("Tab", 4)  # over zooming and the palette offsets to the frame
    set_cell(hands, 15)
    hands.press("Tab", 10)  # over palette offset, frame and seven buttons to the one that adds a frame
    hands.press("space")
    hands.press("shift+Tab", 8)
    set_cell(hands, 7)
    hands.shot("animation")

    hands.press("F6")
    open_map(hands)
    hands.press("F6", 4)  # over project, tile editor and tiles to the map objects
    hands.press("Down")
    hands.shot("object-chosen")
    hands.press("F6", 2)
    hands.press("ctrl+Home")
    hands.move(right=8, down=5)
    hands.press("space")
    hands.shot("object-placed")
    command(hands, "Play Animations")
    hands.shot("playing")
    command(hands, "Play Animations")


def set_cell(hands, tile):
    """Gives the frame's only cell a tile; leaves the keyboard on the number."""
    hands.press("Left")
    hands.press("Right")
    hands.press("shift+Tab", 2)
    hands.press("ctrl+a")
    hands.desktop.type(str(tile))
    hands.press("Return")


def open_map(hands):
    """From the project dock, whose last entry is the map; it takes the keyboard."""
    hands.press("End")
    hands.press("Return")
    time.sleep(1)


def command(hands, text):
    hands.press("ctrl+shift+p")
    hands.desktop.type(text)
    hands.press("Return")
    time.sleep(0.5)


def make_hero(hands):
    desktop = hands.desktop
    desktop.menu("s", "n")
    desktop.dialog("New Sprites")
    desktop.type("Hero")
    hands.press("Tab")
    hands.press("Down")  # the palette of the level
    hands.press("Return")
    time.sleep(1)
    hands.press("F6", 2)
    hands.press("ctrl+Home")
    hands.drag(right=5)
    hands.shot("sprite-drawn")

    hands.press("shift+F6")
    open_map(hands)
    hands.press("F6", 4)
    hands.press("ctrl+F6")  # the map sprites are behind the map objects
    hands.press("Tab")
    hands.press("Right")
    hands.shot("sprite-chosen")
    hands.press("F6", 2)
    hands.press("ctrl+Home")
    hands.move(right=2, down=8)
    hands.press("space")
    hands.shot("sprite-placed")
    hands.press("space")  # once more opens the properties
    time.sleep(0.5)
    desktop.type("Walker")
    hands.shot("sprite-properties")
    hands.press("Escape")


def export(hands, folder):
    desktop = hands.desktop
    hands.press("Tab", 9)  # over the scroll bars' buttons to the one in the corner
    hands.press("space")
    hands.press("Down", 2)
    hands.press("Return")
    desktop.file_dialog("Choose a directory to export", folder)
    time.sleep(1)
    hands.shot("export-to-folder")
    hands.press("Return")
    time.sleep(1)
    hands.press("ctrl+s")
    time.sleep(1)
    desktop.menu("f", "e")
    desktop.dialog("Export Project")
    hands.press("Return")  # on Add Assets
    desktop.dialog("Add Outputs")
    hands.shot("outputs")
    hands.press("alt+a")
    desktop.dialog("Export Project")
    hands.shot("recipe")
    hands.press("alt+x")
    time.sleep(2)
    hands.shot("exported")
    hands.press("Escape")


# ---- What must have come of it ------------------------------------------------------------------------------


def cells_of(project):
    """Tile, rotation, flip and mirror of every cell of the map; None for an empty one."""
    with zipfile.ZipFile(project) as archive:
        data = archive.read(next(name for name in archive.namelist() if name.startswith("tilemap/")))
    height, width = struct.unpack_from(">ii", data)
    cells = {}
    for at in range(width * height):
        tile, used, _, *turned = struct.unpack_from(">i?i???", data, 8 + 12 * at)
        cells[at % width, at // width] = (tile, *turned) if used else None
    return cells


def check(project, imported, folder):
    plain = (False, False, False)
    expected = dict(imported)
    expected.update({(x, 0): (5, *plain) for x in range(5)})
    expected[4, 1] = (5, True, False, False)
    expected.update({(x, 3): (5, *plain) for x in range(3, 6)})
    expected.update({(x, y): (5, *plain) for x in range(10, 14) for y in range(2, 5)})
    expected.update({(19 + i, 1): (1 + i, *plain) for i in range(3)})
    expected[8, 5] = (0, *plain)  # beneath the animation
    cells = cells_of(project)
    wrong = {at: cells[at] for at in cells if cells[at] != expected[at]}
    require(not wrong, "every cell shows what was painted, turned, pasted and stamped " + str(wrong or ""))

    with zipfile.ZipFile(project) as archive:
        document = json.loads(archive.read("project.json"))
        sprite = read_png(archive.read(next(n for n in archive.namelist() if n.startswith("sprite/"))))
    require(document["name"] == "First Level", "the project has its name")
    animation = document["mapObjects"][0]["animations"][0]
    require(animation["delay"] == 10 and len(animation["frames"]) == 2, "the animation has its delay and two frames")
    level = document["maps"][0]
    require([(a["x"], a["y"]) for a in level["animations"]] == [(8, 5)], "it was placed on the map")
    hero = level["sprites"][0]
    require((hero["x"], hero["y"], hero["name"]) == (16, 64, "Walker"), "so was the hero, with a name")
    drawn = [x for x, index in enumerate(sprite[0]) if index != sprite[1][0]]
    require(drawn == list(range(6)) and len({*sprite[0][:6]}) == 1, "six pixels were drawn on it " + str(sprite[0]))
    names = {path.name for path in folder.iterdir()}
    for name in ("level.map", "level.pal", "level.nxt", "Hero.spr", "Gems_animations.bin", "level_sprites.bin"):
        require(name in names, "%s was exported" % name)


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    program, pictures = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
    pictures.mkdir(parents=True, exist_ok=True)
    home = Path(tempfile.mkdtemp())
    project = home / "level.quenmora"
    with reported(lambda: Desktop([str(program)], pictures, home), pictures, home, "All is right") as desktop:
        print("Working:")
        desktop.open_editor()
        hands = Hands(desktop)
        make_project(hands, project)
        import_picture(hands, home)
        hands.press("ctrl+s")
        time.sleep(2)
        imported = cells_of(project)
        paint(hands)
        animate(hands)
        make_hero(hands)
        export(hands, home)
        desktop.close_editor()
        print("Checking:")
        check(project, imported, home)


if __name__ == "__main__":
    main()
