"""scripts/faults kills: kills the program at each call that changes a file, and at random moments."""
import contextlib, pathlib, random, tempfile, time

from diary import (DATA, KEPT_OPEN, LOG, UNFINISHED, Scenario, contents, furnish, next_start, play, read, run_all,
                   scenarios, texts, words)


def changes(log):
    """The calls that made, replaced or deleted a file by its name."""
    return [(call, pathlib.Path(path).name) for call, path in (text.split(" ", 1) for text in texts(log, "call"))
            if call in ("rename", "linkat", "unlink")]

def missing(scenario, log, files):
    """Files that were there before or have been made, and are gone, unless deleting them is the last thing that is done to them."""
    last = {name: call for call, name in changes(scenario.log)}
    deleted = {name for call, name in changes(log) if call == "unlink" and last[name] == "unlink"}
    made = {name for call, name in changes(log[:-1]) if call != "unlink"}
    return [name for name in (scenario.files.keys() | made) - deleted - files.keys() if DATA.fullmatch(name)]

def promised(log, death):
    """What was done two seconds before, and a little: the words, the password or those after it, and the journals' names."""
    steps = [text.split(" ", 1) for text in texts(log, "step")]
    every, steps = [step for _, step in steps], [step for when, step in steps if int(when) < death - 2300]
    done = steps[:len(steps) - steps[::-1].index("click cmdOK")] if "click cmdOK" in steps else []
    typed = lambda control, steps: [step.split(" ", 2)[2] for step in steps if step.startswith(f"type {control} ")]
    return set(words(" ".join(typed("txtM", steps)))), typed("txtNewPass", every)[max(len(typed("txtNewPass", done)) - 1, 0):] * bool(done), set(typed("txtPass", done)) & {"Home", "Second"}

def not_kept(folder, log, death):
    """What is missing after the next start."""
    if not death: return []
    known, passwords, names = promised(log, death)
    found = {}
    for name, data in contents(folder).items():
        with contextlib.suppress(Exception): found[name] = read(name, data, ord("7"))  # one that was damaged before stays so
    given, rows = found.get("journal.tqt", (None, []))
    there = {word for name, pages in found.items() if name.endswith(".tqf") for page in pages for word in page}
    return ([f"{known - there} were typed two seconds before"] * (not known <= there)
            + [f"the password is {given}, not of {passwords}"] * (passwords != [] and given not in passwords)
            + [f"{names} are not all in {rows}"] * (not names <= {name for name, _ in rows}))

def kill(scenario, faults):
    """How many unfinished files were left, and what was wrong."""
    with tempfile.TemporaryDirectory(prefix="faults-") as top:
        folder = pathlib.Path(top)
        furnish(folder, scenario.files)
        begun = time.monotonic()
        code, log = play(folder, scenario.script, **faults, **scenario.disk)
        death = (begun + faults["seconds"]) * 1000 if "seconds" in faults else 0
        if code == 0 and "seconds" in faults: return kill(scenario, {"seconds": faults["seconds"] * 0.9})  # it was faster
        files = contents(folder)
        wrong = [f"{name} is neither as before nor as after" for name, data in files.items()
                 if DATA.fullmatch(name) and data not in scenario.versions[name]]
        wrong += [f"{name} is gone" for name in missing(scenario, log, files)]
        try: read(LOG, files[LOG], 0) if LOG in files else None
        except Exception as problem: wrong.append(f"the log is not whole: {problem}")
        unfinished = [name for name in files if not DATA.fullmatch(name) and name not in (LOG, LOG + UNFINISHED)]
        alien = [name for name in unfinished if not DATA.fullmatch(name.removesuffix(UNFINISHED))]
        wrong += [f"{unfinished} are left"] * (len(unfinished) > 1 or alien != []) + [f"ended with {code}"] * (code != -9)
        return len(unfinished), wrong or next_start(folder) + not_kept(folder, log, death)

def kills(number=2000):
    stage, chance = [scenario for scenario in scenarios() if scenario.name != "export"], random.Random(number)
    plans = [(scenario, {"CALL": i, "HOW": how}) for scenario in stage for i, (call, _) in enumerate(scenario.calls, 1)
             for how in ("before", "half", "after") if how != "half" or "write" in call]
    print(*(f"{scenario.name}: {len(scenario.calls)} calls" for scenario in stage), f"{len(plans)} ways to be killed", sep=", ")
    plans = chance.sample(plans, min(len(plans), number * 4 // 5))
    open_page = Scenario("a page that stays open", {}, KEPT_OPEN)
    left = number - len(plans)
    for scenario in chance.choices(stage, k=left // 2) + [open_page] * (left - left // 2):
        plans.append((scenario, {"seconds": chance.uniform(scenario.seconds / 4, scenario.seconds)}))
    answers, findings = run_all(kill, plans)
    print(f"{len(answers)} kills, {sum(left for left, _ in answers)} left an unfinished file; {findings} findings")
    return findings
