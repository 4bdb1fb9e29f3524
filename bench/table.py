#!/usr/bin/python3
"""table.py JSON...: the figures of all benchmarks in one table, each beside its floor or its goal.

A figure that misses its goal is marked, and any mark makes the exit status 1. `processor` is what the program itself
took: where it is far below `measured`, the machine was busy with something else.
"""
import json
import re
import sys

found = {}
for path in sys.argv[1:]:
    with open(path, encoding="utf-8") as file:
        for run in json.load(file)["benchmarks"]:
            name = re.sub(r"/(min_time|iterations|repeats):[\d.]+|/(manual|real)_time", "", run["name"])
            found["slow/" * path.endswith("/slow.json") + name] = run


def of(name, key):
    """The median of the repetitions, or the one figure of a benchmark that is not repeated."""
    run = found.get(name + "_median") or found[name]
    return run[key]


def amount(number, unit):
    return f"{number:.0f} {unit}" if abs(number) >= 100 else f"{number:.3g} {unit}"


def row(figure, measured, processor, beside, ratio, goal, met):
    return figure, measured, processor, beside, ratio, goal, "" if met else "MISSED"


def time(figure, name, most):
    unit = found.get(name + "_median", found.get(name))["time_unit"]
    factor = {"ns": 1e-6, "us": 1e-3, "ms": 1, "s": 1e3}[unit]
    real, cpu = of(name, "real_time") * factor, of(name, "cpu_time") * factor
    return row(figure, amount(real, "ms"), amount(cpu, "ms"), "", "", f"{most:g} ms at most", real <= most)


def beside_floor(figure, name, most, unit="ms"):
    """At most so many times what the floor takes."""
    work, floor, ratio = of(name, "work_" + unit), of(name, "floor_" + unit), of(name, "times_floor")
    return row(figure, amount(work, unit), "", amount(floor, unit), f"{ratio:.2f}", f"{most:g} times at most",
               ratio <= most)


def speed(figure, name, least):
    """At least so much of the floor's speed."""
    work, floor, ratio = of(name, "work_ms"), of(name, "floor_ms"), 1 / of(name, "times_floor")
    return row(figure, amount(work, "ms"), "", amount(floor, "ms"), f"{ratio:.2f}",
               f"{least:g} of its speed", ratio >= least)


def counted(figure, name, key, most):
    """At most so many milliseconds of a counter."""
    return row(figure, amount(of(name, key), "ms"), "", "", "", f"{most:g} ms at most", of(name, key) <= most)


def rate(figure, name, least):
    pages = of(name, "pages")
    return row(figure, f"{pages:.0f} pages/s", "", "", "", f"{least:g} pages/s at least", pages >= least)


def memory(figure, name, key, most):
    return row(figure, f"{of(name, key):.0f} MB", "", "", "", f"{most:g} MB at most", of(name, key) <= most)


def more(figure, name, other, most):
    work, base = of(name, "real_time"), of(other, "real_time")
    cpu = of(name, "cpu_time") - of(other, "cpu_time")
    return row(figure, amount(work - base, "ms"), amount(cpu, "ms"), "", "", f"{most:g} ms at most", work - base <= most)


def linear(figure, name, few, many, most):
    """The time for each one of many, as a multiple of that for each of few."""
    ratio = of(f"{name}/{many}", "cpu_time") / many / (of(f"{name}/{few}", "cpu_time") / few)
    return row(figure, "", "", "", f"{ratio:.2f}", f"{most:g} times at most", ratio <= most)


def against(figure, name, other, most):
    ratio = of(name, "times_floor") / of(other, "times_floor")
    return row(figure, amount(of(name, "work_ms"), "ms"), "", amount(of(other, "work_ms"), "ms"), f"{ratio:.2f}",
               f"{most:g} times at most", ratio <= most)


