#!/usr/bin/env python3
"""Checks that the Debian packages are built with all that a build of one's own has: what is missing there is left out of them
without a word, such as the translations.

usage: build_depends.py ROOT
"""

import pathlib
import re
import sys

# Every build of packages has a compiler; its cache and its linker are matters of everyday work.
BROUGHT_ANYWAY = {"g++", "ccache", "lld"}
BUILD_DEPENDS = re.compile(r"^Build-Depends:\n((?: .*\n)+)", re.MULTILINE)


def wanted(packages: str) -> set[str]:
    """The packages of the group build."""
    words = (line.split() for line in packages.splitlines())
    return {line[1] for line in words if line[:1] == ["build"]} - BROUGHT_ANYWAY


def named(control: str) -> set[str]:
    [lines] = BUILD_DEPENDS.findall(control)
    return {re.split(r"[ :,]", line.strip())[0] for line in lines.splitlines()}


def main(arguments: list[str]) -> int:
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    root = pathlib.Path(arguments[0])
    packages = wanted((root / "tools/packages.txt").read_text(encoding="utf-8"))
    missing = packages - named((root / "debian/control").read_text(encoding="utf-8"))
    if missing or not packages:
        print(f"debian/control does not build with {', '.join(sorted(missing)) or 'anything'}.")
        return 1
    print(f"The packages are built with the {len(packages)} that every build has.")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
