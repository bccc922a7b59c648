#!/usr/bin/env python3
"""One user's afternoon, from an empty project to exported files, in the real program on a virtual display.

    tests/endtoend/afternoon.py PROGRAM FOLDER

Keyboard and mouse come from xdotool, and a picture of the screen is kept in FOLDER after each step. What
the program saved and exported is then read with nothing but Python's standard library and compared with
what was done. Needs xvfb, openbox, xdotool and imagemagick. Ends with 0 only when everything was right.
"""

import json
import sys
import tempfile
import time
import zipfile
from pathlib import Path

from virtualdesktop import Desktop, read_png, reported, require, write_png

# Where things are in the window, which is as large as virtualdesktop.py makes it
MAP_ORIGIN, MAP_CELL = (223, 132), 32
PICKER_ORIGIN, PICKER_CELL = (222, 642), 64
TILE_CANVAS, TILE_PIXEL = (1052, 316), 16
SPRITE_STROKE = (1009, 225), (1089, 225)  # six pixels of one row
ADD_SPRITE = (1044, 654)
ADD_ANIMATION, ADD_FRAME = (235, 583), (648, 579)
FRAME_CELL, CELL_SPRITE = (672, 370), (616, 162)
PALETTE_TAB, FIRST_COLOUR, RED, APPLY = (1020, 740), (990, 162), (1240, 421), (1202, 545)
MAP_TAB, MAP_SPRITES_TAB, FIRST_MAP_ANIMATION = (590, 73), (146, 740), (60, 563)


