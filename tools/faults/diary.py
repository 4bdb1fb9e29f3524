"""What lies in a diary's folder, and how the real program is played in one: for scripts/faults."""
import collections, concurrent.futures, os, pathlib, re, shutil, struct, subprocess, tempfile, time, zlib

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROGRAM = os.environ.get("FAULTS_PROGRAM", ROOT / "build/release/thornquill")
LIBRARY = os.environ.get("FAULTS_LIBRARY", ROOT / "build/debug/tools/libfaults.so")
DATA = re.compile(r"(journal\.tqt|journal\.ini|tqpics\.bin|jpics\.bin|j\d{5}\.tqf)((\.\d)?\.damaged|\.\d\.other)?")
UNFINISHED = ".thornquill-unfinished"
LOG = "journal.tql"
HOME = tempfile.TemporaryDirectory(prefix="faults-home-")
shutil.copy(ROOT / "assets/frames/Film strip.gif", f"{HOME.name}/photo.gif")


def split(data, form):
    """The fields of the form, of which s is a counted text, and the bytes behind them."""
    fields = []
    for field in form:
        kind, size = ("<" + field, struct.calcsize("<" + field)) if field != "s" else ("<H", 2)
        fields.append(struct.unpack(kind, data[:size])[0])
        data = data[size:]
        if field == "s":
            fields[-1], data = data[:fields[-1]], data[fields[-1]:]
    return fields, data

def plain(scrambled): return bytes(byte - 4 for byte in scrambled[1::2]).decode("cp1252")
def words_in(files): return {word for name in files if name.endswith(".tqf") for page in files[name] for word in page}
def words(text): return re.findall(r"\bw\d+\b", text)

def read(name, data, shift):
    """What a person would find in a data file; an exception, if it is not whole."""
    rows = []
    if name == "journal.tqt":
        assert data.startswith(b"ZANDOLK JOURNAL INDEX FILE V00003")
        count, length = struct.unpack("<ii", data[33:41])
        password, (_, data) = plain(data[41:41 + length]), split(data[41 + length:], "i")
        for _ in range(count):
            row, data = split(data, "ssishisIihhhhI")
            rows.append((plain(row[0]), row[3].decode()))
        rows = password, rows
    elif name == "tqpics.bin":
        (count,), data = split(data, "i")
        for _ in range(count):
            row, data = split(data, "siiisisissiih")
            rows += [row[10:]] * any(row)
    elif name.endswith(".tqf"):
        assert data.startswith(b"ZANDOLK JOURNAL FILE V00001")
        (count,), data = split(data[539:], "i")
        for _ in range(count + 1):
            (body, _), data = split(data, "sd")
            rows.append(words(body[0::2].translate(bytes((byte - shift) % 255 for byte in range(256))).decode("latin-1")))
    elif name == LOG:
        assert data.startswith(b"ZANDOLK UNSTORED PAGES FILE V00001")
        data = data[34:]
        while data:
            tag, length, check, check_of_head = struct.unpack("<4sIII", data[:16])
            payload = data[16:16 + length]
            assert zlib.crc32(data[:12]) == check_of_head and zlib.crc32(payload) == check
            rows, data = rows + [(tag, payload)], data[16 + length:]
        assert rows[-1][0] == b"DONE"
    else:
        return data
    assert not data, "longer than it should be"
    return rows

def index_of(files):
    """The index that the next start goes by: the log's, where the file is still the one that it began from."""
    index = files.get("journal.tqt")
    for tag, payload in read(LOG, files[LOG], 0) if LOG in files else ():
        if tag != b"INDX": continue
        there_was, length, check = struct.unpack("<hQI", payload[:14])
        if (there_was and (length, check)) == (index and (len(index), zlib.crc32(index)) or 0): index = payload[14:]
    return index

def read_all(files):
    return {name: read(name, data, ord("7")) for name, data in files.items()}


# The scripts; tools/faults/Player.cpp tells what a step does.

def unlocked(password): return [f"type txtPass {password}", "click cmdOK"]
def opened(row): return [f"pick ListView1 {row}", "click cmdOpen"]
def typed(word): return [f"type txtM {word} "]

