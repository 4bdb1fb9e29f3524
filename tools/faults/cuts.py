"""scripts/faults cuts: looks at every disk that a cut of the power may leave.

The calls of a script that change the disk are recorded in the real program, and replayed on a model of a disk, which tells
before each call, and at the end, what may be on the disk if the power goes now:

- Of a file's bytes only what an fsync of it has seen is there for certain. Of what was written since, each sector is on the
  disk or not, by itself. Where it is not, older bytes are, or zeros, which stand for whatever lay there; and the length is any
  between the oldest and the newest. So a file may be empty, cut off, of full length and all zeros, or have holes.
- Of a folder's names only what an fsync of the folder has seen is there for certain. Each creation, renaming, second name
  and deletion since is on the disk or not, by itself, whatever came before it or after it. One alone is never halved: a
  renaming takes the one name and gives the other. An fsync of a file says nothing of its name.

That is about what POSIX promises; of a renaming it says only that those who look on see one step. File systems promise more,
each something else, so what holds on all these disks holds on theirs. ext4, xfs and btrfs write names in their order, from one
journal or tree: one that is there tells that those before it are too; but btrfs brings those of an fsync'ed file forward.
All three bring a new file's name along with its fsync. ext4 has a new file's bytes on the disk before its length
(data=ordered), and before it is renamed over another one; with data=writeback the length may be first, and on the others a
file that was renamed too early is empty. FAT keeps no order at all. Left out: a disk that lies about an fsync or tears a
sector, and permissions.

What has been shown as done must be on every such disk: when the player takes its next step, the window is there again, and
whatever the calls before have made of the data files was shown as done. It may be as it was then, or newer. What was typed
two seconds before the cut, and is in no data file yet, must be there after the next start.
"""
import collections, functools, itertools, math, pathlib, random, tempfile

from diary import DATA, KEPT_OPEN, LOG, UNFINISHED, Scenario, furnish, next_start, read, run_all, scenarios
from kills import not_kept

SECTOR, ENUMERATED = 512, 64  # so many disks before a call, or contents of a file, are all looked at; of more, some by chance


