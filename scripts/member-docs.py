#!/usr/bin/env python3
"""Makes a C++ header of the doc comments of public members: a constant per member, a namespace per class.

Usage: member-docs.py OUTPUT HEADER... A header declares the class that it is named after. Fails on a public member
without a doc comment.
"""

import pathlib
import re
import sys

NAME = re.compile(r"(~?\w+)\(")

HEAD = """#pragma once

#include <string_view>

namespace ostrel::bridge::docs {

// Made by scripts/member-docs.py from the doc comments of the headers.

"""
TAIL = """
} // namespace ostrel::bridge::docs
"""


def public_lines(text: str, name: str):
    """The numbered lines between the start of the class and its private part, without preprocessor lines."""
    inside = continued = False
    for number, line in enumerate(text.splitlines(), 1):
        if line.startswith(f"class {name} "):
            inside = True
        elif line == "private:":
            return
        elif continued or line.startswith("#"):
            continued = line.endswith("\\")
        elif inside:
            yield number, line.strip()


def members(text: str, owner: str):
    """Each public member function: its line, its name, and its doc comment as one text."""
    doc, declaration, start = [], "", 0
    for number, line in public_lines(text, owner):
        if line.startswith("///"):
            doc.append(line[3:].strip())
        elif line.startswith("//") or not line:
            doc = []
        else:
            start = start if declaration else number
            declaration += line + " "
            if line[-1] not in ";}":
                continue
            name = NAME.search(declaration)
            special = "= delete" in declaration or (name and name.group(1).lstrip("~") == owner)
            if name and not special and "std::function<" not in declaration:
                yield start, name.group(1), " ".join(doc)
            doc, declaration = [], ""


def constants_of(header: pathlib.Path):
    """The constants of one class as C++, and the number of members without a doc comment."""
    owner, faults, constants = header.stem, 0, []
    for number, name, doc in members(header.read_text(encoding="utf-8"), owner):
        if not doc:
            faults += 1
            print(f"{header}:{number}: {name} has no doc comment", file=sys.stderr)
        quoted = doc.replace("\\", "\\\\").replace('"', '\\"')
        constants.append(f'inline constexpr std::string_view {name} = "{quoted}";\n')
    if not constants:
        faults += 1
        print(f"{header}: no members of {owner} found", file=sys.stderr)
    return f"namespace {owner} {{\n" + "".join(constants) + "}\n", faults


def main() -> int:
    output, *headers = map(pathlib.Path, sys.argv[1:])
    parts = [constants_of(header) for header in headers]
    if any(faults for _, faults in parts):
        return 1
    content = HEAD + "".join(constants for constants, _ in parts) + TAIL
    # A change elsewhere in a header leaves the file, and what is built from it, alone.
    if not output.exists() or output.read_text(encoding="utf-8") != content:
        output.parent.mkdir(parents=True, exist_ok=True)
        output.write_text(content, encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
