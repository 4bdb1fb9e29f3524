#!/usr/bin/python3
"""compare.py SCREEN PROGRAM-FOLDER MAKE-DIARY: three diary programs, measured from the outside; see scripts/compare.

SCREEN is the file that the virtual display keeps its pixels in. A time runs from the start of the process, or from
the key, to the last change of the screen before it stands still and the program has nothing more to do. Changes
no larger than a text cursor do not count.
"""
import ctypes
import mmap
import os
import shutil
import signal
import statistics
import struct
import subprocess
import sys
import tempfile
import time

import numpy

import diaries

PAGES = 10_000
ROUNDS = 5
TURNS = 5
ALBUM = 40  # pages, with seven photographs on the third from one of its ends
PHOTOGRAPHS = 7
CURSOR = 150  # pixels
TICK = os.sysconf("SC_CLK_TCK")


class Screen:
    def __init__(self, path):
        with open(path, "rb") as file:
            self.map = mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ)
        header = struct.unpack(">25I", self.map[:100])
        self.pixels = numpy.frombuffer(self.map, numpy.uint32, header[4] * header[5], header[0] + 12 * header[19])

    def settle(self, since, tree, quiet):
        """Milliseconds from `since` to the last change, after which the screen and the processes of `tree` were
        quiet for so many seconds; not a number when nothing changed."""
        before, changed, checked, worked = self.pixels.copy(), None, since, cpu(tree)
        while (now := time.monotonic()) < since + 120:
            if numpy.count_nonzero(self.pixels != before) > CURSOR:
                before, changed = self.pixels.copy(), now
            if now > checked + quiet:
                busy, checked, worked = cpu(tree) - worked, now, cpu(tree)
                if busy < 0.1 * quiet and now > (changed or since + 10) + quiet:
                    return 1e3 * (changed - since) if changed else float("nan")
            time.sleep(0.002)
        return float("nan")


class Keyboard:
    def __init__(self):
        self.x11, self.xtst = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XStringToKeysym.restype = ctypes.c_ulong
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(None))

    def press(self, keys):
        """Presses "a", or "Control_L+Prior"; returns the moment."""
        names = keys.split("+")
        codes = [self.x11.XKeysymToKeycode(self.display, ctypes.c_ulong(self.x11.XStringToKeysym(name.encode())))
                 for name in names]
        now = time.monotonic()
        for code, down in [(code, 1) for code in codes] + [(code, 0) for code in reversed(codes)]:
            self.xtst.XTestFakeKeyEvent(self.display, code, down, 0)
        self.x11.XSync(self.display, 0)
        return now


def family(process):
    """The process and all that descend from it."""
    parents = {}
    for entry in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open(f"/proc/{entry}/stat", encoding="utf-8", errors="replace") as file:
                parents.setdefault(int(file.read().rsplit(")", 1)[1].split()[1]), []).append(int(entry))
        except OSError:
            pass
    found = [process]
    for member in found:
        found += parents.get(member, [])  # and theirs in turn
    return found


def cpu(process):
    total = 0
    for member in family(process):
        try:
            with open(f"/proc/{member}/stat", encoding="utf-8", errors="replace") as file:
                total += sum(map(int, file.read().rsplit(")", 1)[1].split()[11:13]))
        except OSError:
            pass
    return total / TICK


def resident(process):
    """Megabytes; of pages that are shared with other programs each has its part."""
    total = 0
    for member in family(process):
        try:
            with open(f"/proc/{member}/smaps_rollup", encoding="utf-8") as file:
                total += sum(int(line.split()[1]) for line in file if line.startswith("Pss:"))
        except OSError:
            pass
    return total * 1024 / 1e6


class Thornquill:
    reach, there, away, again = ["F6", "Tab", "Tab", "space", "space"], ["space"], ["Right", "space"], ["Left", "space"]
    album_page = ALBUM - 3
    unlock, open, turn = "x", "Return", "space"
    to_turn, to_text = ["F6", "Tab", "Tab"], ["F6"]  # "Back" in the toolbar, and the page again
    begin = to_turn

    def __init__(self, folder, count, photographs=()):
        shutil.copytree(sys.argv[2], folder)
        pictures = ["1", str(self.album_page), *photographs] if photographs else []
        subprocess.run([sys.argv[3], folder, str(count), *pictures], check=True)
        self.command = [f"{folder}/thornquill"]


class RedNotebook:
    reach, there = ["Control_L+p", "Control_L+Prior", "Control_L+Prior"], ["Control_L+Prior"]  # in its preview
    away, again = ["Control_L+Next"], ["Control_L+Prior"]
    album_page = ALBUM - 3
    unlock, turn, begin, to_turn, to_text = None, "Control_L+Prior", [], [], []

    def __init__(self, folder, count, photographs=()):
        diaries.monthly_files(f"{folder}/diary", count, {self.album_page: photographs})
        self.command = ["rednotebook", f"{folder}/diary"]


class CherryTree:
    reach, there, away, again = ["Control_L+Tab", "Right", "Down", "Right", "Down", "Down"], ["Down"], ["Up"], ["Down"]
    album_page = 3
    unlock, turn = None, "Down"
    to_turn, to_text = ["Control_L+Tab"], ["Control_L+Tab"]  # to the tree, and to the text, where it begins
    begin = ["Control_L+Tab", "Down", "Right", "Down", "Right", "Down"]  # the first of January of its second year

    def __init__(self, folder, count, photographs=()):
        os.makedirs(folder)
        diaries.tree_database(f"{folder}/diary.ctb", count, {self.album_page: photographs})
        self.command = ["cherrytree", f"{folder}/diary.ctb"]