ROWS = [
    (speed, "decipher a body of 1 MB; memcpy", "DecipherBody", 0.5),
    (speed, "encipher 0.5 MB of text; memcpy", "EncipherText", 0.1),
    (beside_floor, "read 10,000 pages, 63 MB; bare read", "ReadManyPages", 1.3),
    (beside_floor, "write 10,000 pages, 63 MB; bare write, sync, rename", "SaveManyPages", 1.2),
    (time, "a turn that stores, 365 pages", "TurnChangedPage", 16),
    (beside_floor, "the same; bare write, sync, rename", "TurnChangedPage", 1.5),
    (beside_floor, "log a page of 6 KB; bare write, sync, rename", "LogAPage/6144", 3),
    (beside_floor, "log a page of 1 MB; the same", "LogAPage/1048576", 3),
    (time, "the check of 2 MB", "CheckTwoMegabytes", 4),
    (beside_floor, "start to the first window; a bare one", "StartToFirstWindow", 1.3),
    (beside_floor, "resident memory after 3 s; a bare window", "ResidentAtRest", 1.3, "MB"),
    (beside_floor, "start with fifty journals; with one", "StartToFirstWindowWithFifty", 1.1),
    (time, "open 10,000 pages, to the page drawn", "OpenJournal/10000", 100),
    (memory, "resident memory with them open", "OpenJournal/10000", "resident_mb", 132),
    (memory, "and when they are closed again", "OpenJournal/10000", "closed_mb", 45),
    (time, "turn to an unchanged page of 3 KB, 10,000 pages", "TurnToAnUnchangedPage/10000", 8),
    (more, "what it takes more than in 10 pages", "TurnToAnUnchangedPage/10000", "TurnToAnUnchangedPage/10", 1),
    (time, "turn from a changed page, 10,000 pages", "TurnFromAChangedPage/10000", 16),
    *((beside_floor, f"the same, {pages} pages, 10 MB/s and 0.1 s a sync; bare write of 6 KB", f"slow/TurnFromAChangedPage/{number}", 1.3)
      for pages, number in (("100", 100), ("1,000", 1000), ("10,000", 10000))),
    (beside_floor, "close from a changed page, 10,000; bare write, sync, rename", "CloseAChangedJournal", 1.3),
    (more, "what a turn takes more beside 100,000 pictures", "TurnBesideAStore/100000", "TurnBesideAStore/0", 2),
    (time, "a key to its letter, 100 KB page", "TypeALetter/100000", 5),
    (counted, "the same beside the writing of its log", "TypeALetterBesideTheLog", "work_ms", 5),
    (beside_floor, "the same; without a log", "TypeALetterBesideTheLog", 1.1),
    (counted, "a key that waits for the log's copy", "TypeALetterBehindTheLook", "work_ms", 5),
    *((counted, f"{what}, {page}", f"LogThePage/{kind}", key, most)
      for kind, page in enumerate(["6 KB", "1 MB", "1 MB of 102,000 pieces", "1 MB of 85,000 paragraphs"])
      for what, key, most in [("log a page: longest step of its first copy", "step_ms", 16),
                              ("the copy after a letter", "again_ms", 16),
                              ("the same, with RTF, cipher and the log's bytes", "whole_ms", 200)]),
    (time, "the index of 10,000 pages", "OpenTheIndex/10000", 60),
    (linear, "the same, each page of 100,000", "OpenTheIndex", 10000, 100000, 1.3),
    (speed, "parse 1 MB of RTF; bare tokenizer", "Parse/1000000", 0.5),
    (speed, "parse 10 MB", "Parse/10000000", 0.5),
    (speed, "parse 100 MB", "Parse/100000000", 0.5),
    (against, "write 10 MB of RTF; its parsing", "Write/10000000", "Parse/10000000", 1.1),
    (speed, "1 MB into the text box; bare fill", "ValueIntoBox/1000000", 0.7),
    (time, "a page of 1 MB, to laid out and drawn", "ShowLongPage", 150),
    (time, "1 MB of tables, 14,000 rows, the same", "ShowTables", 600),
    (time, "a page of 50 emoticons, shown", "ShowEmoticons", 30),
    (time, "a key in one paragraph of soft line breaks, 100 KB", "TypeInOneParagraph/100000/1", 16),
    (counted, "the caret's blink there", "TypeInOneParagraph/100000/1", "blink_ms", 2),
    (time, "a key in one paragraph of words, 100 KB", "TypeInOneParagraph/100000/0", 16),
    (beside_floor, "the caret's blink at item 20,000 of a list; without labels", "Blink/1", 2),
    (beside_floor, "the same at the top of it", "Blink/0", 2),
    (time, "a bitmap of 12 megapixels pasted, to the window going on", "PasteAPhoto", 500),
    (counted, "to its file, made beside", "PasteAPhoto", "file_ms", 6000),
    (time, "a selection with a bitmap of 1600 x 1200, copied", "CopyABitmap", 16),
    (memory, "fifty pictures of 1 MB pasted: the peak", "PasteFiftyPictures", "peak_mb", 350),
    (memory, "and what rests", "PasteFiftyPictures", "rest_mb", 200),
    (beside_floor, "seven 12-megapixel photographs, 25 %; decoding in full", "SevenPhotographs/25", 0.8),
    (beside_floor, "the same, 10 %", "SevenPhotographs/10", 0.65),
    (beside_floor, "their first visit, 25 %; decoding them for it one after another", "SevenSideBySide", 0.6),
    (time, "their second visit", "SevenSeenBefore", 16),
    (time, "their first visit from a page on which one has lingered", "SevenOfANeighbour", 16),
    *((counted, f"Add Picture of 48 megapixels, {name}: {what}", f"AddALargePhoto/{kind}", key, most)
      for kind, name in enumerate(["JPEG", "PNG"])
      for what, key, most in [("to its window", "window_ms", 100), ("its window's longest wait", "deaf_ms", 50)]),
    (counted, "its small copy seen, where a camera stored one", "AddALargePhoto/0", "copy_ms", 100),
    *((time, f"a press of a scale button, {percent} %", f"ScaleSeenLive/{percent}", 33) for percent in (10, 25, 200)),
    (memory, "what 200 such pages, 10 %, leave in memory", "TwoHundredPages", "more_mb", 64),
    (rate, "export 1,000 pages as one file", "Export/multi:0", 250),
    (rate, "export 1,000 pages as a site", "Export/multi:1", 250),
    (speed, "its lines; bare open, append, close", "WriteLines", 0.6),
    (linear, "its links, each page of 10,000", "LinksOfAllPages", 1000, 10000, 1.3),
    (time, "ReplaceText on 1 MB of short lines", "ReplaceLineEndsInAMegabyte", 50),
    (linear, "join the pages to be printed, each of 2,000", "JoinThePages", 1000, 2000, 1.3),
    (time, "print 10,000 pages to PDF", "PrintAllToPdf/10000", 180000),
    (memory, "its peak of memory", "PrintAllToPdf/10000", "peak_mb", 1500),
]

table = [("figure; its floor", "measured", "processor", "floor", "ratio", "goal", "")]
table += [kind(*arguments) for kind, *arguments in ROWS]
widths = [max(len(line[column]) for line in table) for column in range(len(table[0]))]
table.insert(1, tuple("-" * width for width in widths))
for line in table:
    print("| " + " | ".join(cell.ljust(width) for cell, width in zip(line, widths)) + " |")
sys.exit(any(line[-1] == "MISSED" for line in table))