BEGIN = ["type txtPass Home", "type txtNewPass Rosebud7", "type txtNewPass2 Rosebud7", "click cmdOK"]
CLOSE, LEAVE = ["close frmJournal"], ["leave cmdClose"]
ADD_PICTURE = ["click btnInsertPicture", "type fileNameEdit photo.gif", "enter fileNameEdit", "click cmdOK"]
DRAG = ["click imgPhoto(0)", "drag imgController(0) 30 60"]
NEW_JOURNAL = ["click cmdAdd", "type txtPass Second", "click cmdOK"] + opened(1) + typed("w5")
PASSWORD = ["click cmdResetPass", *unlocked("Rosebud7")[:1], "type txtNewPass Quill7", "type txtNewPass2 Quill7", "click cmdOK"]
REST = ["rest 2400"]
OPTIONS = ["click cmdOptions", "click optColor(1)", *PASSWORD, "press cmdClose frmOptions", "click cmdOptions",
           "press cmdClose frmOptions"]
FIRST = BEGIN + opened(0) + typed("w1") + ["click btnNewPage"] + typed("w2") + ADD_PICTURE + DRAG + CLOSE + LEAVE
SITTING = (unlocked("Rosebud7") + opened(0) + typed("w3") + ["click btnFirstPage"] + typed("w4") + ["click btnLastPage"] + DRAG
           + CLOSE + NEW_JOURNAL + CLOSE + OPTIONS + LEAVE)
REMOVAL = unlocked("Quill7") + ["pick ListView1 1", "click cmdDelete"] + opened(0) + typed("w6") + ["end nothing"]
TURN = [f"click btn{where}" for where in ("NewPage", "FirstPage", "Back", "Next", "LastPage")]
LONG = (unlocked("Rosebud7") + opened(0) + typed("w3") + ["click btnFirstPage"] + typed("w4") + ["click btnNext", "click btnBack"]
        + typed("w5") + ["click btnNext"] + typed("w6") + CLOSE + opened(0) + ["click btnBack"] + typed("w7") + ["click btnNext", "end nothing"])
MENDING = unlocked("Rosebud7") + opened(0) + typed("w7") + ["click btnFirstPage"] + ADD_PICTURE + CLOSE + LEAVE
KEPT_OPEN = (BEGIN + REST + opened(0) + typed("w1") + REST + ["click btnNewPage"] + typed("w2") + REST + typed("w3") + CLOSE
             + NEW_JOURNAL + REST + CLOSE + ["click cmdOptions"] + PASSWORD + REST + ["click cmdClose"] + LEAVE)
# What the log holds when the program is killed: a first sitting; a journal and a picture that could not be saved, an open
# page, a new journal and another password.
BLOCK, FREE = ([f"run {command} $FAULTS_FOLDER/tqpics.bin{UNFINISHED}"] for command in ("mkdir", "rmdir"))
FIRST_KILLED = BEGIN + opened(0) + typed("w1") + ["click btnNewPage"] + typed("w2")
SITTING_KILLED = (unlocked("Rosebud7") + opened(0) + typed("w3") + CLOSE + NEW_JOURNAL + CLOSE + OPTIONS + opened(0) + BLOCK + DRAG
                  + FREE + ["click btnFirstPage"] + typed("w4"))
EXPORT = unlocked("Quill7") + ["pick ListView1 0", *["click cmdExport"] * 3, "close frmExport"] + LEAVE


def furnish(folder, files):
    for name in ("frames", "emoticons"): (folder / name).symlink_to(ROOT / "assets" / name)
    try: os.link(f"{HOME.name}/thornquill", folder / "thornquill")  # a copy could not be started while another thread forks
    except OSError: shutil.copy(PROGRAM, folder / "thornquill")  # on the small disk
    for name, data in files.items(): (folder / name).write_bytes(data)

def contents(folder):
    return {path.name: path.read_bytes() for path in folder.iterdir() if path.is_file() and path.suffix}

