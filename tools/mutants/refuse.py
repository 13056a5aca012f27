"""Notes which planted faults a compiler does not take.

usage: refuse.py SOURCES LIST BUILD_LOG

Marks in LIST every fault on a line for which BUILD_LOG tells an error, to be left out at the next planting. Fails when
there is an error but no fault to blame.
"""
import json
import re
import sys
from pathlib import Path


def main():
    root, target, log = sys.argv[1:]
    root = Path(root).resolve()
    listed = json.loads(Path(target).read_text())
    errors = set()
    for file, line in re.findall(r"^(\S+?):(\d+):\d+: (?:fatal )?error:", Path(log).read_text(), re.M):
        path = Path(file)
        if path.is_absolute() and path.is_relative_to(root):
            errors.add((str(path.relative_to(root)), int(line)))
    bad = [fault for fault in listed["faults"]
           if any(file == fault["file"] and fault["line"] <= line <= fault["last"] for file, line in errors)]
    if not bad:
        raise SystemExit("the build fails, and no fault is to blame")
    refused = {tuple(spot) for spot in listed["refused"]}
    refused |= {(fault["file"], fault["begin"], fault["kind"]) for fault in bad}
    listed["refused"] = sorted(refused)
    Path(target).write_text(json.dumps(listed, indent=1))
    print(f"{len(bad)} faults are no programs")


if __name__ == "__main__":
    main()
