#!/usr/bin/env python3
"""Installs a build to a temporary prefix and takes it as hosts take it, which see nothing of the repository but what was
installed.

usage: installed_package.py ROOT BUILD_FOLDER COMPILER [COMPILER_FLAGS]

The flags are those that everything linked with the build needs, such as its sanitizers. Whether the build's libraries are
shared or static is seen from what is installed.
"""

import dataclasses
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

EXAMPLES = "docs/examples"
# Hosts with windows end here at once, since they are not told a database.
WINDOWED = ("minimal_host/minimal_host", "hosts/own_office", "hosts/designer_host")
USAGE_STATUS = 2
# What the hosts without windows are asked: as many days are closed at least as there are Saturdays and Sundays.
EURO = "978"
YEAR = 2026
FEWEST_CLOSED = 104
DATE = re.compile(r"2026-05-\d\d\n")
WINDOW_LIBRARIES = re.compile(r"libQt|libX11|libxcb|libwayland")
HEADINGS = "Date\tDay type\tClosed for\tDescription\tComment"
HOSTS = pathlib.Path(__file__).parent

# What each component asks for from outside, where the libraries are static, and where they are shared.
COMPONENTS = {
    "platform": ((), ()), "control": ((), ()), "business_days": ((), ()), "loading": ((), ()),
    "adapters_services": ((), ()), "windowless": ((), ()), "business_days_c": ((), ()), "adapters_qt": (("Qt6",), ("Qt6",)),
    "adapters_sqlite": (("SQLite3", "OpenSSL"), ()), "adapters_postgres": (("PostgreSQL", "OpenSSL"), ()),
}
# One that builds have only where they are told to, its header and its module of pkg-config.
OPTIONAL = {"adapters_odbc": (("ODBC", "OpenSSL"), ())}
OPTIONAL_HEADER = "ferrowind/adapters/odbc/engine.h"
OPTIONAL_MODULE = "ferrowind-odbc"
OUTSIDE = ("Qt6", "SQLite3", "PostgreSQL", "ODBC", "OpenSSL", "LibIcal", "GTest")
PROGRAMS = {"ferrowind", "ferrowindctl"}
OTHER_FILES = ("share/ferrowind/Progress.pra", "share/doc/ferrowind/LICENSE", "include/ferrowind/version.h",
               "include/ferrowind_business_days.h")
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)
QT_HEADERS = "ferrowind/adapters/qt/"


@dataclasses.dataclass(frozen=True)
class Package:
    prefix: pathlib.Path
    compiler: str
    flags: list[str]

    @property
    def libraries(self) -> pathlib.Path:
        [configuration] = self.prefix.rglob("FerrowindConfig.cmake")
        return configuration.parents[2]

    @property
    def is_shared(self) -> bool:
        return (self.libraries / "libferrowind.so").exists()

    @property
    def has_optional(self) -> bool:
        return OPTIONAL_HEADER in self.headers()

    def headers(self) -> list[str]:
        folder = self.prefix / "include"
        return sorted(path.relative_to(folder).as_posix() for path in folder.rglob("*.h"))

    def cmake(self, source: pathlib.Path, build: pathlib.Path, *options: str) -> subprocess.CompletedProcess:
        return run(["cmake", "-S", str(source), "-B", str(build), "-G", "Ninja", f"-DCMAKE_PREFIX_PATH={self.prefix}",
                    f"-DCMAKE_CXX_COMPILER={self.compiler}", f"-DCMAKE_CXX_FLAGS={shlex.join(self.flags)}", *options])

    def pkg_config(self, module: str, *of: str) -> list[str]:
        """The flags `of` compiling (--cflags) or linking (--libs) with the module, which is found with the machine's own ones."""
        environment = {**os.environ, "PKG_CONFIG_PATH": str(self.libraries / "pkgconfig")}
        kind = [] if self.is_shared else ["--static"]
        return shlex.split(passed("pkg-config", run(["pkg-config", *of, *kind, module], environment)))


def run(command: list[str], environment: dict[str, str] | None = None, text: str | None = None) -> subprocess.CompletedProcess:
    # From a folder without headers, since a source that the compiler reads from `text` stands in the current one.
    return subprocess.run(command, env=environment, input=text, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          check=False, cwd="/")


