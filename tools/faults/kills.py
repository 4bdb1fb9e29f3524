"""scripts/faults kills: kills the program at each call that changes a file, and at random moments."""
import pathlib, random, tempfile

from diary import DATA, UNFINISHED, contents, furnish, next_start, play, run_all, scenarios, texts


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

def kill(scenario, faults):
    """How many unfinished files were left, and what was wrong."""
    with tempfile.TemporaryDirectory(prefix="faults-") as top:
        folder = pathlib.Path(top)
        furnish(folder, scenario.files)
        code, log = play(folder, scenario.script, **faults, **scenario.disk)
        if code == 0 and "seconds" in faults: return kill(scenario, {"seconds": faults["seconds"] * 0.9})  # it was faster
        files = contents(folder)
        wrong = [f"{name} is neither as before nor as after" for name, data in files.items()
                 if DATA.fullmatch(name) and data not in scenario.versions[name]]
        wrong += [f"{name} is gone" for name in missing(scenario, log, files)]
        unfinished = [name for name in files if not DATA.fullmatch(name)]
        alien = [name for name in unfinished if not DATA.fullmatch(name.removesuffix(UNFINISHED))]
        wrong += [f"{unfinished} are left"] * (len(unfinished) > 1 or alien != []) + [f"ended with {code}"] * (code != -9)
        return len(unfinished), wrong or next_start(folder)

def kills(number=2000):
    stage, chance = [scenario for scenario in scenarios() if scenario.name != "export"], random.Random(number)
    plans = [(scenario, {"CALL": i, "HOW": how}) for scenario in stage for i, (call, _) in enumerate(scenario.calls, 1)
             for how in ("before", "half", "after") if how != "half" or "write" in call]
    print(*(f"{scenario.name}: {len(scenario.calls)} calls" for scenario in stage), f"{len(plans)} ways to be killed", sep=", ")
    plans = chance.sample(plans, min(len(plans), number * 4 // 5))
    for scenario in chance.choices(stage, k=number - len(plans)):
        plans.append((scenario, {"seconds": chance.uniform(scenario.seconds / 4, scenario.seconds)}))
    answers, findings = run_all(kill, plans)
    print(f"{len(answers)} kills, {sum(left for left, _ in answers)} left an unfinished file; {findings} findings")
    return findings
