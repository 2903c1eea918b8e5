"""Programs that take their random numbers from outside: the games with the desktop program, and the fuzzers."""

import os
import pathlib
import subprocess
import sys

from machine import Wrong

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "fuzz"))

import fuzz

patience = 900  # seconds


def run_test(stage, program, *arguments, **variables):
    environment = os.environ | {"QT_QPA_PLATFORM": "offscreen", "TMPDIR": str(stage.folder)} | variables
    try:
        run = subprocess.run([stage.programs.build / "tests" / program, *arguments], env=environment, capture_output=True, text=True, timeout=patience)
    except subprocess.TimeoutExpired:
        raise Wrong(f"{program} hangs") from None
    if run.returncode != 0:
        raise Wrong(f"{program}: status {run.returncode}: {(run.stdout + run.stderr)[-2000:]}")


class Leaving:
    """A round leaves the program at ten random moments on each of four pages."""

    name = "leaving"
    unit = "moments of leaving"
    goal = "500"
    share = 6
    rounds = 10

    def __init__(self, stage):
        self.stage = stage

    def play(self, seed):
        variables = {"SWEEPWISE_LEAVING_SEED": str(seed % (1 << 31)), "SWEEPWISE_LEAVING_ROUNDS": str(self.rounds)}
        run_test(self.stage, "ui/tst_leaving", "leavingTearsNothing", **variables)
        return 4 * self.rounds

    def close(self):
        pass


class Robot:
    """A round is a game on one page."""

    name = "robot"
    unit = "actions of the robot"
    goal = "200,000 a page"
    share = 20
    actions = 2000
    pages = ["dashboard", "junk", "browser", "registry", "startup", "large", "all"]

    def __init__(self, stage):
        self.stage = stage

    def play(self, seed):
        page = self.pages[seed % len(self.pages)]
        run_test(self.stage, "robot/tst_robot", "--page", page, "--seed", str(seed), "--actions", str(self.actions))
        return self.actions

    def close(self):
        pass


class Fuzzing:
    """A round is one fuzzer for a while."""

    name = "fuzzing"
    unit = "inputs of the fuzzers"
    goal = "10,000,000 a parser, or one hour"
    share = 15
    seconds = 20

    def __init__(self, stage):
        self.build = stage.programs.build.parent / "fuzz"
        self.targets = fuzz.targets(self.build)

    def play(self, seed):
        if not self.targets:
            raise RuntimeError("the fuzzers are not built")
        target = self.targets[seed % len(self.targets)]
        count, failure = fuzz.run(self.build, target, self.seconds, seed % (1 << 31) + 1)
        if failure:
            raise Wrong(f"{target}: {failure}")
        return count

    def close(self):
        pass