def passed(what: str, result: subprocess.CompletedProcess) -> str:
    if result.returncode != 0:
        raise RuntimeError(f"{what} failed:\n{result.stdout}")
    return result.stdout


def installed_references(prefix: pathlib.Path, root: pathlib.Path) -> list[str]:
    """The installed files for build systems that name the repository, which is gone on the host's machine."""
    return [str(path) for pattern in ("*.cmake", "*.pc") for path in prefix.rglob(pattern)
            if str(root) in path.read_text(encoding="utf-8")]


def check_files(package: Package, root: pathlib.Path) -> None:
    if references := installed_references(package.prefix, root):
        raise RuntimeError(f"these installed files name the repository: {', '.join(references)}")
    programs = {path.name for path in (package.prefix / "bin").iterdir()}
    if programs != PROGRAMS:
        raise RuntimeError(f"bin has {', '.join(sorted(programs))} instead of {', '.join(sorted(PROGRAMS))}")
    if missing := [name for name in OTHER_FILES if not (package.prefix / name).is_file()]:
        raise RuntimeError(f"these files are not installed: {', '.join(missing)}")


def missing_includes(folder: pathlib.Path, headers: list[str]) -> list[str]:
    """What installed headers include of the house that is not installed with them."""
    return [f"{header} includes {included}" for header in headers
            for included in INCLUDE.findall((folder / header).read_text(encoding="utf-8")) if included not in headers]


def check_headers(package: Package) -> None:
    """That headers compile alone in the tree is checked there; so they do here, if all is here that they include."""
    headers = package.headers()
    if missing := missing_includes(package.prefix / "include", headers):
        raise RuntimeError("installed headers include what is not installed:\n" + "\n".join(missing))
    source = "".join(f'#include "{header}"\n' for header in headers)
    passed("compiling all headers together", run(
        [package.compiler, "-std=c++20", "-Wall", "-Wextra", "-Werror", "-fPIC", "-fsyntax-only", "-x", "c++", "-",
         *package.pkg_config("ferrowind-qt", "--cflags")], text=source))


def component_project(folder: pathlib.Path, components: list[str]) -> pathlib.Path:
    """A project that only looks for the components, and links them."""
    folder.mkdir()
    (folder / "empty.cpp").write_text("int main() {}\n", encoding="utf-8")
    targets = " ".join(f"Ferrowind::{component}" for component in components)
    (folder / "CMakeLists.txt").write_text(
        "cmake_minimum_required(VERSION 3.25)\nproject(Components LANGUAGES CXX)\n"
        f"find_package(Ferrowind REQUIRED COMPONENTS {' '.join(components)})\n"
        f"add_executable(empty empty.cpp)\ntarget_link_libraries(empty PRIVATE {targets})\n", encoding="utf-8")
    return folder


def check_components(package: Package, work: pathlib.Path) -> None:
    """Each component is found on a machine that has no more than it may ask for; those that ask for the same, together."""
    groups: dict[tuple[str, ...], list[str]] = {}
    for component, needs in (COMPONENTS | (OPTIONAL if package.has_optional else {})).items():
        groups.setdefault(needs[1 if package.is_shared else 0], []).append(component)
    for needs, components in groups.items():
        name = components[-1]
        project = component_project(work / name, components)
        hidden = [f"-DCMAKE_DISABLE_FIND_PACKAGE_{other}=TRUE" for other in OUTSIDE if other not in needs]
        passed(f"looking for {', '.join(components)} where there is only {', '.join(needs) or 'nothing else'}",
               package.cmake(project, work / f"{name}-build", *hidden))
    project = component_project(work / "wrong", ["control", "windows"])
    refused = package.cmake(project, work / "wrong-build")
    said = " ".join(refused.stdout.split())
    if refused.returncode == 0 or 'no component "windows" here' not in said or "adapters_qt" not in said:
        raise RuntimeError(f"a component that there is not is not named:\n{refused.stdout}")


