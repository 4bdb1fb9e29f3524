"""scripts/faults kills: kills the program at each call that changes a file, and at random moments."""
import contextlib, itertools, os, pathlib, random, re, tempfile, time

from diary import (ADD_PICTURE, DATA, DRAG, KEPT_OPEN, LOG, ROOT, TURN, UNFINISHED, Scenario, contents, furnish, next_start, play, read,
                   run_all, scenarios, texts, words, words_in)


def changes(log):
    """The calls that made, replaced or deleted a file by its name."""
    calls = (text.split(" ", 1) for kind, text in log if kind in ("call", "by-window", "by-log", "by-file"))
    return [(call, pathlib.Path(path).name) for call, path in calls if call in ("rename", "linkat", "unlink")]

def missing(scenario, log, files):
    """Files that were there before or have been made, and are gone, unless deleting them is the last thing that is done to them."""
    last = {name: call for call, name in changes(scenario.log)}
    deleted = {name for call, name in changes(log) if call == "unlink" and last[name] == "unlink"}
    cut_off = {kind: at for at, (kind, _) in enumerate(log)}  # a thread's last call
    made = {name for call, name in changes([entry for at, entry in enumerate(log) if at != cut_off[entry[0]]]) if call != "unlink"}
    return [name for name in (scenario.files.keys() | made) - deleted - files.keys() if DATA.fullmatch(name)]

def promised(scenario, log, death):
    """What was done two seconds before, and a little: the words, the password or those after it, and the journals' names. And
    the words on pages that were turned when the next step came."""
    steps = [text.split(" ", 1) for text in texts(log, "step")]
    every, steps = [step for _, step in steps], [step for when, step in steps if int(when) < death - 2300]
    done = steps[:len(steps) - steps[::-1].index("click cmdOK")] if "click cmdOK" in steps else []
    typed = lambda control, steps: [step.split(" ", 2)[2] for step in steps if step.startswith(f"type {control} ")]
    passwords, given = ([*scenario.first_password, *typed("txtNewPass", some)] for some in (every, done))
    names = set(typed("txtPass", done)) & {"Home", "Second"}
    turns = [at for at, step in enumerate(every[:-1]) if step in TURN]
    steps = max(steps, every[:turns[-1]] if turns else [], key=len)
    return set(words(" ".join(typed("txtM", steps)))), passwords[len(given) - 1:] * bool(given), names

def out_of_place(scenario, found):
    """Each word is typed once, behind those before it: a page begins as it does in the end, and holds nothing else."""
    lasting = {name: read(name, data, ord("7")) for name, data in (scenario.files | scenario.result).items()
               if name.endswith(".tqf") and (name in scenario.result or name in found)}
    for name in (name for name in found if name.endswith(".tqf")):
        pages = itertools.zip_longest(found[name], lasting.get(name, []), fillvalue=[])
        if any(page != last[:len(page)] for page, last in pages if page): yield f"{found[name]} is in {name}"

def pictures_lost(scenario, found):
    """Where the script moves none, they lie as the files or the log told at its start."""
    name, moves = "tqpics.bin", {*DRAG, *ADD_PICTURE} & {*scenario.script}
    rows = lambda files: read(name, files[name], 0) if name in files else None
    return [] if moves or found.get(name) == rows(scenario.result) else [f"the pictures lie at {found.get(name)}"]

def not_kept(scenario, folder, log, death):
    """What is missing, or in another place, after the next start. What was there before is to be there at any moment."""
    known, passwords, names = promised(scenario, log, death)
    found = {}
    for name, data in contents(folder).items():
        with contextlib.suppress(Exception): found[name] = read(name, data, ord("7"))  # one that was damaged before stays so
    (given, rows), there = found.get("journal.tqt", (None, [])), words_in(found)
    known, names = known | (scenario.words - scenario.typed), names | (scenario.journals - scenario.added)
    return ([f"{known - there} are gone"] * (not known <= there)
            + [*out_of_place(scenario, found), *pictures_lost(scenario, found)]
            + [f"the password is {given}, not of {passwords}"] * (passwords != [] and given not in passwords)
            + [f"{names} are not all in {rows}"] * (not names <= {name for name, _ in rows}))