def centre(origin, size, column, row=0):
    return (origin[0] + column * size + size // 2, origin[1] + row * size + size // 2)


def cell(column, row):
    return centre(MAP_ORIGIN, MAP_CELL, column, row)


def tile(index):
    return centre(PICKER_ORIGIN, PICKER_CELL, index)


def tile_pixel(x, y):
    return centre(TILE_CANVAS, TILE_PIXEL, x, y)


# ---- What is done ---------------------------------------------------------------------------------------

# Of the level that is imported: sky, gold, earth and bricks, in the order in which the picture shows them.
COLOURS = [(0, 96, 224), (224, 192, 0), (0, 160, 32), (160, 64, 0)]
SKY, GOLD, EARTH, BRICKS = range(4)
COLUMNS, ROWS = 40, 32


def level_tile(column, row):
    if row >= 28:
        return BRICKS
    if row == 27:
        return EARTH
    return GOLD if 8 <= column < 16 and 10 <= row < 12 else SKY


def level_pixel(x, y):
    kind = level_tile(x // 8, y // 8)
    return EARTH if kind == BRICKS and x % 8 and y % 8 else kind


def expected_map():
    """The tile of every cell after the edits of edit_map()."""
    tiles = {(c, r): level_tile(c, r) for c in range(COLUMNS) for r in range(ROWS)}
    for column in range(2, 10):
        tiles[column, 2] = EARTH
    for column in range(3, 7):
        for row in range(4, 7):
            tiles[column, row] = EARTH
    for column in range(8, 11):
        for row in range(10, 12):
            tiles[column, row] = 0  # cut
            tiles[column + 5, row - 8] = GOLD  # and pasted
    return tiles


def start_project(desktop, folder):
    picture = folder / "level.png"
    pixels = [level_pixel(x, y) for y in range(ROWS * 8) for x in range(COLUMNS * 8)]
    write_png(picture, COLUMNS * 8, ROWS * 8, pixels, COLOURS)
    desktop.key("ctrl+n")
    desktop.dialog("New Project")
    desktop.type("Afternoon")
    desktop.key("Return")
    desktop.shot("empty-project")
    desktop.menu("m", "i")
    desktop.file_dialog("Import Map Data", picture)
    time.sleep(1)
    desktop.shot("imported")


def edit_map(desktop):
    desktop.click(tile(EARTH))
    desktop.drag(cell(2, 2), cell(9, 2))
    desktop.shot("painted")
    desktop.key("s")
    desktop.drag(cell(3, 4), cell(6, 6))
    desktop.click(cell(4, 5), 3)
    desktop.key("Up", "Return")  # Fill, the last entry
    desktop.shot("filled")
    desktop.key("s")
    desktop.drag(cell(8, 10), cell(10, 11))
    desktop.key("ctrl+x", "ctrl+v")
    desktop.click(cell(14, 3))  # the middle of what is pasted
    desktop.shot("pasted")
    desktop.key("Escape", "d")
    desktop.key(*["ctrl+z"] * 4)
    desktop.shot("undone")
    desktop.key(*["ctrl+shift+z"] * 4)
    desktop.shot("redone")


def edit_tile(desktop):
    desktop.click(tile(EARTH), times=2)
    desktop.drag(tile_pixel(1, 1), tile_pixel(6, 1))
    desktop.shot("tile-drawn")


def edit_sprites(desktop):
    desktop.menu("s", "n")
    desktop.dialog("New Sprites")
    desktop.type("Hero")
    desktop.key("Tab", "Down", "Return")  # with the palette of the level
    time.sleep(1)
    desktop.drag(SPRITE_STROKE[0], SPRITE_STROKE[1])
    desktop.click(ADD_SPRITE)
    desktop.shot("sprites-drawn")
    desktop.click(ADD_ANIMATION)
    desktop.click(ADD_FRAME)
    desktop.shot("animation-of-two-frames")
    desktop.click(FRAME_CELL)
    desktop.click(CELL_SPRITE)
    desktop.key("ctrl+a")
    desktop.type("1")
    desktop.key("Return")
    desktop.shot("second-sprite-in-second-frame")


def edit_palette(desktop):
    """Gives the sky the most red there is; its green and blue stay 3 and 7."""
    desktop.click(PALETTE_TAB)
    desktop.click(FIRST_COLOUR)
    desktop.click(RED)
    desktop.key("ctrl+a")
    desktop.type("7")
    desktop.key("Tab")
    desktop.click(APPLY)
    desktop.shot("sky-recoloured")


def place_sprite(desktop):
    desktop.click(MAP_TAB)
    desktop.click(MAP_SPRITES_TAB)
    desktop.click(FIRST_MAP_ANIMATION)
    desktop.click(cell(5, 8))
    desktop.shot("sprite-placed")


def save(desktop, project):
    desktop.key("ctrl+s")
    desktop.file_dialog("Save project", project.with_suffix(""))
    desktop.wait(project.name, project.exists)
    desktop.shot("saved")


def export(desktop, folder):
    """Opens the project again, from the list of recent ones, and exports all that has a menu for it."""
    desktop.menu("f", "r", "Return")
    time.sleep(1.5)
    desktop.shot("reopened")
    exports = {"m": "level.map", "p": "level.npl", "s": "hero.spr"}
    titles = {"m": "Export Map", "p": "Export Palette", "s": "Export Sprite Data"}
    for letter, name in exports.items():
        desktop.menu(letter, "e")
        desktop.file_dialog(titles[letter], folder / name)
        desktop.wait(name, (folder / name).exists)
    desktop.menu("t", "e")
    desktop.dialog("Export Tiles")
    desktop.key("Return")
    desktop.file_dialog("Export", folder / "tiles.bin")
    desktop.wait("tiles.bin", (folder / "tiles.bin").exists)
    desktop.shot("exported")


# ---- What must have come of it ----------------------------------------------------------------------------


def check_project(project):
    with zipfile.ZipFile(project) as archive:
        require(archive.testzip() is None, "the project is a whole archive")
        require({info.date_time for info in archive.infolist()} == {(1980, 1, 1, 0, 0, 0)}, "nothing in it tells when")
        document = json.loads(archive.read("project.json"))
        strips = {name: read_png(archive.read(name)) for name in archive.namelist() if name.endswith(".png")}
    require(document["name"] == "Afternoon", "the project has its name")
    sprites = next(rows for name, rows in strips.items() if name.startswith("sprite/"))
    require(len(sprites) == 32, "two sprites were made")
    require(sum(map(sum, sprites[16:])) == 0, "the second sprite is blank")
    drawn = [index for row in sprites[:16] for index in row if index]
    require(drawn == [GOLD] * 6, "a line of six pixels was drawn on the first sprite (%s)" % drawn)
    frames = document["sprites"][0]["animations"][0]["frames"]
    require(len(frames) == 2, "the animation has two frames")
    return strips


def check_exports(folder):
    data = (folder / "level.map").read_bytes()
    require(len(data) == 2 * COLUMNS * ROWS, "the map has two bytes a cell")
    expected = expected_map()
    wrong = [at for at, kind in expected.items() if data[2 * (at[1] * COLUMNS + at[0])] != kind]
    require(not wrong, "every cell of the map shows its tile" + (", but " + str(wrong) if wrong else ""))
    flags = {at: data[2 * (at[1] * COLUMNS + at[0]) + 1] for at in expected}
    require(not any(value & 0xF1 for value in flags.values()), "no cell has a palette offset or a high tile number")
    # pieces that look the same however they are turned come turned from the import
    painted = [at for at, kind in expected.items() if kind not in (level_tile(*at), GOLD)]
    require(not any(flags[at] & 0x0E for at in painted), "no cell that was painted, filled or cut is turned")

    pixels = (folder / "tiles.bin").read_bytes()
    require(len(pixels) == 512 * 64, "every tile was exported, a byte a pixel")
    earth = bytearray([EARTH]) * 64
    earth[9:15] = bytes([GOLD]) * 6
    require(pixels[: 2 * 64] == bytes([SKY]) * 64 + bytes([GOLD]) * 64, "sky and gold are as they were imported")
    require(pixels[2 * 64 : 3 * 64] == earth, "the earth has the line that was drawn on it")
    bricks = bytes(BRICKS if x == 0 or y == 0 else EARTH for y in range(8) for x in range(8))
    require(pixels[3 * 64 : 4 * 64] == bricks, "the bricks are as they were imported")

    words = (folder / "level.npl").read_bytes()
    require(len(words) >= 512, "the palette has a word for every entry")
    require(words[0] == 7 << 5 | 3 << 2 | 3 and words[1] & 1 == 1, "the sky has the most red, 3 green and 7 blue")

    sprites = (folder / "hero.spr").read_bytes()
    require(len(sprites) == 512 and set(sprites) == {SKY, GOLD}, "two sprites were exported")


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    program, pictures = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
    pictures.mkdir(parents=True, exist_ok=True)
    home = Path(tempfile.mkdtemp())
    with reported(lambda: Desktop([str(program)], pictures, home), pictures, home, "All is right") as desktop:
        print("Working:")
        desktop.open_editor()
        start_project(desktop, home)
        edit_map(desktop)
        edit_tile(desktop)
        edit_sprites(desktop)
        edit_palette(desktop)
        place_sprite(desktop)
        save(desktop, home / "game.quenmora")
        desktop.close_editor()
        desktop.open_editor()
        export(desktop, home)
        desktop.close_editor()
        print("Checking:")
        check_project(home / "game.quenmora")
        check_exports(home)


if __name__ == "__main__":
    main()
