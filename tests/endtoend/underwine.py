#!/usr/bin/env python3
"""The Windows program in its real window, under Wine on a virtual display.

    tests/endtoend/underwine.py ZIP EXAMPLES FOLDER

Unpacks the zip that scripts/windows.sh makes into a folder with letters of many scripts, opens the sample project
there, paints on its map, saves, exports, quits and opens it again, with keyboard and mouse. What was saved and exported
is compared with what lay there before, and with what quenmora-export.exe writes. Pictures of each step are kept in
FOLDER. Needs Wine, xvfb, openbox, xdotool and imagemagick. Ends with 0 only when everything was right.
"""

import json
import os
import shutil
import subprocess
import sys
import tempfile
import zipfile
from pathlib import Path

from virtualdesktop import Desktop, Failure, require

LETTERS = "Ünicode Ωжא日本 ไทย"
TILE = (640, 672)  # in the tile picker
PAINT = (520, 330), (700, 330)  # on the map that the sample shows first


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


def contents(path):
    """The members of a project file."""
    with zipfile.ZipFile(path) as archive:
        require(archive.testzip() is None, "%s is a whole archive" % path.name)
        return {name: archive.read(name) for name in archive.namelist()}


def files_below(folder):
    return {str(file.relative_to(folder)): file.read_bytes() for file in sorted(folder.rglob("*")) if file.is_file()}


class WineDesktop(Desktop):
    """The same screen and hands, with a program for Windows."""

    patience = 90  # Wine takes its time

    def __init__(self, program, pictures, folder):
        """Makes a profile of its own in a folder: Wine gives USERPROFILE itself."""
        super().__init__(["wine", str(program)], pictures, folder)
        self.environment.pop("QT_QPA_PLATFORM")
        self.environment.update(
            WINEPREFIX=str(folder / "wine"), WINEDEBUG="-all", WINEDLLOVERRIDES="mscoree,mshtml=", LC_ALL="C.UTF-8"
        )
        subprocess.run(["wineboot", "--init"], env=self.environment, capture_output=True, check=True)
        users = folder / "wine/drive_c/users"
        self.profile = next(user for user in users.iterdir() if user.name != "Public")
        # links lead to the home folder of who runs this
        for link in [entry for entry in self.profile.iterdir() if entry.is_symlink()]:
            link.unlink()

    def end(self):
        subprocess.run(["wineserver", "-k"], env=self.environment, capture_output=True)
        super().end()

    def dark(self, isDark):
        """As Windows keeps that people want dark windows."""
        key = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize"
        command = ["wine", "reg", "add", key, "/v", "AppsUseLightTheme", "/t", "REG_DWORD", "/d", str(int(not isDark)), "/f"]
        subprocess.run(command, env=self.environment, capture_output=True, check=True)

    def export_by_command(self, program, project, to):
        command = ["wine", str(program), "--quiet", "--output", windows_path(to), windows_path(project)]
        done = subprocess.run(command, env=self.environment, capture_output=True, text=True)
        require(done.returncode == 0, "quenmora-export.exe exports the project" + done.stderr)

    def open_recent(self):
        self.menu("f", "r", "Return")
        self.wait("the project", lambda: "Lantern" in self.run("xdotool", "getactivewindow", "getwindowname"))

    def quit(self):
        self.key("ctrl+q")
        require(self.editor.wait(self.patience) == 0, "the program quits by its key")


def work(desktop, project):
    before = contents(project)
    desktop.open_editor()
    desktop.shot("started")
    desktop.open_recent()
    desktop.shot("sample-open")
    desktop.click(TILE)
    desktop.key("d")
    desktop.drag(*PAINT)
    desktop.shot("painted")
    stamp = project.stat().st_mtime_ns
    desktop.key("ctrl+s")
    desktop.wait("the saved project", lambda: project.stat().st_mtime_ns != stamp)
    desktop.shot("saved")
    after = contents(project)
    changed = {name for name in after if after[name] != before.get(name)}
    require(set(after) == set(before), "the project has the members that it had")
    require(sum(name.startswith("tilemap/") for name in changed) == 1, "one map was painted")

    written = project.parent / "game" / "gfx"
    desktop.key("F9")
    desktop.wait("the exported files", lambda: written.is_dir() and len(files_below(written)) >= 24)
    desktop.shot("exported")
    desktop.menu("m", "n")
    desktop.dialog("New Map")
    desktop.shot("dialog")
    desktop.key("Escape")
    desktop.quit()
    require((desktop.profile / ".config/quenmora/preferences.json").exists(), "the settings are in the profile")
    desktop.open_editor()
    desktop.open_recent()
    desktop.shot("reopened")
    desktop.quit()


def main():
    archive, examples, pictures = (Path(word).resolve() for word in sys.argv[1:4])
    shutil.rmtree(pictures, ignore_errors=True)
    pictures.mkdir(parents=True)
    folder = Path(tempfile.mkdtemp(prefix="quenmora-"))
    desktop = None
    try:
        place = folder / LETTERS
        with zipfile.ZipFile(archive) as zipped:
            zipped.extractall(place)
        program = next(place.glob("quenmora-*"))
        project = place / (LETTERS + ".quenmora")
        shutil.copy(examples / "sample.quenmora", project)
        shutil.copy(examples / "sample.quenmora-export.json", str(project) + "-export.json")

        desktop = WineDesktop(program / "quenmora.exe", pictures, folder)
        settings = desktop.profile / ".config/quenmora"
        settings.mkdir(parents=True)
        state = {"recent": [windows_path(project).replace("\\", "/")], "windowState": "", "windowGeometry": ""}
        (settings / "state.json").write_text(json.dumps(state))
        work(desktop, project)
        desktop.export_by_command(program / "quenmora-export.exe", project, folder / "by-command")
        require(
            files_below(folder / "by-command" / "game" / "gfx") == files_below(project.parent / "game" / "gfx"),
            "both programs export the same",
        )
        desktop.dark(True)
        desktop.open_editor()
        desktop.open_recent()
        desktop.shot("dark")
        desktop.quit()
        print("All is right. The pictures are in %s" % pictures)
        return 0
    except Failure as failure:
        if desktop:
            desktop.editor and desktop.editor.poll() is None and desktop.shot("failure")
        print("FAILED: %s. The pictures are in %s" % (failure, pictures), file=sys.stderr)
        return 1
    finally:
        if desktop:
            desktop.end()
        shutil.rmtree(folder, ignore_errors=True)


if __name__ == "__main__":
    sys.exit(main())
