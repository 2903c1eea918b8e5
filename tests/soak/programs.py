"""The desktop program: left at random moments, and played with by the robot. Both are tests that take their numbers from outside."""

import os
import subprocess

from machine import Wrong

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
