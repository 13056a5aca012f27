"""Compares what no test comes to with the list of what is left out, and fails where they differ.

usage: judge.py REPORT LEFT_OUT

REPORT is gcovr's, as JSON. LEFT_OUT names lines and branches by their file and the line's text, so that it need not
follow every change, below the reason why no test comes to them:

    = REASON
    FILE: COUNT lines|branches: TEXT

Lines of a file with the same text count together. What is left out must be there and must be counted in full, neither
more nor less; only where the reason begins with "By chance" may it be less, since some runs come there.
"""
import json
import re
import sys
from collections import Counter
from pathlib import Path


def read_report(path):
    """What was not come to, by (file, sort, text), and how many lines and branches there are at all."""
    missed, total = Counter(), Counter()
    for file in json.loads(Path(path).read_text())["files"]:
        source = Path(file["file"]).read_text().splitlines()
        for line in file["lines"]:
            if line.get("gcovr/noncode"):
                continue
            text = source[line["line_number"] - 1].strip()
            total["lines"] += 1
            total["branches"] += len(line["branches"])
            if line["count"] == 0:
                missed[file["file"], "lines", text] += 1
            missed[file["file"], "branches", text] += sum(branch["count"] == 0 for branch in line["branches"])
    return +missed, total


def read_left_out(path):
    """What is left out, by (file, sort, text), and which of it only by chance."""
    left_out, by_chance, reason = Counter(), set(), None
    for number, line in enumerate(Path(path).read_text().splitlines(), 1):
        if not line or line.startswith("#"):
            continue
        if line.startswith("= "):
            reason = line[2:]
            continue
        entry = re.fullmatch(r"(\S+): (\d+) (line|branch)(?:e?s)?: (.+)", line)
        if not entry or reason is None:
            sys.exit(f"{path}:{number}: no entry below a reason: {line}")
        key = entry[1], entry[3] + ("es" if entry[3] == "branch" else "s"), entry[4]
        if key in left_out:
            sys.exit(f"{path}:{number}: stands there twice")
        left_out[key] = int(entry[2])
        if reason.startswith("By chance"):
            by_chance.add(key)
    return left_out, by_chance


def main():
    missed, total = read_report(sys.argv[1])
    left_out, by_chance = read_left_out(sys.argv[2])
    if not total["lines"] or not total["branches"]:
        sys.exit("nothing was counted")
    faults = Counter()
    for key in sorted(missed.keys() | left_out.keys()):
        file, sort, text = key
        found, known = missed[key], left_out[key]
        if found == known or (key in by_chance and found < known):
            continue
        faults[sort] += abs(found - known)
        if found > known:
            print(f"{file}: {found} {sort} that no test comes to, {known} of them left out by name: {text}")
        else:
            print(f"{file}: {known} {sort} are left out by name, and {found} are not come to: {text}")
    for sort in ("lines", "branches"):
        count = sum(number for key, number in left_out.items() if key[1] == sort)
        print(f"{total[sort]} {sort}, of which {count} are left out by name; {faults[sort]} are otherwise")
    sys.exit(1 if faults else 0)


main()
