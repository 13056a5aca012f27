"""Runs the tests on each planted fault and lists those that no test finds.

usage: run.py BUILD LIST HARMLESS TABLE [JOBS]

BUILD holds the tests with all faults planted, LIST tells what they are. A fault is put in force by ORVANE_PLANTED, and
only tests that come to it are run until one fails: first those that found most other faults of its file, then the
quickest. What plays long and at random holds no rule by its name, and is left out. HARMLESS lists faults that change nothing for
anyone, each with the reason; any other that survives makes this fail. TABLE is where the counts go, as Markdown. Beside
it, in verdicts.txt, stands which test has found which fault; the next time that test is the first to look for it.
"""
import json
import os
import subprocess
import sys
import tempfile
import time
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

LEFT_OUT = ("play-playthrough", "play-battle-random", "play-selftest")
MEMORY = 4 << 30  # bytes; a fault may ask for more without end
SLEEP = 120  # seconds; how long a test may stand without computing


class Test:
    """A command, how long it takes, and the faults that it comes to."""

    def __init__(self, name, words, folder, variables):
        self.name, self.words, self.folder, self.variables = name, words, folder, variables
        self.seconds, self.reached = 0.0, set()

    def passes(self, number, seconds, reached=None):
        """Whether it passes with a fault, in so many seconds of a processor: a busy machine finds nothing."""
        with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as scratch:
            environment = dict(os.environ, **self.variables, ORVANE_PLANTED=str(number), TMPDIR=scratch)
            if reached:
                environment["ORVANE_REACHED"] = reached
            process = subprocess.Popen(["prlimit", f"--cpu={seconds}", f"--as={MEMORY}", "--core=0", *self.words],
                                       cwd=self.folder, env=environment, stdin=subprocess.DEVNULL,
                                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            try:
                return process.wait(SLEEP + 10 * seconds) == 0
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
                return False

    def measure(self):
        with tempfile.NamedTemporaryFile() as reached:
            begin = time.monotonic()
            if not self.passes(0, 600, reached.name):
                raise SystemExit(f"{self.name} fails without a fault")
            self.seconds = time.monotonic() - begin
            self.reached = {int(word) for word in Path(reached.name).read_text().split()}

    def finds(self, number):
        return not self.passes(number, 3 + int(5 * self.seconds))


def all_tests(build):
    """The scenarios as they are, the unit tests suite by suite."""
    listed = json.loads(subprocess.check_output(["ctest", "--show-only=json-v1"], cwd=build))
    for test in listed["tests"]:
        words, name = test.get("command", []), test["name"]
        properties = {entry["name"]: entry["value"] for entry in test["properties"]}
        folder = properties.get("WORKING_DIRECTORY", build)
        variables = dict(entry.split("=", 1) for entry in properties.get("ENVIRONMENT", []))
        if name.startswith("play-") and not name.startswith(LEFT_OUT):
            yield Test(name, words, folder, variables)
        elif name == "unit":
            suites = subprocess.check_output([*words, "--gtest_list_tests"], cwd=folder, text=True).splitlines()
            for suite in suites:
                if suite and not suite.startswith(" ") and suite.split()[0].endswith("."):
                    yield Test("unit " + suite.split()[0], [*words, "--gtest_fail_fast", f"--gtest_filter={suite.split()[0]}*"],
                               folder, variables)


def name_of(fault):
    """Tells a fault from others, wherever its line moves."""
    which = f" (number {fault['which']} of this kind)" if fault["which"] > 1 else ""
    return f"{fault['file']} {fault['routine']}: {fault['right']} -> {fault['planted'] or 'nothing'}{which}"


def place_of(fault):
    return f"{fault['file']}:{fault['line']}, number {fault['number']}"


def found_before(verdicts):
    """The names of the tests that found faults the last time, by the names of the faults."""
    if not verdicts.exists():
        return {}
    lines = [line.split("\t") for line in verdicts.read_text().splitlines()]
    return {fault: test for test, fault, _ in lines}


def table_of(faults, verdicts, harmless):
    counts = {}
    for fault, found in zip(faults, verdicts):
        row = counts.setdefault(fault["file"].split("/")[1], Counter())
        row["planted"] += 1
        row["found" if found else "harmless" if name_of(fault) in harmless else "left"] += 1
    rows = ["| Floor | Planted | Found | Harmless | Left |", "| --- | --- | --- | --- | --- |"]
    for floor, row in [*sorted(counts.items()), ("all", sum(counts.values(), Counter()))]:
        rows.append(f"| {floor} | {row['planted']} | {row['found']} | {row['harmless']} | {row['left']} |")
    return "\n".join(rows) + "\n"


def main():
    build, listed, harmless_file, table = sys.argv[1:5]
    jobs = int(sys.argv[5]) if len(sys.argv) > 5 else os.cpu_count()
    faults = json.loads(Path(listed).read_text())["faults"]
    harmless = {line.split(" # ")[0].strip() for line in Path(harmless_file).read_text().splitlines()
                if line and not line.startswith("#")}
    tests = list(all_tests(build))
    verdicts_file = Path(table).with_name("verdicts.txt")
    before = found_before(verdicts_file)
    begin = time.monotonic()
    with ThreadPoolExecutor(jobs) as pool, open(verdicts_file, "w", encoding="utf-8") as file:
        list(pool.map(Test.measure, tests))
        tests = sorted((test for test in tests if test.reached), key=lambda test: test.seconds)
        reached = set().union(*(test.reached for test in tests)) & {fault["number"] for fault in faults}
        print(f"{len(tests)} tests come to {len(reached)} of {len(faults)} faults, in "
              f"{sum(test.seconds for test in tests):.0f} s", flush=True)

        finds = Counter()

        def judge(fault):
            number, name, where = fault["number"], name_of(fault), fault["file"]
            coming = [test for test in tests if number in test.reached]
            coming.sort(key=lambda test: (test.name != before.get(name), -finds[where, test.name]))
            found = next((test.name for test in coming if test.finds(number)), None)
            finds[where, found] += 1
            print(found or "none", name, place_of(fault), sep="\t", file=file, flush=True)
            if not found and name not in harmless:
                print("survives:", name, place_of(fault), flush=True)
            return found

        verdicts = list(pool.map(judge, faults))
    print(f"{(time.monotonic() - begin) / 60:.0f} minutes\n")
    rows = table_of(faults, verdicts, harmless)
    Path(table).write_text(rows)
    print(rows, end="")
    return 0 if all(found or name_of(fault) in harmless for fault, found in zip(faults, verdicts)) else 1


if __name__ == "__main__":
    sys.exit(main())