def play(folder, script, seconds=None, before=(), meanwhile=None, **faults):
    """Plays the script in the folder, with a kill after so many seconds; how the process ended, and its log: (what, text).
    Calls meanwhile(process, the log's path), if there is one, and counts the seconds from then on."""
    with tempfile.TemporaryDirectory(prefix="faults-") as desk:
        pathlib.Path(desk, "script").write_text("\n".join(script))
        pathlib.Path(desk, "log").touch()
        faults |= {"LOG": f"{desk}/log", "SCRIPT": f"{desk}/script", "FOLDER": folder}
        variables = {f"FAULTS_{name}": str(value) for name, value in faults.items()}
        variables |= {"QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8", "LD_PRELOAD": str(LIBRARY), "HOME": HOME.name}
        command, limit = [*before, folder / "thornquill"], seconds or 60
        process = subprocess.Popen(command, env=os.environ | variables, stderr=subprocess.DEVNULL)
        try:
            if meanwhile: meanwhile(process, pathlib.Path(desk, "log"))
            code = process.wait(limit)
        except subprocess.TimeoutExpired: code = -9 if seconds else "no end"
        finally: process.kill(), process.wait()
        return code, [tuple(line.split(" ", 1)) for line in pathlib.Path(desk, "log").read_text().splitlines()]

def killed(files, script):
    """What a kill leaves when the log has taken in all that the script did."""
    with tempfile.TemporaryDirectory(prefix="faults-") as top:
        folder = pathlib.Path(top)
        furnish(folder, files)
        code, log = play(folder, script + REST + ["run kill -9 $PPID"])
        assert code == -9 and (folder / LOG).exists(), log
        return contents(folder)

def with_rests(script): return [step for one in script for step in [one, "rest 300"][:1 + (one in TURN)]]
def texts(log, what): return [text for kind, text in log if kind == what]


class Scenario:
    """What is in the folder, what is played in it, and what comes of it undisturbed: its result, and all versions of each file."""
    def __init__(self, name, files, script, **disk):
        self.name, self.files, self.script, self.disk = name, files, script, disk
        begun = time.monotonic()
        code, self.log, self.result, versions = self.play()
        self.seconds = time.monotonic() - begun
        assert code == 0 and LOG not in self.result, (name, self.log)
        self.typed, self.added = ({word for step in script if step.startswith(f"type {control} ") for word in step.split()[2:]}
                                  for control in ("txtM", "txtPass"))
        found = read_all(self.result)
        self.words, self.journals = words_in(found), {name for name, _ in found["journal.tqt"][1]}
        index = index_of(files)
        self.first_password = [read("journal.tqt", index.removesuffix(b"?"), 0)[0]] if index else []
        assert self.typed <= self.words, (name, "something else was stored", self.log)
        self.calls, self.by_log, self.by_file = ([text.split(" ", 1) for text in texts(self.log, what)]
                                                 for what in ("call", "by-log", "by-file"))
        self.versions = collections.defaultdict(lambda: [None], {file: [data] for file, data in files.items()})
        if self.by_file: versions += self.play(script=with_rests(script))[3]  # of those on their way the newest alone is written
        deleted = [(pathlib.Path(path).name, None) for call, path in self.calls if call == "unlink"]
        for file, data in versions + deleted: self.versions[file].append(data)

    def play(self, script=None, **faults):
        with tempfile.TemporaryDirectory(prefix="faults-") as top:
            folder, kept = pathlib.Path(top, "diary"), pathlib.Path(top, "versions")
            folder.mkdir(), kept.mkdir()
            furnish(folder, self.files)
            code, log = play(folder, script or self.script, VERSIONS=kept, **faults, **self.disk)
            versions = [(path.name.split("@")[0], path.read_bytes()) for path in kept.iterdir()]
            return code, log, contents(folder), versions

