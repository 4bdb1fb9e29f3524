"""scripts/faults disks and tmpfs: takes the disk away, by failing calls and by a small disk of its own."""
import collections, contextlib, pathlib, random, re, struct, subprocess, tempfile

from diary import (CLOSE, DRAG, FIRST, HOME, LEAVE, LOG, NEW_JOURNAL, OPTIONS, Scenario, UNFINISHED, contents, furnish, index_of, opened,
                   play, read, read_all, run_all, scenarios, texts, typed, unlocked)


ENOSPC, EIO, EROFS, EACCES = 28, 5, 30, 13

def errors(call):
    if "write" in call: return ENOSPC, -ENOSPC, f"{EIO} once"
    return (ENOSPC, f"{EIO} once") if call in ("fsync", "close") else (ENOSPC, EROFS, EACCES)

def may_be_silent(log, faults):
    """A journal of which all is stored may close though its file cannot be written once more; at the order to end nobody is asked;
    and behind a file on its way that fails there may be a newer one, which is written then."""
    if "OF" in faults: return True
    before = log[:[kind for kind, _ in log].index("fault")]
    last = [text.split(" ", 1)[1] for kind, text in before if kind == "step"][-1]
    return last in (CLOSE[0], "shut frmJournal", "end nothing")

def rolled_forward(files):
    """What the files hold when a next start has brought back what the log holds."""
    if LOG not in files: return files
    with tempfile.TemporaryDirectory(prefix="faults-") as top:
        furnish(pathlib.Path(top), files)
        play(pathlib.Path(top), unlocked(read("journal.tqt", index_of(files), 0)[0]) + LEAVE)
        return contents(pathlib.Path(top))

def fail(scenario, faults):
    """The boxes that an undisturbed run does not show, and what was wrong."""
    code, log, result, versions = scenario.play(**faults)
    if "OF" in faults and "fault" not in dict(log): return fail(scenario, faults | {"CALL": faults["CALL"] - 1})  # it had less to do
    result = rolled_forward(result)
    wrong = [f"ended with {code}, {log[-1:]}"] * (code != 0)
    refused = [text.split(" ", 1) for text in texts(log, "fault")]
    stuck = {pathlib.Path(path).name for call, path in refused if call == "unlink" and path.endswith(UNFINISHED)}
    result = {name: data for name, data in result.items() if name not in stuck}  # the next start removes it
    for name, data in versions:
        try: read(name, data, 0)
        except Exception as problem: wrong += [f"{name} was not whole: {problem}"] * (data not in scenario.versions[name])
    call, name = refused[0][0], pathlib.Path(refused[0][1]).name
    new = [re.sub(r"/tmp/faults-\w+/diary", "DIARY", box) for box in texts(log, "box") if box not in texts(scenario.log, "box")]
    if any(box.startswith("The journal's file") for box in new) and "(no page)" in texts(log, "still"):
        wrong.append("the page is not on the screen")
    stays = call == "unlink" and name in result and new  # what could not be deleted is told of, and stays
    try: found, expected = read_all(result), read_all(scenario.result)
    except Exception as problem: wrong.append(f"not whole at the end: {problem}")
    else: wrong += [f"{found}, not {expected}"] * (not stays and found != expected)
    return new, wrong + [f"nothing is told of {call} {name}"] * (not new and not may_be_silent(log, faults))

def disks(number=None):
    stage = [scenario for scenario in scenarios() if LOG not in scenario.files]
    plans = [(scenario, {"CALL": i, "HOW": error} | of) for scenario in stage
             for calls, of in ((scenario.calls, {}), (scenario.by_file, {"OF": "file"}))
             for i, (call, _) in enumerate(calls, 1) for error in errors(call)]
    answers, findings = run_all(fail, random.Random(number).sample(plans, min(len(plans), number or len(plans))))
    told = collections.Counter(box for boxes, _ in answers for box in boxes[:1])
    if not number: print(*(f"{told[text]} x {text}" for text in sorted(told)), sep="\n")
    print(f"{len(answers)} runs with failing calls; {findings} findings")
    return findings


BREAK, MEND, SHUT = ["run sh $HOME/break"], ["run sh $HOME/mend"], ["shut frmJournal"]
TROUBLED = (unlocked("Rosebud7") + opened(0) + typed("w3") + BREAK + ["click btnBack", "click btnNext"] + DRAG + SHUT + MEND + CLOSE
            + NEW_JOURNAL + BREAK + SHUT + MEND + CLOSE + BREAK + OPTIONS[:-3] + ["click cmdClose"] + MEND + OPTIONS[-3:] + BREAK + ["click cmdClose"]
            + MEND + LEAVE)
EXPECTED = {"j00000.tqf": [[], ["w1"], ["w2", "w3"]], "j00001.tqf": [[], ["w5"]],
            "journal.tqt": ("Quill7", [("Home", "j00000.tqf"), ("Second", "j00001.tqf")])}
TROUBLES = {
    "no space": ("cat /dev/zero >filler", "rm filler"),
    "no space after 30 KB": ("cat /dev/zero >filler; truncate -s -30K filler", "rm filler"),
    "a read-only disk": ("mount -o remount,bind,ro .", "mount -o remount,bind,rw ."),
    "a read-only folder": ("chmod 500 .", "chmod 700 ."),
    "read-only files": ("chmod 400 j*.tq? tqpics.bin", "chmod 600 j*.tq? tqpics.bin"),
}

@contextlib.contextmanager
def small_disk(folder):
    folder.mkdir()
    subprocess.run(["mount", "-t", "tmpfs", "-o", "size=6m", "none", folder], check=True)
    try: yield folder
    finally: subprocess.run(["umount", "--lazy", folder], check=True)

def meet(breaking, mending, files):
    """The boxes, and what was wrong."""
    with tempfile.TemporaryDirectory(prefix="faults-") as top, small_disk(pathlib.Path(top, "diary")) as folder:
        furnish(folder, files)
        kept = pathlib.Path(top, "kept")
        kept.mkdir()
        pathlib.Path(HOME.name, "break").write_text(f"cd {folder}; {breaking}\n")
        pathlib.Path(HOME.name, "mend").write_text(f"cd {folder}; cp --backup=numbered *.tq? *.bin {kept}; {mending}\n")
        code, log = play(folder, TROUBLED, before=["setpriv", "--bounding-set", "-dac_override,-dac_read_search"])
        for path in kept.iterdir(): read(path.name.split(".~")[0], path.read_bytes(), 0)  # whole while the trouble lasted
        found, shown = read_all(contents(folder)), texts(log, "still")
        wrong = [f"ended with {code}, {log[-1:]}"] * (code != 0) + [f"{shown} was shown"] * (shown[:1] != ["w2 w3 "])
        wrong += ["nothing was told"] * (not texts(log, "box"))
        return ([text.replace(str(folder), "DIARY") for text in texts(log, "box")],
                wrong + [f"{found}, not {EXPECTED}"] * (not EXPECTED.items() <= found.items()))

def tmpfs():
    files, findings = Scenario("first run", {}, FIRST).result, 0
    journal = files["j00000.tqf"]
    files["j00000.tqf"] = journal[:543] + struct.pack("<H60000s", 60000, b"\xff " * 30000) + journal[545:]
    for trouble, commands in TROUBLES.items():
        boxes, wrong = meet(*commands, files)
        print(f"{trouble}:", *boxes, *(f"WRONG: {finding}" for finding in wrong), sep="\n  ")
        findings += len(wrong)
    print(f"{len(TROUBLES)} troubles; {findings} findings")
    return findings
