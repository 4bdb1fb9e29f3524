"""scripts/faults box: walks through the text box with random edits, beside a plain page that is told the same.

The walk is a test (tests/richtext/BoxWalkTest.cpp), which `scripts/test` takes from the same place each time; here it
begins at another one each day.
"""
import datetime, os, subprocess

from diary import ROOT

STEPS = 500  # of one run of the test, which takes one seed
SEEDS = 99_999


def box(steps=10_000, seed=0):
    runs = -(-steps // STEPS)
    seed = (seed or datetime.date.today().toordinal() * runs) % SEEDS or 1
    print(f"{runs * STEPS} steps through the text box, from seed {seed}", flush=True)
    walk = subprocess.run(
        [ROOT / "build/debug/tests/test_richtext", "--gtest_filter=BoxWalk.*", "--gtest_brief=1", "--gtest_shuffle",
         f"--gtest_repeat={runs}", f"--gtest_random_seed={seed}"],
        env={**os.environ, "QT_QPA_PLATFORM": "offscreen"}, capture_output=True, text=True)
    print(walk.stdout if walk.returncode else "0 findings")
    return walk.returncode
