#!/usr/bin/env python3
"""Checks what a project gets that takes the sources in by add_subdirectory: the libraries it links, and nothing else.

usage: host_with_sources.py ROOT

Nothing is compiled: the compilations that the build would make are looked at.
"""

import json
import pathlib
import subprocess
import sys
import tempfile

# Nothing of them may be asked for: the host chose an engine on SQLite alone.
HIDDEN = ("Qt6", "PostgreSQL", "LibIcal", "CLI11", "nlohmann_json", "GTest")
PROJECT = """cmake_minimum_required(VERSION 3.25)
project(Host LANGUAGES CXX)
set(FERROWIND_ADAPTERS sqlite)
set(CMAKE_POLICY_DEFAULT_CMP0077 NEW)
add_subdirectory("{root}" ferrowind)
add_executable(host host.cpp)
target_link_libraries(host PRIVATE Ferrowind::loading Ferrowind::adapters_sqlite)
"""


def run(what: str, command: list[str]) -> str:
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    if result.returncode != 0:
        raise RuntimeError(f"{what} failed:\n{result.stdout}")
    return result.stdout


def check(root: pathlib.Path, work: pathlib.Path) -> None:
    (work / "CMakeLists.txt").write_text(PROJECT.format(root=root), encoding="utf-8")
    (work / "host.cpp").write_text('#include "ferrowind/adapters/sqlite/engine.h"\n#include "ferrowind/version.h"\n'
                                   "int main() {}\n", encoding="utf-8")
    build = work / "build"
    run("configuring a host with the sources", [
        "cmake", "-S", str(work), "-B", str(build), "-G", "Ninja", "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON",
        *(f"-DCMAKE_DISABLE_FIND_PACKAGE_{package}=TRUE" for package in HIDDEN)])
    commands = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    if strict := [command["file"] for command in commands if "-Werror" in command["command"]]:
        raise RuntimeError(f"the host's build ends at a warning in {strict[0]}")
    folders = [f"{root}/{folder}/" for folder in ("tests", "host", "bench", "fuzz", "ferrowind/adapters/qt", "ferrowind/adapters/postgres")]
    if foreign := [command["file"] for command in commands if command["file"].startswith(tuple(folders))]:
        raise RuntimeError(f"the host's build compiles {foreign[0]}")
    if "BUILD_TESTING" in (build / "CMakeCache.txt").read_text(encoding="utf-8"):
        raise RuntimeError("the host is asked whether it wants tests")
    listed = run("listing tests", ["ctest", "--test-dir", str(build), "-N"])
    if "Total Tests: 0" not in listed:
        raise RuntimeError(f"the host has tests that are not its own:\n{listed}")
    prefix = work / "prefix"
    run("installing", ["cmake", "--install", str(build), "--prefix", str(prefix)])
    if prefix.exists() and (installed := [path for path in prefix.rglob("*") if path.is_file()]):
        raise RuntimeError(f"the host installs {installed[0].relative_to(prefix)}")
    own = next(command for command in commands if command["file"] == str(work / "host.cpp"))
    run("compiling the host", ["sh", "-c", f"cd '{own['directory']}' && {own['command']} -fsyntax-only"])
    run("planning the host's build", ["cmake", "--build", str(build), "--target", "host", "--", "-n"])


def main(arguments: list[str]) -> int:
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    try:
        with tempfile.TemporaryDirectory() as work:
            check(pathlib.Path(arguments[0]).resolve(), pathlib.Path(work).resolve())
    except RuntimeError as error:
        print(error)
        return 1
    print("A host with the sources gets the libraries that it links, and nothing else.")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