def earlier(scenario, faults):
    """The script was over before the kill was due: by another clock, or as the log had less to do."""
    if "seconds" in faults: return {"seconds": faults["seconds"] * 0.9}
    return faults | {"CALL": faults["CALL"] - 1} if faults["CALL"] > 1 and "OF" in faults else None

def kill(scenario, faults):
    """How many unfinished files were left, and what was wrong."""
    with tempfile.TemporaryDirectory(prefix="faults-") as top:
        folder = pathlib.Path(top)
        furnish(folder, scenario.files)
        begun = time.monotonic()
        code, log = play(folder, scenario.script, **faults, **scenario.disk)
        if code == 0 and earlier(scenario, faults): return kill(scenario, earlier(scenario, faults))
        death = int(*texts(log, "died")) or (begun + faults.get("seconds", 0)) * 1000
        files = contents(folder)
        wrong = [f"{name} is neither as before nor as after" for name, data in files.items()
                 if DATA.fullmatch(name) and data not in scenario.versions[name]]
        wrong += [f"{name} is gone" for name in missing(scenario, log, files)]
        try: read(LOG, files[LOG], 0) if LOG in files else None
        except Exception as problem: wrong.append(f"the log is not whole: {problem}")
        unfinished = [name for name in files if not DATA.fullmatch(name) and name not in (LOG, LOG + UNFINISHED)]
        alien = [name for name in unfinished if not DATA.fullmatch(name.removesuffix(UNFINISHED))]
        wrong += [f"{unfinished} are left"] * (len(unfinished) > 1 or alien != []) + [f"ended with {code}"] * (code != -9)
        return len(unfinished), wrong or next_start(folder) + not_kept(scenario, folder, log, death)

def ways(calls, **others):
    return [{"CALL": number, "HOW": how} | others for number, (call, _) in enumerate(calls, 1)
            for how in ("before", "half", "after") if how != "half" or "write" in call]

def miscounted(stage):
    """The calls that docs/trust.md tells of, and what they are."""
    table = pathlib.Path(ROOT, "docs/trust.md").read_text().partition("| scenario | calls |\n")[2].partition("\n\n")[0]
    told = re.findall(r"^\| (.*?): .* \| (\d+) \|$", table, re.MULTILINE)
    counted = [(scenario.name, str(len(scenario.calls))) for scenario in stage]
    return [f"docs/trust.md does not tell of {calls} calls in {name}" for name, calls in counted if (name, calls) not in told] + [
        f"docs/trust.md tells of {name}, which is not played" for name, _ in told if name not in dict(counted)]

def kills(number=2000):
    stage, chance = [scenario for scenario in scenarios() if scenario.name != "export"], random.Random(number)
    open_page = Scenario("a page that stays open", {}, KEPT_OPEN)
    at_calls = [(scenario, faults) for scenario in stage for faults in ways(scenario.calls)]
    at_log = [(scenario, faults) for scenario in (*stage, open_page) for faults in ways(scenario.by_log, OF="log")]
    at_file = [(scenario, faults) for scenario in stage for faults in ways(scenario.by_file, OF="file")]
    print(*(f"{scenario.name}: {len(scenario.calls)} calls" for scenario in stage), f"{len(at_calls)} ways to be killed",
          f"{len(at_log)} more at some {len(open_page.by_log)} calls of the log",
          f"{len(at_file)} more at some {sum(len(scenario.by_file) for scenario in stage)} of a file on its way", sep=", ")
    told_wrong = miscounted(stage)
    print(*told_wrong, sep="\n", end="\n" * bool(told_wrong))
    plans = chance.sample(at_calls, min(len(at_calls), number // 2)) + chance.sample(at_log, min(len(at_log), number // 4))
    plans += chance.sample(at_file, min(len(at_file), number // 8))
    rolled = [scenario for scenario in stage if LOG in scenario.files]
    for turn in range(number - len(plans)):
        scenario = (open_page, chance.choice(rolled), chance.choice(stage), open_page)[turn % 4]
        plans.append((scenario, {"seconds": chance.uniform(scenario.seconds / 4, scenario.seconds)}))
    answers, findings = run_all(kill, plans, 2 * os.cpu_count())  # they wait more than they work
    findings += len(told_wrong)
    print(f"{len(answers)} kills, {sum(left for left, _ in answers)} left an unfinished file; {findings} findings")
    return findings
