#!/usr/bin/env python3
"""Installs a build to a temporary prefix, builds the example host of the documentation against it, and starts it.

usage: installed_package.py ROOT BUILD_FOLDER COMPILER_FLAGS

The flags are those that everything linked with the build needs, such as its sanitizers. The example sees nothing of the
repository but the installed files.
"""

import os
import pathlib
import subprocess
import sys
import tempfile

EXAMPLE = "docs/examples/minimal_host"
USAGE = "usage: minimal_host sqlite:PATH"
USAGE_STATUS = 2


def run(what: str, command: list[str]) -> None:
    result = subprocess.run(command, capture_output=True, text=True, check=False)
    if result.returncode != 0:
        raise RuntimeError(f"{what} failed:\n{result.stdout}{result.stderr}")


def installed_references(prefix: pathlib.Path, root: pathlib.Path) -> list[str]:
    """The installed files for the build system that name the repository, which is gone on the host's machine."""
    return [str(path) for path in prefix.rglob("*.cmake") if str(root) in path.read_text(encoding="utf-8")]


def check(root: pathlib.Path, build: pathlib.Path, flags: str, work: pathlib.Path) -> None:
    prefix = work / "prefix"
    run("installing", ["cmake", "--install", str(build), "--prefix", str(prefix)])
    if references := installed_references(prefix, root):
        raise RuntimeError(f"these installed files name the repository: {', '.join(references)}")
    example = work / "build"
    run("configuring the example", [
        "cmake", "-S", str(root / EXAMPLE), "-B", str(example), "-G", "Ninja", f"-DCMAKE_PREFIX_PATH={prefix}",
        f"-DCMAKE_CXX_FLAGS={flags}"])
    run("building the example", ["cmake", "--build", str(example)])
    started = subprocess.run(
        [str(example / "minimal_host")], env={**os.environ, "QT_QPA_PLATFORM": "offscreen"}, capture_output=True,
        text=True, check=False)
    if started.returncode != USAGE_STATUS or USAGE not in started.stderr:
        raise RuntimeError(f"the example ended with {started.returncode}:\n{started.stdout}{started.stderr}")


def main(arguments: list[str]) -> int:
    if len(arguments) != 3:
        print(__doc__, file=sys.stderr)
        return 2
    root, build = (pathlib.Path(argument).resolve() for argument in arguments[:2])
    try:
        with tempfile.TemporaryDirectory() as work:
            check(root, build, arguments[2], pathlib.Path(work))
    except RuntimeError as error:
        print(error)
        return 1
    print("The example host builds against the installed package and starts.")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
