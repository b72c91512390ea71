#!/usr/bin/env python3
"""Checks that the libraries and the programs compile without a warning as people who install them build them.

usage: release_build.py ROOT BUILD_FOLDER

GCC optimises, and so sees what it warns of in no other build. Precompiled headers are off: each source has to include all
that it uses. The options are those of the guide to embedding, so that the compiler's cache knows the objects when a test
follows the guide.

Other build types would compile the same text: no source of the house asks whether assertions are on, which is checked
here. Clang warns before it optimises, so the everyday build sees all that it has to say. Packages are built with -O2, and
tools/make_packages.sh refuses a warning there.
"""

import os
import pathlib
import re
import subprocess
import sys

HOUSE = ("ferrowind", "host")
ON_ASSERTIONS = re.compile(r"(\bNDEBUG\b|\bQT_NO_DEBUG\b|\bassert\s*\(|\bQ_ASSERT\w*|<cassert>|<assert\.h>)")


def assertion_complaints(root: pathlib.Path) -> list[str]:
    """The lines whose meaning would differ between the everyday build and one that is installed."""
    complaints = []
    for folder in HOUSE:
        for path in sorted((root / folder).rglob("*")):
            if path.suffix not in (".h", ".cpp"):
                continue
            for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
                if found := ON_ASSERTIONS.search(line):
                    complaints.append(f"{path.relative_to(root).as_posix()}:{number} hangs on the build type by {found.group(1)}")
    return complaints


def run_or_fail(what: str, command: list[str], environment: dict[str, str]) -> str:
    """What the command printed; RuntimeError when it failed."""
    run = subprocess.run(command, env=environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    if run.returncode != 0:
        raise RuntimeError(f"{what} failed:\n{run.stdout}")
    return run.stdout


def compile_clean(root: pathlib.Path, folder: pathlib.Path) -> None:
    """Builds everything but tests; RuntimeError carries the compiler's words."""
    environment = {**os.environ, "CCACHE_BASEDIR": str(root)}
    run_or_fail("configuring the release", [
        "cmake", "-S", str(root), "-B", str(folder), "-G", "Ninja", "-DCMAKE_CXX_COMPILER=g++", "-DCMAKE_BUILD_TYPE=Release",
        "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache", "-DBUILD_TESTING=OFF", "-DFERROWIND_PRECOMPILE=OFF"], environment)
    said = run_or_fail("building the release", ["cmake", "--build", str(folder), "--", "--quiet", "-k", "0"], environment)
    # Not by -Werror, which would make objects of their own in the cache.
    if "warning:" in said:
        raise RuntimeError(f"the release does not compile clean:\n{said}")


def main(arguments: list[str]) -> int:
    if len(arguments) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    root, folder = (pathlib.Path(argument).resolve() for argument in arguments)
    complaints = assertion_complaints(root)
    try:
        compile_clean(root, folder)
    except RuntimeError as error:
        complaints.append(str(error))
    print("\n".join(complaints) if complaints else "The release compiles clean.")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
