#!/usr/bin/env python3
"""Fails on an include that points to a higher floor, or to a neighbour on the same floor."""

import pathlib
import re
import sys

FLOORS = [
    ["text"],
    ["platform"],
    ["services"],
    ["html", "ui"],
    ["tablepages", "help", "net", "editors"],
    ["control"],
    ["bridge", "tables"],
    ["cli", "desktop", "desk"],
]
FLOOR_OF = {folder: number for number, folders in enumerate(FLOORS) for folder in folders}
# The host application is made of the windowed layer.
ALLOWED_NEIGHBOURS = {("desk", "desktop")}
# The rows of properties are included by their macro.
INCLUDE = re.compile(r'^\s*#\s*(?:include|define\s+PROPERTY_ROWS)\s+"([^"]+)"')


def main() -> int:
    root = pathlib.Path(__file__).resolve().parent.parent / "src"
    faults = 0
    for path in sorted(root.rglob("*")):
        if path.suffix not in (".h", ".cpp", ".def"):
            continue
        here = path.relative_to(root).parts[0]
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            if not match:
                continue
            there = match.group(1).split("/")[0]
            if there not in FLOOR_OF or there == here or (here, there) in ALLOWED_NEIGHBOURS:
                continue
            if FLOOR_OF[there] >= FLOOR_OF[here]:
                faults += 1
                print(f"src/{path.relative_to(root)}:{number}: {here} may not include {match.group(1)}")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
