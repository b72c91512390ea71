#!/usr/bin/env python3
"""Checks that every C++ file is formatted as .clang-format says.

usage: format.py ROOT

Each release of clang-format breaks some lines otherwise than the one before, so one of them decides. Where another one is
installed, as on Debian 13, the check is of what they all agree on: the width of lines, blanks and ends.
"""

import pathlib
import re
import subprocess
import sys

DECIDING_RELEASE = 14
RAW_STRING = re.compile(r'R"(\w*)\(.*?\)\1"', re.DOTALL)
HOUSE = ("ferrowind", "host", "database", "tests", "bench", "fuzz", "docs")


def installed_release() -> int:
    run = subprocess.run(["clang-format", "--version"], capture_output=True, text=True, check=True)
    return int(re.search(r"version (\d+)", run.stdout).group(1))


def width_limit(root: pathlib.Path) -> int:
    return int(re.search(r"^ColumnLimit: (\d+)$", (root / ".clang-format").read_text(encoding="utf-8"), re.MULTILINE).group(1))


def plain_complaints(text: str, limit: int) -> list[str]:
    """What no release would leave so, each with its line. A comment or a text that cannot be broken may be wider."""
    complaints = []
    text = RAW_STRING.sub(lambda string: '""' + "\n" * string.group().count("\n"), text)
    for number, line in enumerate(text.splitlines(), 1):
        code = re.sub(r'"[^"]*"|//.*', "", line)
        if len(code) > limit:
            complaints.append(f"{number}: wider than {limit}")
        if line != line.rstrip() or "\t" in line:
            complaints.append(f"{number}: a tab, or a blank at the end")
    if not text.endswith("\n") or text.endswith("\n\n"):
        complaints.append("the end: not one line break")
    return complaints


def check(root: pathlib.Path, release: int | None = None) -> tuple[int, str]:
    """How many files there are, and the complaints about them. `release` is the formatter's, asked of it unless given."""
    files = sorted(
        path.relative_to(root).as_posix()
        for top in HOUSE for path in (root / top).rglob("*") if path.suffix in (".h", ".cpp"))
    if not files:
        return 0, f"no C++ file found under {root}"
    if (release or installed_release()) != DECIDING_RELEASE:
        limit = width_limit(root)
        return len(files), "\n".join(
            f"{file}:{complaint}" for file in files
            for complaint in plain_complaints((root / file).read_text(encoding="utf-8"), limit))
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
