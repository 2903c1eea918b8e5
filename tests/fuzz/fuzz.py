#!/usr/bin/env python3
"""Runs the fuzzers of the parsers.

    tests/fuzz/fuzz.py build/fuzz [--seconds N] [--seed N] [--target NAME]

Each gets its corpus from the tree, which stays as it is. An input that breaks something is kept in the folder "broken" of the build.
"""

import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

corpus = pathlib.Path(__file__).parent / "corpus"
longest_input = 4096  # bytes
longest_run = 10  # seconds for one input


def targets(build):
    """The names of the fuzzers that have been built."""
    return sorted(path.name.removeprefix("fuzz_") for path in (build / "tests/fuzz").glob("fuzz_*") if path.is_file())


def run(build, target, seconds, seed):
    """Runs one fuzzer. Returns how many inputs it has tried and what went wrong; None when nothing did."""
    broken = build / "broken"
    broken.mkdir(exist_ok=True)
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        inputs = folder / "corpus"
        inputs.mkdir()
        if (corpus / target).is_dir():
            shutil.copytree(corpus / target, inputs, dirs_exist_ok=True)
        for part in ("home", "prefix/drive_c/windows"):
            (folder / part).mkdir(parents=True)
        environment = {
            "PATH": os.environ["PATH"],
            "HOME": f"{folder}/home",
            "WINEPREFIX": f"{folder}/prefix",
            "TMPDIR": name,
            "LSAN_OPTIONS": f"suppressions={corpus.parent.parent}/support/lsan.supp:print_suppressions=0",
        }
        options = [f"-max_total_time={seconds}", f"-seed={seed}", f"-max_len={longest_input}", f"-timeout={longest_run}"]
        options += ["-rss_limit_mb=2048", "-print_final_stats=1", f"-artifact_prefix={broken}/{target}-"]
        run = subprocess.run([build / f"tests/fuzz/fuzz_{target}", *options, inputs], env=environment, capture_output=True, text=True, errors="replace")
    count = re.search(r"number_of_executed_units: (\d+)", run.stderr)
    if run.returncode == 0 and count:
        return int(count[1]), None
    lines = [line for line in run.stderr.splitlines() if re.search("broken:|ERROR|SUMMARY|runtime error|Test unit|    #[0-9] ", line)]
    return int(count[1]) if count else 0, "\n".join(lines[:20]) or run.stderr[-2000:]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--seconds", type=int, default=60)
    parser.add_argument("--seed", type=int, default=0)
    parser.add_argument("--target")
    options = parser.parse_args()
    wrong = 0
    for target in [options.target] if options.target else targets(options.build):
        count, failure = run(options.build, target, options.seconds, options.seed)
        print(f"{target}: {count:,}", flush=True)
        if failure:
            wrong += 1
            print(failure, file=sys.stderr, flush=True)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
