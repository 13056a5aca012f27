"""Runs the tests on each planted fault and lists those that no test finds.

usage: run.py BUILD LIST HARMLESS TABLE [JOBS]

BUILD holds the tests with all faults planted, LIST tells what they are. A fault is put in force by ORVANE_PLANTED, and
only tests that come to it are run, the quickest first, until one fails. HARMLESS lists faults that change nothing for
anyone, each with the reason; any other that survives makes this fail. TABLE is where the counts go, as Markdown.
"""
import json
import os
import shutil
import subprocess
import sys
import tempfile
import time
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path


class Test:
    """A command, how long it takes, and the faults that it comes to."""

    def __init__(self, name, words, folder):
        self.name, self.words, self.folder = name, words, folder
        self.seconds, self.reached = 0.0, set()

    def passes(self, number, limit, reached=None):
        environment = dict(os.environ, ORVANE_PLANTED=str(number))
        scratch = tempfile.mkdtemp()
        environment["TMPDIR"] = scratch
        if reached:
            environment["ORVANE_REACHED"] = reached
        try:
            done = subprocess.run(self.words, cwd=self.folder, env=environment, stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL, timeout=limit)
            return done.returncode == 0
        except subprocess.TimeoutExpired:
            return False
        finally:
            shutil.rmtree(scratch, ignore_errors=True)

    def measure(self):
        with tempfile.NamedTemporaryFile() as reached:
            begin = time.monotonic()
            if not self.passes(0, 600, reached.name):
                raise SystemExit(f"{self.name} fails without a fault")
            self.seconds = time.monotonic() - begin
            self.reached = {int(word) for word in Path(reached.name).read_text().split()}

    def finds(self, number):
        return not self.passes(number, 10 + 10 * self.seconds)


def all_tests(build):
    """The scenarios as they are, the unit tests suite by suite."""
    listed = json.loads(subprocess.check_output(["ctest", "--show-only=json-v1"], cwd=build))
    for test in listed["tests"]:
        words, name = test.get("command", []), test["name"]
        folder = next((entry["value"] for entry in test["properties"] if entry["name"] == "WORKING_DIRECTORY"), build)
        if name.startswith("play-"):
            yield Test(name, words, folder)
        elif name == "unit":
            suites = subprocess.check_output([*words, "--gtest_list_tests"], cwd=folder, text=True).splitlines()
            for suite in suites:
                if suite and not suite.startswith(" ") and suite.split()[0].endswith("."):
                    yield Test("unit " + suite.split()[0], [*words, f"--gtest_filter={suite.split()[0]}*"], folder)


def name_of(fault):
    return f"{fault['file']} {fault['routine']}: {fault['right']} -> {fault['planted'] or 'nothing'}"


def main():
    build, listed, harmless_file, table = sys.argv[1:5]
    jobs = int(sys.argv[5]) if len(sys.argv) > 5 else os.cpu_count()
    faults = json.loads(Path(listed).read_text())["faults"]
    harmless = {line.split(" # ")[0].strip() for line in Path(harmless_file).read_text().splitlines()
                if line and not line.startswith("#")}
    tests = list(all_tests(build))
    with ThreadPoolExecutor(jobs) as pool:
        list(pool.map(Test.measure, tests))
        tests = sorted((test for test in tests if test.reached), key=lambda test: test.seconds)
        print(f"{len(tests)} tests come to {len(set().union(*(test.reached for test in tests)))} of {len(faults)} faults",
              flush=True)

        def judge(fault):
            number = fault["number"]
            found = next((test.name for test in tests if number in test.reached and test.finds(number)), None)
            if not found:
                print("survives", name_of(fault), f"({fault['file']}:{fault['line']})", flush=True)
            return found

        verdicts = list(pool.map(judge, faults))
    counts = {}
    survivors = []
    for fault, found in zip(faults, verdicts):
        row = counts.setdefault(fault["file"].split("/")[1], Counter())
        row["planted"] += 1
        row["found"] += found is not None
        if not found:
            known = name_of(fault) in harmless
            row["harmless"] += known
            survivors += [] if known else [fault]
    rows = ["| Floor | Planted | Found | Harmless | Survived |", "| --- | --- | --- | --- | --- |"]
    for floor, row in [*sorted(counts.items()), ("all", sum(counts.values(), Counter()))]:
        left = row["planted"] - row["found"] - row["harmless"]
        rows.append(f"| {floor} | {row['planted']} | {row['found']} | {row['harmless']} | {left} |")
    Path(table).write_text("\n".join(rows) + "\n")
    print("\n".join(rows))
    return 1 if survivors else 0


if __name__ == "__main__":
    sys.exit(main())
