#!/usr/bin/env python3
"""Checks that every header of the house compiles as the only include of a source, and may be included twice.

usage: headers_alone.py ROOT BUILD_FOLDER [FOLDER...]    FOLDER: of the house, the only ones that are looked at

A header with a source of its own is compiled by that one, which has to include it first; release_build.py compiles all
sources without precompiled headers. The others are compiled here, with the flags of a source in their folder, as the
build recorded them in compile_commands.json; a folder without sources needs none but the repository's root and the
language standard. A folder of whose sources the build compiles none is another system's, and checked with the build for
that one. Nothing is written.
"""

import concurrent.futures
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

HOUSE = ("ferrowind", "host")
WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Werror"]
GUARD = "#pragma once"
INCLUDE = re.compile(r'^#include\s+(["<][^">]+[">])', re.MULTILINE)
# What the build adds for its own speed: headers that would be there without an include.
PRECOMPILED = ("-Xclang", "-include", "-include-pch", "-Winvalid-pch", "-fpch-instantiate-templates")


def recorded_flags(root: pathlib.Path, build: pathlib.Path) -> tuple[str, dict[str, list[str]]]:
    """The compiler, and for each folder with sources the flags of one of them."""
    commands = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    compiler = ""
    flags: dict[str, list[str]] = {}
    for command in commands:
        if pathlib.Path(command["file"]).suffix != ".cpp":
            continue  # A program in C has a compiler of its own.
        words = shlex.split(command["command"])
        if pathlib.Path(words[0]).name == "ccache":
            words = words[1:]
        compiler = words[0]
        path = pathlib.Path(command["file"])
        if not path.is_relative_to(root) or path.is_relative_to(build):
            continue
        kept = []
        skip = False
        for word in words[1:]:
            if skip:
                skip = False
            elif word in ("-o", "-c", "-MF", "-MT"):
                skip = True
            elif word in PRECOMPILED:
                skip = word in ("-Xclang", "-include")
            elif word != "-MD":
                kept.append(word)
        flags.setdefault(path.relative_to(root).parent.as_posix(), kept)
    return compiler, flags


def foreign_folders(root: pathlib.Path, flags: dict[str, list[str]]) -> set[str]:
    """The folders with sources none of which the build compiles."""
    sources = (path for top in HOUSE for path in (root / top).rglob("*.cpp"))
    return {path.relative_to(root).parent.as_posix() for path in sources} - flags.keys()


def order_complaint(root: pathlib.Path, header: str, source: pathlib.Path) -> str:
    """What is wrong with the first include of the header's own source; nothing when it is the header."""
    first = INCLUDE.search(source.read_text(encoding="utf-8"))
    if first is not None and first.group(1) == f'"{header}"':
        return ""
    return f"{source.relative_to(root).as_posix()} does not include {header} first, so nothing proves that it compiles alone"


def guard_complaint(root: pathlib.Path, header: str) -> str:
    if (root / header).read_text(encoding="utf-8").startswith(f"{GUARD}\n"):
        return ""
    return f"{header} does not begin with {GUARD}"


def compile_alone(root: pathlib.Path, header: str, compiler: str, flags: list[str]) -> str:
    """What the compiler had to say; nothing when it was content."""
    source = f'#include "{header}"\n'
    run = subprocess.run(
        [compiler, *flags, "-fsyntax-only", "-x", "c++", "-"],
        input=source, cwd=root, capture_output=True, text=True, check=False)
    if run.returncode == 0:
        return ""
    return f"{header} does not compile alone:\n{run.stderr}"


def check(root: pathlib.Path, build: pathlib.Path, folders: tuple[str, ...] = HOUSE) -> tuple[int, list[str]]:
    """How many headers there are, and what is wrong with them."""
    compiler, flags = recorded_flags(root, build)
    if not compiler:
        return 0, [f"{build}/compile_commands.json names no compiler"]
    foreign = foreign_folders(root, flags)
    headers = sorted(path.relative_to(root).as_posix() for top in folders for path in (root / top).rglob("*.h"))
    headers = [header for header in headers if os.path.dirname(header) not in foreign]
    bare = ["-std=c++20", f"-I{root}", *WARNINGS]

    def complaint_about(header: str) -> str:
        if complaint := guard_complaint(root, header):
            return complaint
        source = (root / header).with_suffix(".cpp")
        if source.exists():
            return order_complaint(root, header, source)
        return compile_alone(root, header, compiler, flags.get(os.path.dirname(header), bare))
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        return len(headers), [complaint for complaint in pool.map(complaint_about, headers) if complaint]


def main(arguments: list[str]) -> int:
    if len(arguments) < 2:
        print(__doc__, file=sys.stderr)
        return 2
    root, build = (pathlib.Path(argument).resolve() for argument in arguments[:2])
    count, errors = check(root, build, tuple(arguments[2:]) or HOUSE)
    if count == 0:
        errors.append("no header found: this is not the repository's root")
    print("\n".join(errors) if errors else f"Each of the {count} headers compiles alone.")
    return 1 if errors else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
