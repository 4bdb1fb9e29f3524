"""The diary of bench/BigDiary.cpp in the files of two other programs: the same words, the same one of them bold."""
import datetime
import os
import sqlite3
import subprocess

LINES = ["The quick brown fox jumps over the lazy dog and is |back| before it rains."] * 35
SCHEMA = [
    "node (node_id INTEGER UNIQUE, name TEXT, txt TEXT, syntax TEXT, tags TEXT, is_ro INTEGER, is_richtxt INTEGER,"
    " has_codebox INTEGER, has_table INTEGER, has_image INTEGER, level INTEGER, ts_creation INTEGER,"
    " ts_lastsave INTEGER)",
    "codebox (node_id INTEGER, offset INTEGER, justification TEXT, txt TEXT, syntax TEXT, width INTEGER,"
    " height INTEGER, is_width_pix INTEGER, do_highl_bra INTEGER, do_show_linenum INTEGER)",
    "grid (node_id INTEGER, offset INTEGER, justification TEXT, txt TEXT, col_min INTEGER, col_max INTEGER)",
    "image (node_id INTEGER, offset INTEGER, justification TEXT, anchor TEXT, png BLOB, filename TEXT, link TEXT,"
    " time INTEGER)",
    "children (node_id INTEGER UNIQUE, father_id INTEGER, sequence INTEGER)",
    "bookmark (node_id INTEGER UNIQUE, sequence INTEGER)",
]


def pages(count):
    today = datetime.date.today()
    for number in range(1, count + 1):
        yield number, today - datetime.timedelta(count - number), [f"Page {number}."] + LINES


def monthly_files(folder, count, photographs):
    """RedNotebook: a file of YAML for each month. `photographs` has the paths of a page by its number; they are
    named in its text, 706 pixels wide."""
    os.makedirs(folder)
    for number, day, lines in pages(count):
        lines = [f'[""file://{path[:-4]}""{path[-4:]}?706]' for path in photographs.get(number, [])] + lines
        with open(f"{folder}/{day:%Y-%m}.txt", "a", encoding="utf-8") as file:
            file.write(f"{day.day}:\n  text: |-\n" + "".join(f"    {line.replace('|', '**')}\n" for line in lines))


def node_text(lines):
    runs = "".join(f"{line}\n" for line in lines).split("|")
    bold = ' weight="heavy"'
    return ('<?xml version="1.0" encoding="UTF-8"?>\n<node>' + "".join(
        f"<rich_text{bold if at % 2 else ''}>{run}</rich_text>" for at, run in enumerate(runs)) + "</node>")


def as_png(path):
    return subprocess.run(["convert", path, "-quality", "11", "png:-"], check=True, stdout=subprocess.PIPE).stdout


def tree_database(path, count, photographs):
    """CherryTree: a data base of nodes, days in months in years, as its own command for today's node makes them.
    `photographs` has the paths of a page by its number; it keeps them itself, as PNG."""
    empty = node_text([])
    with sqlite3.connect(path) as base:
        for table in SCHEMA:
            base.execute("CREATE TABLE " + table)
        numbers = {}

        def node(key, name, father, text, pictures=()):
            if key not in numbers:
                numbers[key] = len(numbers) + 1
                base.execute("INSERT INTO node VALUES (?, ?, ?, 'custom-colors', '', 0, 1, 0, 0, ?, 0, 0, 0)",
                             (numbers[key], name, text, int(bool(pictures))))
                for offset, picture in enumerate(pictures):
                    base.execute("INSERT INTO image VALUES (?, ?, 'left', '', ?, '', '', 0)",
                                 (numbers[key], offset, as_png(picture)))
                base.execute("INSERT INTO children VALUES (?, ?, ?)", (numbers[key], father, numbers[key]))
            return numbers[key]

        for number, day, lines in pages(count):
            year = node(day.year, f"{day:%Y}", 0, empty)
            month = node((day.year, day.month), f"{day:%B}", year, empty)
            node(day, f"{day:%d}", month, node_text(lines), photographs.get(number, []))