class File:
    """The contents since the last fsync, the oldest first."""
    def __init__(self, data=b"", number=None): self.contents, self.number = [data], number

    def write(self, data): self.contents += [data] * (data != self.contents[-1])
    def sync(self): del self.contents[:-1]

    def remains(self, chance):
        """What may be there after the cut: all, or some by chance."""
        if len(self.contents) == 1: return self.contents
        sizes = sorted({len(data) for data in self.contents})
        sizes = sorted({*sizes, *range(sizes[0], sizes[-1], SECTOR)})
        sectors = [sorted({data[at:at + SECTOR].ljust(SECTOR, b"\0") for data in self.contents})
                   for at in range(0, sizes[-1], SECTOR)]
        ways = lambda size: sectors[:math.ceil(size / SECTOR)]
        if sum(math.prod(map(len, ways(size))) for size in sizes) <= ENUMERATED:
            return sorted({b"".join(pieces)[:size] for size in sizes for pieces in itertools.product(*ways(size))})
        some = [b"".join(map(chance.choice, ways(size)))[:size] for size in chance.choices(sizes, k=ENUMERATED // 4)]
        return self.contents + [bytes(sizes[-1])] + some


class Disk:
    def __init__(self, files):
        self.names = {name: File(data) for name, data in files.items()}  # as the program sees them
        self.certain, self.pending = dict(self.names), []  # each pending one: {name: its file, or None}

    def contents(self): return {name: file.contents[-1] for name, file in self.names.items()}

    def after(self, call, name, numbers, data):
        """Takes a call in, after which the folder has these names with their files' numbers; what it changed in the folder."""
        for known in numbers.keys() & self.names.keys():
            if not self.names[known].number: self.names[known].number = numbers[known]
        files = {file.number: file for file in self.names.values()}
        names = {known: files.get(number) or files.setdefault(number, File(number=number)) for known, number in numbers.items()}
        changed = {known: names.get(known) for known in names | self.names if names.get(known) is not self.names.get(known)}
        self.names, self.pending = names, self.pending + [changed] * bool(changed)
        if name in names: names[name].write(data)
        if call == "fsync" and name in names: names[name].sync()
        elif call == "fsync" and name == ".": self.certain, self.pending = dict(names), []
        return changed

    def folders(self, chance):
        """The folders that may be there: with every part of the pending changes, or some of them."""
        parts = itertools.product((False, True), repeat=len(self.pending))
        if 2 ** len(self.pending) > ENUMERATED:
            shares = [0, 1, *(chance.random() for _ in range(ENUMERATED))]
            parts = [[chance.random() < share for _ in self.pending] for share in shares]
        for part in parts:
            names = dict(self.certain)
            for change in itertools.compress(self.pending, part): names |= change
            yield {name: file for name, file in names.items() if file}

    def remains(self, chance, most):
        """What may be there after the cut: {name: bytes}. All disks, if they are no more than `most`, else so many by chance."""
        contents = functools.lru_cache(None)(lambda file: file.remains(chance))
        folders = list(self.folders(chance))
        files = [list(dict.fromkeys(folder.values())) for folder in folders]  # a file may have two names
        few = sum(math.prod(len(contents(file)) for file in some) for some in files) <= most
        for folder, some in zip(folders, files) if few else chance.choices(list(zip(folders, files)), k=most):
            for way in itertools.product(*map(contents, some)) if few else [[chance.choice(contents(file)) for file in some]]:
                data = dict(zip(some, way))
                yield {name: data[file] for name, file in folder.items()}


class Promise:
    """What was shown as done before a cut, and so must be there after it."""
    def __init__(self, scenario, last):
        self.scenario, self.last = scenario, last  # the names at the end of the script
        self.steps, self.now = [], 0  # when, and what the player did; in milliseconds, as the time of the cut is
        self.damaged = [data for name, data in scenario.files.items() if not is_whole(name, data)]
        self.whole = collections.defaultdict(lambda: {None}, {name: {data, None} for name, data in scenario.files.items()})
        self.shown = collections.defaultdict(lambda: {None}, {name: {data} for name, data in scenario.files.items()})

    def when(self): return f"{self.now - self.steps[-1][0]} ms after {self.steps[-1][1]}"

    def show(self, contents):
        for name in self.whole | contents:
            self.shown[name] = {contents.get(name)}
            self.whole[name].add(contents.get(name))

    def replace(self, changed, before):
        """A file that had another name took this one, or the name is gone: both what was shown and this may be there."""
        for name, file in changed.items():
            if file in before or (not file and name not in self.last):
                self.whole[name].add(file and file.contents[-1])
                self.shown[name].add(file and file.contents[-1])


@functools.lru_cache(None)
def is_whole(name, data):
    try: read(name, data, ord("7"))
    except Exception: return False
    return True

def is_ours(name): return DATA.fullmatch(name) or name == LOG

# What a disk must hold: functions of its files and of the promise at the time of the cut. Nothing is shown as done of the log,
# which a thread of its own writes while the player goes on; what it is for, not_kept asks after the next start.

def not_whole(files, promise):
    return [f"{name} is not whole" for name, data in files.items() if is_ours(name)
            and (data not in promise.whole[name] or not (is_whole(name, data) or data == promise.scenario.files.get(name)))]

def not_there(files, promise):
    for name in filter(DATA.fullmatch, files.keys() | promise.shown.keys()):
        found, shown = files.get(name), promise.shown[name]
        if found in promise.whole[name] - shown:
            yield f"{name} is " + ("gone" if found is None else "there again" if shown == {None} else "older than was shown")

def not_set_aside(files, promise):
    return ["a damaged file's bytes are lost"] * (not set(promise.damaged) <= set(files.values()))

def left_behind(files, promise):
    left = [name for name in files if not is_ours(name) and name != LOG + UNFINISHED]
    alien = [name for name in left if not is_ours(name.removesuffix(UNFINISHED))]
    return [f"{len(left)} unfinished files are left"] * (len(left) > 1) + [f"{name} is no file of ours" for name in alien]

CHECKS = [not_whole, not_there, not_set_aside, left_behind]


def record(scenario):
    """What the script did: ("step", when, what) and ("disk", when, (call, name, {name: number}, bytes)), in turn."""
    with tempfile.TemporaryDirectory(prefix="faults-") as copies:
        events = [("step", "0", "the start")]
        code, log, *_ = scenario.play(RECORD=copies)
        assert code == 0, (scenario.name, log)
        for kind, text in log:
            if kind == "step": events.append((kind, *text.split(" ", 1)))
            if kind == "box": events.append(("step", events[-1][1], "the message " + text))
            if kind != "disk": continue
            time, number, call, name, *entries = text.split("/")
            numbers = {known: inode for known, inode in zip(entries[::2], entries[1::2]) if "." in known}
            copy = pathlib.Path(copies, number)
            events.append((kind, time, (call, name, numbers, copy.exists() and copy.read_bytes())))
        return events

def cut(scenario, events, most, chance):
    """Replays the script; each disk that may be left by a cut before a call and at the end, and what is wrong with it."""
    disk, last = Disk(scenario.files), [details for kind, _, details in events if kind == "disk"][-1][2]
    promise = Promise(scenario, last)
    for kind, time, details in [*events, ("end", events[-1][1], None)]:
        promise.now = int(time)
        if kind != "disk": promise.show(disk.contents())
        if kind == "step": promise.steps.append((promise.now, details))
        else:
            for files in disk.remains(chance, most):
                yield promise, files, [wrong for check in CHECKS for wrong in check(files, promise)]
        if kind == "end": assert disk.contents() == scenario.result, "the model does not hold what the real folder holds"
        if kind != "disk": continue
        before = set(disk.names.values())
        promise.replace(disk.after(*details), before)


class Left(dict):
    """A disk's files, the last time that a cut may leave them, what was done before it, and whether each is whole."""
    def __str__(self): return f"{self.when}: " + ", ".join(f"{name} with {len(data)} bytes" for name, data in sorted(self.items()))

def start(scenario, left):
    with tempfile.TemporaryDirectory(prefix="faults-") as top:
        furnish(pathlib.Path(top), left)
        log = [("step", f"{when} {what}") for when, what in left.steps]
        return left, next_start(pathlib.Path(top)) + not_kept(scenario, pathlib.Path(top), log, left.now)

def cuts(number=5000):
    stage, chance = [scenario for scenario in scenarios() if scenario.name != "export"], random.Random(number)
    if number >= 5000: stage.append(Scenario("a page that stays open", {}, KEPT_OPEN))  # which takes its time
    records = [record(scenario) for scenario in stage]
    most = max(ENUMERATED, number // sum(kind == "disk" for events in records for kind, *_ in events))
    startable, findings, looked = [], collections.Counter(), 0
    for scenario, events in zip(stage, records):
        distinct, told, states = {}, collections.Counter(), 0
        for promise, files, wrong in cut(scenario, events, most, chance):
            states += 1
            left = distinct.setdefault(frozenset(files.items()), Left(files))
            left.when, left.steps, left.now = promise.when(), list(promise.steps), promise.now
            left.whole = not any("not whole" in text for text in wrong)
            for text in wrong:
                if not told[text]: print(f"{scenario.name}, {left}: {text}", flush=True)
                told[text] += 1
        print(f"{scenario.name}: {sum(kind == 'disk' for kind, *_ in events)} calls, {states} disks, {len(distinct)} distinct")
        startable += [(scenario, left) for left in distinct.values() if left.whole]
        findings, looked = findings + told, looked + states
    for text, times in findings.most_common(): print(f"{times} x {text}")
    answers, wrong = run_all(start, chance.sample(startable, min(len(startable), number // 50)))
    print(f"{looked} disks, {len(answers)} starts on them; {sum(findings.values()) + wrong} findings")
    return sum(findings.values()) + wrong