class Run:
    """One start of a program, with its figures."""

    def __init__(self, screen, keyboard, program, home):
        self.screen, self.keyboard, self.program, self.figures = screen, keyboard, program, {}
        self.start = time.monotonic()
        environment = {**os.environ, "HOME": home}
        self.process = subprocess.Popen(program.command, env=environment, cwd=home, start_new_session=True,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def settle(self, since, quiet):
        return self.screen.settle(since, self.process.pid, quiet)

    def press(self, keys, quiet=0.3):
        return self.settle(self.keyboard.press(keys), quiet)

    def prepare(self, keys):
        """Presses keys whose effect is not measured."""
        for key in keys:
            self.keyboard.press(key)
            time.sleep(0.15)

    def open(self, label, quiet):
        drawn = self.settle(self.start, quiet)
        if self.program.unlock:
            self.figures[f"{label}: start to the lock, ms"] = drawn
            self.prepare([self.program.unlock])
            drawn += self.press(self.program.open, 0.6)
            opened = self.press(self.program.open, 0.6)
            self.figures[f"{label}: from the bookcase to the page, ms"] = opened
            drawn += opened
        self.figures[f"{label}: start to the page, ms"] = drawn
        self.figures[f"{label}: memory then, MB"] = resident(self.process.pid)

    def turn(self):
        self.prepare(self.program.begin)
        unchanged = [self.press(self.program.turn) for _ in range(TURNS)]
        changed = []
        for _ in range(TURNS):
            self.prepare(self.program.to_text + ["a"] + self.program.to_turn)
            changed.append(self.press(self.program.turn))
        self.figures["10,000 pages: turn, ms"] = middle(unchanged)
        self.figures["10,000 pages: turn from a changed page, ms"] = middle(changed)
        self.figures["10,000 pages: memory after the turns, MB"] = resident(self.process.pid)

    def visit(self):
        """A page with photographs that was never seen, nor lingered beside; and once more from its neighbour."""
        self.prepare(self.program.reach)
        self.figures["seven photographs: first visit, ms"] = self.press_last_of(self.program.there)
        self.press_last_of(self.program.away)
        self.figures["seven photographs: second visit, ms"] = self.press_last_of(self.program.again)
        self.figures["seven photographs: memory then, MB"] = resident(self.process.pid)

    def press_last_of(self, keys):
        self.prepare(keys[:-1])
        return self.press(keys[-1], 1)

    def end(self):
        for member in reversed(family(self.process.pid)):
            try:
                os.kill(member, signal.SIGKILL)
            except ProcessLookupError:
                pass
        self.process.wait()


def middle(values):
    """The median of those that could be measured."""
    measured = [value for value in values if value == value]
    return statistics.median(measured) if measured else float("nan")


def take_photographs(folder):
    """Of 12 megapixels and 3.4 MB, about as hard to decode as those of a camera."""
    paths = [f"{folder}/photo{number}.jpg" for number in range(PHOTOGRAPHS)]
    for number, path in enumerate(paths):
        subprocess.run(["convert", "-seed", str(number), "-size", "4000x3000", "plasma:", "-attenuate", "0.1",
                        "+noise", "gaussian", "-quality", "90", path], check=True)
    return paths


def measure(screen, keyboard, kind, folder, photographs):
    home = f"{folder}/{kind.__name__}"
    os.makedirs(home)
    short, long = kind(f"{home}/short", 1), kind(f"{home}/long", PAGES)
    album = kind(f"{home}/album", ALBUM, photographs)
    rounds = []
    for number in range(ROUNDS + 1):
        small = Run(screen, keyboard, short, home)
        small.open("1 page", 1)
        small.end()
        big = Run(screen, keyboard, long, home)
        big.open("10,000 pages", 1.5)
        big.turn()
        if number == ROUNDS:
            subprocess.run(["import", "-window", "root", f"build/compare/{kind.__name__}.png"], check=False)
        big.end()
        pictured = Run(screen, keyboard, album, home)
        pictured.open("40 pages", 1.5)
        pictured.figures.clear()
        pictured.visit()
        if number == ROUNDS:
            subprocess.run(["import", "-window", "root", f"build/compare/{kind.__name__}-album.png"], check=False)
        pictured.end()
        if number > 0:  # the first warms the file cache and makes the program's own settings
            rounds.append({**small.figures, **big.figures, **pictured.figures})
    return {figure: middle(run[figure] for run in rounds) for figure in rounds[0]}


def main():
    screen, keyboard = Screen(sys.argv[1]), Keyboard()
    with tempfile.TemporaryDirectory() as folder:
        photographs = take_photographs(folder)
        results = [measure(screen, keyboard, kind, folder, photographs) for kind in (Thornquill, RedNotebook, CherryTree)]
    print("| median of 5 starts | Thornquill | RedNotebook | CherryTree |\n|---|---|---|---|")
    for figure in results[0]:
        cells = [f"{result[figure]:.0f}" if figure in result else "" for result in results]
        print(f"| {figure} | {' | '.join(cells)} |")


main()
