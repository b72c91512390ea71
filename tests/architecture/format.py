#!/usr/bin/env python3
"""Checks that every C++ file is formatted as .clang-format says.

usage: format.py ROOT
"""

import pathlib
import subprocess
import sys

HOUSE = ("ferrowind", "host", "database", "tests", "bench", "fuzz", "docs")


def check(root: pathlib.Path) -> tuple[int, str]:
    """How many files there are, and clang-format's complaints about them."""
    files = sorted(
        path.relative_to(root).as_posix()
        for top in HOUSE for path in (root / top).rglob("*") if path.suffix in (".h", ".cpp"))
    if not files:
        return 0, f"no C++ file found under {root}"
    run = subprocess.run(
        ["clang-format", "--dry-run", "-Werror", "--style=file", *files],
        cwd=root, capture_output=True, text=True, check=False)
    if run.returncode == 0:
        return len(files), ""
    return len(files), run.stderr or f"clang-format ended with status {run.returncode}"


def main(arguments: list[str]) -> int:
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    count, complaints = check(pathlib.Path(arguments[0]))
    print(complaints or f"All {count} C++ files are formatted.")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
