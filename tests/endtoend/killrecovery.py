#!/usr/bin/env python3
"""killrecovery.py DRIVER FOLDER [TIMES [SEED]]: kills somebody who works and saves, many times, and looks at what is left.

Each time the project file, its backup or the copy for the time after a crash must open, be exactly what the project
was at some moment that the driver told, and lack no more than the work since the copy that was due. Times are those in
which the driver had a processor or wanted none: how busy the machine is otherwise does not matter."""

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
PATIENCE = 1000  # how long a copy waits for a pause, at most
WRITING = 4000  # how long the first copy of the large project takes, at most, beside somebody who works
LEVEL_SIZE = 40_000_000  # the large map takes more bytes than that


def size_of(path):
    try:
        return os.path.getsize(path)
    except FileNotFoundError:  # it is the backup now
        return -1


def key_of(members):
    return json.dumps(members, sort_keys=True)


class Round:
    """One life of the driver, from its start to its death."""

    def __init__(self, driver, folder, rng):
        project = os.path.join(folder, "work.quenmora")
        self.told = os.path.join(folder, "told.jsonl")
        in_save = rng.random() < 0.5  # half of them die while they save, the others whenever it is
        wait = rng.uniform(0.0, 8.0)
        moment = rng.uniform(0.0, 1.5)
        over, alive = os.pipe()  # which is at its end when the driver and all its children are
        with open(self.told, "wb") as told, open(os.path.join(folder, "driver.log"), "ab") as log:
            process = subprocess.Popen([driver, "work", project, str(rng.randrange(1 << 30)), str(INTERVAL)],
                                       stdout=told, stderr=log, pass_fds=[alive])
        os.close(alive)
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
        os.read(over, 1)
        os.close(over)
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

    def contents(self):
        """What the project was at each copy, and when that was."""
        begun = {event["number"]: event["time"] for event in self.events if event["event"] == "copy"}
        return {key_of(event["members"]): begun[event["number"]]
                for event in self.events if event["event"] == "content"}

    def has_level(self):
        """Whether the large map was not deleted."""
        sizes = [int(key.split("-")[2]) for event in self.events[-20:] if event["event"] == "content"
                 for key in event["members"].values()]
        return max(sizes, default=0) > LEVEL_SIZE

    def lost_since(self, moment):
        """How long somebody worked after a moment, and how long that may be, in milliseconds."""
        later = [event for event in self.events if event["event"] == "act" and event["time"] > moment]
        if not later:
            return 0, 0
        own_times = [event["time"] - event["waited"] for event in later]
        longest = max(event["took"] for event in later)  # in which nothing else can be done
        return own_times[-1] - own_times[0], INTERVAL + PATIENCE + WRITING + longest

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

    counts = dict.fromkeys(["with the large map", "killed while saving", "project file whole", "backup whole", "recovery copy whole",
                            "recovery copy damaged", "newest is the file", "newest is the backup",
                            "newest is the copy", "only the copy is left", "continued from a copy"], 0)
    known = {}  # what the project was, by its members, and when
    shutil.copy(os.path.join(folder, "level.quenmora"), project)
    level = key_of(look(driver, folder)[0]["members"])
    lost = []
    loads = []
    failures = []
    for number in range(1, times + 1):
        if rng.random() < 0.5:  # else nothing but odds and ends would be left after some rounds
            shutil.rmtree(recovery, ignore_errors=True)
        recovering = os.path.isdir(recovery) and bool(os.listdir(recovery))
        if not recovering:
            shutil.copy(os.path.join(folder, "level.quenmora"), project)
        with open(os.path.join(home, ".config", "quenmora", "preferences.json"), "w") as preferences:
            json.dump({"General": {"backupOnSave": rng.random() < 0.5}}, preferences)
        run = Round(driver, folder, rng)
        counts["continued from a copy"] += recovering
        if not recovering:
            known[level] = run.events[0]["time"]
        known.update(run.contents())
        loads.append(os.getloadavg()[0])
        counts["with the large map"] += run.has_level()
        counts["killed while saving"] += run.died_saving()
        left = look(driver, folder)
        actions = sum(event["event"] == "act" for event in run.events)
        best = None
        whole = {}
        for found in left:
            kind = found["event"]
            if kind == "recovery":
                whole[kind] = whole.get(kind, False) or found["state"] == 1 and bool(found["members"])
                counts["recovery copy damaged"] += found["state"] == 2 or found["state"] == 1 and not found["members"]
            else:
                whole[kind] = bool(found["members"])
            moment = known.get(key_of(found["members"])) if found["members"] else None
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
        loss, allowed = run.lost_since(since)
        lost.append(loss)
        if loss > allowed:
            failures.append(f"round {number}: {loss} ms of work are lost")
            shutil.copy(run.told, os.path.join(folder, f"told-{number}.jsonl"))
        print(f"{number}: {actions} actions, newest {best[1] if best else 'untouched'}, {loss} ms lost, "
              f"left: {', '.join(kind for kind, is_whole in whole.items() if is_whole)}", flush=True)

    print(f"\nkilled {times} times, copies every {INTERVAL} ms")
    for name, count in counts.items():
        print(f"  {name:24} {count:4}")
    lost.sort()
    parts = ", ".join(f"{part} % {lost[(times - 1) * part // 100]}" for part in (50, 90, 99))
    print(f"  work lost, ms: {parts}, most {lost[-1]}")
    print(f"  load of the machine: median {statistics.median(loads):.1f}, most {max(loads):.1f}")
    for failure in failures:
        print("FAILED:", failure)
    sys.exit(bool(failures))


main()