def check_examples(package: Package, root: pathlib.Path, work: pathlib.Path) -> None:
    """Every example that is a project is built; those with windows start, and those without do their work on a database."""
    build = work / "examples"
    for project in sorted(path.parent for path in (root / EXAMPLES).glob("*/CMakeLists.txt")):
        passed(f"configuring {project.name}", package.cmake(project, build / project.name))
        passed(f"building {project.name}", run(["cmake", "--build", str(build / project.name)]))
    for host in WINDOWED:
        started = run([str(build / host)], {**os.environ, "QT_QPA_PLATFORM": "offscreen"})
        if started.returncode != USAGE_STATUS or f"usage: {pathlib.Path(host).name} sqlite:PATH" not in started.stdout:
            raise RuntimeError(f"{host} ended with {started.returncode}:\n{started.stdout}")
    check_windowless(package, build / "hosts", f"sqlite:{work}/calendars.db")


def check_windowless(package: Package, hosts: pathlib.Path, database: str) -> None:
    """Without a display, and so that any use of one fails."""
    environment = {name: value for name, value in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
    passed("making a database", run([str(package.prefix / "bin/ferrowindctl"), "init", database, "--year", str(YEAR)], environment))
    asked = [database, EURO, str(YEAR)]
    counted = passed("console_host", run([str(hosts / "console_host"), *asked], environment))
    listed = passed("day_list", run([str(hosts / "day_list"), *asked], environment)).splitlines()
    if listed[0] != HEADINGS or counted != f"{len(listed) - 1} days are closed\n" or len(listed) - 1 < FEWEST_CLOSED:
        raise RuntimeError(f"day_list lists {len(listed) - 1} days below {listed[0]!r}; console_host says: {counted}")
    spot = passed("spot_date", run([str(hosts.parent / "spot_date/spot_date"), database], environment))
    if not DATE.fullmatch(spot):
        raise RuntimeError(f"spot_date says: {spot}")
    needs = passed("what day_list needs", run(["ldd", str(hosts / "day_list")], environment))
    if WINDOW_LIBRARIES.search(needs):
        raise RuntimeError(f"day_list, which has no windows, needs:\n{needs}")


def check_plug_in(package: Package, work: pathlib.Path) -> None:
    build = work / "plug_in"
    passed("configuring the plug-in", package.cmake(HOSTS / "package_host", build))
    passed("building the plug-in", run(["cmake", "--build", str(build)]))
    passed("the plug-in", run([str(build / "loader"), str(build / "libplug_in.so")]))


def check_pkg_config(package: Package, work: pathlib.Path) -> None:
    """The same source as the plug-in's, linked by hand."""
    program = work / "by_hand"
    main = 'extern "C" int AskPlugIn();\nint main() { return AskPlugIn(); }\n'
    passed("linking with what pkg-config says", run(
        [package.compiler, "-std=c++20", *package.flags, "-x", "c++", "-", str(HOSTS / "package_host/plug_in.cpp"), "-x", "none",
         "-o", str(program), *package.pkg_config("ferrowind-sqlite", "--cflags", "--libs")], text=main))
    passed("the program linked by hand", run([str(program)], {**os.environ, "LD_LIBRARY_PATH": str(package.libraries)}))
    for module in ("ferrowind", "ferrowind-qt", "ferrowind-postgres", "ferrowind_business_days",
                   *([OPTIONAL_MODULE] if package.has_optional else [])):
        package.pkg_config(module, "--cflags", "--libs")


def check(root: pathlib.Path, build: pathlib.Path, compiler: str, flags: list[str], work: pathlib.Path) -> Package:
    package = Package(work / "prefix", compiler, flags)
    passed("installing", run(["cmake", "--install", str(build), "--prefix", str(package.prefix)]))
    check_files(package, root)
    check_headers(package)
    check_components(package, work)
    check_plug_in(package, work)
    check_pkg_config(package, work)
    check_examples(package, root, work)
    return package


def main(arguments: list[str]) -> int:
    if len(arguments) not in (3, 4):
        print(__doc__, file=sys.stderr)
        return 2
    root, build = (pathlib.Path(argument).resolve() for argument in arguments[:2])
    try:
        with tempfile.TemporaryDirectory() as work:
            package = check(root, build, arguments[2], shlex.split(" ".join(arguments[3:])), pathlib.Path(work).resolve())
            kind = "shared" if package.is_shared else "static"
    except RuntimeError as error:
        print(error)
        return 1
    print(f"Hosts build against the installed package of {kind} libraries and start.")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
