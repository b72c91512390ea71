#!/usr/bin/env python3
"""Checks that the libraries and the programs compile without a warning in the build types that people install.

usage: build_types.py ROOT BUILD_FOLDER

Each build gets a folder of its own beside BUILD_FOLDER, with its name behind.

GCC warns of other things at each level of optimisation, so it builds as people do who install, who make packages and who
look for a fault. Clang warns before it optimises: what it says hangs on NDEBUG alone, without which the everyday build has
it compile; here it builds with it, and does not optimise.

One build does without precompiled headers: there each source has to include all that it uses. It is also the one that
the guide to embedding makes, with the same options, so that the compiler's cache knows it when a test follows the guide.
"""

import dataclasses
import os
import pathlib
import subprocess
import sys


@dataclasses.dataclass(frozen=True)
class Build:
    compiler: str
    build_type: str
    precompiled: bool = True

    @property
    def name(self) -> str:
        return f"{self.compiler}-{self.build_type or 'no-type'}"


BUILDS = (
    Build("g++", "Release", precompiled=False),
    Build("g++", ""),
    Build("g++", "RelWithDebInfo"),
    Build("clang++", "Release"),
)


def run_or_fail(what: str, command: list[str], environment: dict[str, str]) -> str:
    """What the command printed; RuntimeError when it failed."""
    run = subprocess.run(command, env=environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    if run.returncode != 0:
        raise RuntimeError(f"{what} failed:\n{run.stdout}")
    return run.stdout


def compile_as(build: Build, root: pathlib.Path, folder: pathlib.Path) -> None:
    """Builds everything but tests; RuntimeError carries the compiler's words."""
    environment = {**os.environ, "CCACHE_BASEDIR": str(root)}
    run_or_fail(f"configuring {build.name}", [
        "cmake", "-S", str(root), "-B", str(folder), "-G", "Ninja", f"-DCMAKE_CXX_COMPILER={build.compiler}",
        f"-DCMAKE_BUILD_TYPE={build.build_type}", "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache", "-DBUILD_TESTING=OFF",
        # Without debug information, which takes time and of which no warning comes.
        "-DCMAKE_CXX_FLAGS_RELWITHDEBINFO=-O2 -DNDEBUG",
        *(["-DCMAKE_CXX_FLAGS_RELEASE=-DNDEBUG"] if build.compiler == "clang++" else []),
        f"-DFERROWIND_PRECOMPILE={'ON' if build.precompiled else 'OFF'}"], environment)
    said = run_or_fail(
        f"building {build.name}", ["cmake", "--build", str(folder), "--", "--quiet", "-k", "0"], environment)
    # Not by -Werror, which would make objects of their own in the cache.
    if "warning:" in said:
        raise RuntimeError(f"{build.name} does not compile clean:\n{said}")


def main(arguments: list[str]) -> int:
    if len(arguments) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    root, folder = (pathlib.Path(argument).resolve() for argument in arguments)
    complaints = []
    for build in BUILDS:
        try:
            compile_as(build, root, folder.with_name(f"{folder.name}-{build.name}"))
        except RuntimeError as error:
            complaints.append(str(error))
    print("\n".join(complaints) if complaints else f"All of {', '.join(build.name for build in BUILDS)} compile clean.")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