def scenarios():
    sample = lambda name: {path.name: path.read_bytes() for path in ROOT.glob(f"tests/samples/{name}/j*.*")}
    yield (first := Scenario("first run", {}, FIRST))
    yield (grown := Scenario("a sitting", first.result, SITTING))
    assert read_all(grown.result)["j00000.tqf"] == [["w4"], ["w1"], ["w2", "w3"]], "the undisturbed run stored something else"
    yield Scenario("a journal removed", grown.result, REMOVAL)
    cut = {name: data + b"?" if name == "journal.tqt" else data[:len(data) * 2 // 3] for name, data in first.result.items()}
    yield Scenario("damaged files", cut, MENDING)
    yield Scenario("damaged files, simple disk", cut, MENDING, PLAIN=1)
    yield Scenario("older pictures", sample("4-older-pictures"), MENDING)
    large = sample("1-first-diary")
    body = b"".join(bytes([code + ord("7"), 30]) for code in b"{\\rtf1\\ansi\\pard " + b"x" * 80 + b" }")
    row = struct.pack(f"<H{len(body)}sd", len(body), body, 40000)
    pages = lambda count: large | {"j00000.tqf": large["j00000.tqf"][:539] + struct.pack("<i", count - 1) + row * count}
    yield Scenario("700 pages", pages(700), MENDING)
    yield (long := Scenario("1,400 pages", pages(1400), LONG, SLOW_FILE=40))
    found = read_all(long.result)["j00000.tqf"]
    assert [page for page in found if page] == [["w4", "w5"], ["w6"], ["w7"], ["w3"]] and len(found) == 1400, found
    assert long.by_file, "its file was not written while the player went on"
    left = killed({}, FIRST_KILLED)
    yield Scenario("log of a first sitting", left, unlocked("Rosebud7") + opened(0) + typed("w3") + CLOSE + LEAVE)
    left = killed(first.result, SITTING_KILLED)
    yield (rolled := Scenario("log of a sitting", left, unlocked("Quill7") + opened(0) + typed("w6") + CLOSE + LEAVE))
    assert read_all(rolled.result)["j00000.tqf"] == [["w4"], ["w1"], ["w2", "w3", "w6"]], "the log has not come back whole"
    yield Scenario("export", grown.result, EXPORT)

def next_start(folder):
    """What is wrong at the next start, which must show what the files hold and clear away what is no file."""
    index = index_of(contents(folder))
    if not index: play(folder, BEGIN + LEAVE)
    elif (folder / LOG).exists(): play(folder, unlocked(read("journal.tqt", index.removesuffix(b"?"), 0)[0]) + LEAVE)
    files = contents(folder)
    password, rows = read("journal.tqt", files["journal.tqt"].removesuffix(b"?"), 0)
    known = {file for _, file in rows}
    rows += [(f"Recovered Lost Journal ({file})", file) for file in sorted(files) if file.endswith(".tqf") and file not in known]
    script, expected = [*unlocked(password), "see ListView1"], ["|".join(name for name, _ in rows)]
    for row, (_, file) in enumerate(rows):
        try: pages = read(file, files[file], ord("7"))[:3] if file in files else [[]]
        except Exception: pages = []
        turned = [step for _ in pages for step in ("see txtM", "click btnNext")][:-1]
        script += opened(row) + ["click btnFirstPage", *turned, *CLOSE]
        expected += pages
    code, log = play(folder, script + LEAVE)
    seen = texts(log, "see")[:1] + [words(text) for text in texts(log, "see")[1:]]
    return ([f"the next start ended with {code}, {log[-1:]}"] * (code != 0)
            + [f"{seen} is shown, not {expected}"] * (seen != expected)
            + [f"{name} is left for good" for name in contents(folder) if not DATA.fullmatch(name)])

def run_all(check, plans, at_once=os.cpu_count()):
    """The checks' answers; what is wrong is printed as it comes."""
    answers, pool = [], concurrent.futures.ThreadPoolExecutor(at_once)
    try:
        for (scenario, faults), answer in zip(plans, pool.map(lambda plan: check(*plan), plans)):
            answers.append(answer)
            for wrong in answer[-1]: print(f"{scenario.name}, {faults}: {wrong}", flush=True)
    finally: pool.shutdown(cancel_futures=True)  # the folders of those that still run go with them
    return answers, sum(len(answer[-1]) for answer in answers)
