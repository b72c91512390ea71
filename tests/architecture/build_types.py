#!/usr/bin/env python3
"""Checks that the libraries and the programs compile without a warning, whatever build type their user chooses.

usage: build_types.py ROOT BUILD_FOLDER

Compilers warn of other things at each level of optimisation, GCC above all, so it builds every type. The warnings of
clang hang on little else than NDEBUG, and the everyday build has it compile without that; here it builds with it.

The build without a type compiles without precompiled headers: there each source has to include all that it uses.
"""

import dataclasses
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
    Build("g++", "", precompiled=False),
    Build("g++", "Release"),
    Build("g++", "RelWithDebInfo"),
    Build("g++", "MinSizeRel"),
    Build("clang++", "Release"),
)


def run_or_fail(what: str, command: list[str]) -> None:
    run = subprocess.run(command, capture_output=True, text=True, check=False)
    if run.returncode != 0:
        raise RuntimeError(f"{what} failed:\n{run.stdout}{run.stderr}")


def compile_as(build: Build, root: pathlib.Path, folder: pathlib.Path) -> None:
    """Builds everything but tests; RuntimeError carries the compiler's words."""
    run_or_fail(f"configuring {build.name}", [
        "cmake", "-S", str(root), "-B", str(folder), "-G", "Ninja", f"-DCMAKE_CXX_COMPILER={build.compiler}",
        f"-DCMAKE_BUILD_TYPE={build.build_type}", "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache", "-DBUILD_TESTING=OFF",
        "-DFERROWIND_WARNINGS_AS_ERRORS=ON", f"-DFERROWIND_PRECOMPILE={'ON' if build.precompiled else 'OFF'}"])
    run_or_fail(f"building {build.name}", ["cmake", "--build", str(folder), "--", "--quiet", "-k", "0"])


def main(arguments: list[str]) -> int:
    if len(arguments) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    root, folder = (pathlib.Path(argument).resolve() for argument in arguments)
    complaints = []
    for build in BUILDS:
        try:
            compile_as(build, root, folder / build.name)
        except RuntimeError as error:
            complaints.append(str(error))
    print("\n".join(complaints) if complaints else f"All of {', '.join(build.name for build in BUILDS)} compile clean.")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
