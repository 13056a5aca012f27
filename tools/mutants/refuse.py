"""Notes which planted faults a compiler does not take.

usage: refuse.py SOURCES LIST BUILD_LOG

Marks in LIST every fault on a line for which BUILD_LOG tells an error, or the last one before it, to be left out at the
next planting. Fails when there is an error but no fault to blame.
"""
import json
import re
import sys
from pathlib import Path


def to_blame(faults, file, line):
    before = [fault for fault in faults if fault["file"] == file and fault["line"] <= line]
    on_it = [fault for fault in before if line <= fault["last"]]
    return on_it or before[-1:]


def main():
    root, target, log = sys.argv[1:]
    listed = json.loads(Path(target).read_text())
    text = Path(log).read_text()
    bad = []
    # A compiler's path may begin anywhere above the sources.
    for file, line in set(re.findall(rf"^\S*\b{Path(root).name}/(src/\S+?):(\d+):\d+: (?:fatal )?error:", text, re.M)):
        bad += to_blame(listed["faults"], file, int(line))
    if not bad:
        raise SystemExit("the build fails, and no fault is to blame")
    refused = {tuple(spot) for spot in listed["refused"]}
    refused |= {(fault["file"], fault["begin"], fault["kind"]) for fault in bad}
    print(f"{len(refused) - len(listed['refused'])} faults are no programs")
    listed["refused"] = sorted(refused)
    Path(target).write_text(json.dumps(listed, indent=1))


if __name__ == "__main__":
    main()
