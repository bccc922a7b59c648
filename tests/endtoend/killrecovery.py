#!/usr/bin/env python3
"""killrecovery.py DRIVER FOLDER [TIMES [SEED]]: kills somebody who works and saves, many times, and looks at what is left.

Each time the project file, its backup or the copy for the time after a crash must open, be exactly what the project
was at some moment that the driver told, and lack no more than the work since the copy that was due."""

import json
import os
import random
import shutil
import signal
import statistics
import subprocess
import sys
import time

INTERVAL = 1000  # milliseconds between the beginnings of two copies, twenty times as often as for people
PATIENCE = 2500  # how long a copy waits for a pause, at most


def size_of(path):
    try:
        return os.path.getsize(path)
    except FileNotFoundError:  # it is the backup now
        return -1


class Round:
    """One life of the driver, from its start to its death."""

    def __init__(self, driver, folder, rng):
        project = os.path.join(folder, "work.quenmora")
        self.told = os.path.join(folder, "told.jsonl")
        in_save = rng.random() < 0.5  # half of them die while they save, the others whenever it is
        wait = rng.uniform(0.0, 8.0)
        moment = rng.uniform(0.0, 1.5)
        with open(self.told, "wb") as told, open(os.path.join(folder, "driver.log"), "ab") as log:
            process = subprocess.Popen([driver, "work", project, str(rng.randrange(1 << 30)), str(INTERVAL)],
                                       stdout=told, stderr=log)
        self.wait_for("ready", 1, process, 120)
        time.sleep(wait)
        if in_save:
            before = size_of(project)
            self.wait_for("save", self.count("save") + 1, process, 20)
            if rng.random() < 0.5:
                time.sleep(moment)
            else:  # while the file itself is written
                end = time.monotonic() + 3
                while size_of(project) == before and time.monotonic() < end:
                    pass
                time.sleep(rng.uniform(0.0, 0.006))
        if process.poll() is not None:
            raise SystemExit(f"the driver ended by itself with {process.returncode}")
        process.send_signal(signal.SIGKILL)
        process.wait()
        self.events = [json.loads(line) for line in self.lines() if line.endswith("}")]

    def lines(self):
        with open(self.told, encoding="utf-8") as told:
            return told.read().split("\n")

    def count(self, event):
        return sum(f'"event":"{event}"' in line for line in self.lines())

    def wait_for(self, event, times, process, seconds):
        deadline = time.monotonic() + seconds
        while self.count(event) < times and time.monotonic() < deadline and process.poll() is None:
            time.sleep(0.005)

    def longest_copy(self):
        """How long it took to write a copy, also one that was not finished."""
        begun, longest = None, 0
        for event in self.events:
            if begun is not None and event["event"] in ("copied", "copy", "act"):
                longest = max(longest, event["time"] - begun)
            if event["event"] == "copied":
                begun = None
            elif event["event"] == "copy":
                begun = event["time"]
        return longest

    def died_saving(self):
        last = [event["event"] for event in self.events if event["event"] in ("save", "savedone")]
        return bool(last) and last[-1] == "save"


def look(driver, folder):
    project = os.path.join(folder, "work.quenmora")
    output = subprocess.run([driver, "look", project], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
                            check=True).stdout
    return [json.loads(line) for line in output.splitlines()]


def main():
    driver, folder = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])
    times = int(sys.argv[3]) if len(sys.argv) > 3 else 200
    seed = int(sys.argv[4]) if len(sys.argv) > 4 else random.randrange(1 << 30)
    rng = random.Random(seed)
    print(f"seed {seed}")
    shutil.rmtree(folder, ignore_errors=True)
    home = os.path.join(folder, "home")
    os.makedirs(os.path.join(home, ".config", "quenmora"))
    os.environ["HOME"] = home
    recovery = os.path.join(home, ".config", "quenmora", "recovery")
    project = os.path.join(folder, "work.quenmora")
    subprocess.run([driver, "make", os.path.join(folder, "level.quenmora")], check=True, stderr=subprocess.DEVNULL)

    counts = dict.fromkeys(["killed while saving", "project file whole", "backup whole", "recovery copy whole",
                            "recovery copy damaged", "newest is the file", "newest is the backup",
                            "newest is the copy", "only the copy is left", "continued from a copy"], 0)
    known = {}  # what the project was, by its members, and when
    shutil.copy(os.path.join(folder, "level.quenmora"), project)
    level = json.dumps(look(driver, folder)[0]["members"], sort_keys=True)
    lost = []
    failures = []
    for number in range(1, times + 1):
        recovering = os.path.isdir(recovery) and bool(os.listdir(recovery))
        if not recovering:
            shutil.copy(os.path.join(folder, "level.quenmora"), project)
        with open(os.path.join(home, ".config", "quenmora", "preferences.json"), "w") as preferences:
            json.dump({"General": {"backupOnSave": rng.random() < 0.5}}, preferences)
        run = Round(driver, folder, rng)
        counts["continued from a copy"] += recovering
        if not recovering:
            known[level] = run.events[0]["time"]
        for event in run.events:
            if event["event"] == "copy":
                known[json.dumps(event["members"], sort_keys=True)] = event["time"]
        counts["killed while saving"] += run.died_saving()
        left = look(driver, folder)
        actions = [event["time"] for event in run.events if event["event"] == "act"]
        best = None
        whole = {}
        for found in left:
            kind = found["event"]
            if kind == "recovery":
                whole[kind] = whole.get(kind, False) or found["state"] == 1 and bool(found["members"])
                counts["recovery copy damaged"] += found["state"] == 2 or found["state"] == 1 and not found["members"]
            else:
                whole[kind] = bool(found["members"])
            moment = known.get(json.dumps(found["members"], sort_keys=True)) if found["members"] else None
            if moment is not None and (best is None or moment > best[0]):
                best = (moment, kind)
            if kind == "recovery" and found["members"] and moment is None:
                failures.append(f"round {number}: the copy is not what the project was")
        for kind, name in {"file": "project file whole", "backup": "backup whole",
                           "recovery": "recovery copy whole"}.items():
            counts[name] += whole.get(kind, False)
        counts["only the copy is left"] += whole.get("recovery", False) and not whole["file"] and not whole["backup"]
        untouched = not any(event["event"] in ("copy", "save") for event in run.events)
        if best is None and not (untouched and (whole["file"] or whole.get("recovery"))):
            failures.append(f"round {number}: nothing of what the project was is left: {whole}")
        since = best[0] if best else run.events[0]["time"]
        if best:
            counts["newest is the " + {"file": "file", "backup": "backup", "recovery": "copy"}[best[1]]] += 1
        later = [moment for moment in actions if moment > since]
        lost.append(later[-1] - later[0] if later else 0)
        if lost[-1] > INTERVAL + PATIENCE + run.longest_copy():
            failures.append(f"round {number}: {lost[-1]} ms of work are lost")
            shutil.copy(run.told, os.path.join(folder, f"told-{number}.jsonl"))
        print(f"{number}: {len(actions)} actions, newest {best[1] if best else 'untouched'}, {lost[-1]} ms lost, "
              f"left: {', '.join(kind for kind, is_whole in whole.items() if is_whole)}", flush=True)

    print(f"\nkilled {times} times, copies every {INTERVAL} ms")
    for name, count in counts.items():
        print(f"  {name:24} {count:4}")
    print(f"  work lost, ms: median {statistics.median(lost):.0f}, most {max(lost)}")
    for failure in failures:
        print("FAILED:", failure)
    sys.exit(bool(failures))


main()
