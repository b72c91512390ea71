#!/usr/bin/env python3
"""Configures, builds and tests the preset core-only as on a machine without Qt, SQLite and libpq.

usage: core_only.py ROOT BUILD_FOLDER FOLDER,... TEST,...

FOLDERs are built whole. TESTs are built and run: a few that together use all of the component, since each compiles for
as long as what it tests, and the others run elsewhere in any case.

No package of theirs can be found, and their headers are shadowed by ones that end the compilation. Afterwards no
program may need one of their libraries.
"""

import os
import pathlib
import re
import subprocess
import sys

HIDDEN_PACKAGES = ("Qt6", "Qt6Core", "Qt6Widgets", "QT", "Qt5", "SQLite3", "PostgreSQL")
SHADOWED_HEADERS = (
    "sqlite3.h", "sqlite3ext.h", "libpq-fe.h", "postgres_ext.h", "QObject", "QString", "QWidget", "QApplication",
    "QtCore/QObject", "QtCore/QString", "QtCore/QtGlobal", "QtGui/QIcon", "QtWidgets/QWidget", "QtWidgets/QApplication",
)
FORBIDDEN_LIBRARY = re.compile(r"NEEDED.*\[(libQt\w*|libsqlite3|libpq)\.so.*\]")


def shadow_headers(folder: pathlib.Path) -> None:
    for header in SHADOWED_HEADERS:
        path = folder / header
        path.parent.mkdir(parents=True, exist_ok=True)
        text = f'#error "{header} is out of reach of the component\'s own code"\n'
        # Rewriting an unchanged file would make the build compile everything again.
        if not path.exists() or path.read_text(encoding="utf-8") != text:
            path.write_text(text, encoding="utf-8")


def programs_in(build: pathlib.Path) -> list[pathlib.Path]:
    return [path for path in (build / "bin").glob("*") if path.is_file() and os.access(path, os.X_OK)]


def forbidden_libraries(program: pathlib.Path) -> list[str]:
    run = subprocess.run(["readelf", "--dynamic", str(program)], capture_output=True, text=True, check=True)
    return [match.group(1) for match in FORBIDDEN_LIBRARY.finditer(run.stdout)]


def run_or_fail(what: str, command: list[str], environment: dict[str, str], root: pathlib.Path) -> None:
    run = subprocess.run(command, cwd=root, env=environment, capture_output=True, text=True, check=False)
    if run.returncode != 0:
        raise RuntimeError(f"{what} failed:\n{run.stdout}{run.stderr}")


def check(root: pathlib.Path, build: pathlib.Path, folders: list[str], tests: list[str]) -> int:
    """Builds and tests; returns how many programs were examined. RuntimeError says what is wrong."""
    shadows = build / "out_of_reach"
    shadow_headers(shadows)
    environment = {name: value for name, value in os.environ.items() if not name.startswith(("Qt", "QT", "CTEST_"))}
    run_or_fail("configuring core-only", [
        "cmake", "--preset", "core-only", "-B", str(build), "-S", str(root), f"-DCMAKE_CXX_FLAGS=-I{shadows}",
        *(f"-DCMAKE_DISABLE_FIND_PACKAGE_{package}=TRUE" for package in HIDDEN_PACKAGES),
    ], environment, root)
    targets = [f"{folder}/all" for folder in folders] + tests
    run_or_fail("building core-only", ["cmake", "--build", str(build), "--target", *targets, "--", "--quiet"], environment, root)
    programs = programs_in(build)
    for program in programs:
        if libraries := forbidden_libraries(program):
            raise RuntimeError(f"{program.name} needs {', '.join(libraries)}")
    run_or_fail("testing core-only", [
        "ctest", "--test-dir", str(build), "--tests-regex", f"^({'|'.join(tests)})$", "--no-tests=error",
        "--output-on-failure", "--parallel", str(os.cpu_count())], environment, root)
    return len(programs)


def main(arguments: list[str]) -> int:
    if len(arguments) != 4:
        print(__doc__, file=sys.stderr)
        return 2
    try:
        count = check(pathlib.Path(arguments[0]).resolve(), pathlib.Path(arguments[1]).resolve(),
                      arguments[2].split(","), arguments[3].split(","))
    except RuntimeError as error:
        print(error)
        return 1
    if count == 0:
        print("core-only built no program, so nothing was tested")
        return 1
    print(f"The component builds and passes its tests alone ({count} programs).")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
