#!/usr/bin/env python3
"""Checks who includes whom against the list of allowed arrows.

usage: include_graph.py ROOT LIST

Every folder under ferrowind/ and host/ is a node. An arrow goes from the folder of a file to the folder of each of the
repository's headers that it includes, and to the family of each header that comes from outside (<qt>, <sqlite>, ...). The
headers right in ferrowind/ are there for every folder and need no arrow.
An arrow that is not on the list is an error, and so is a line of the list that no file needs any more. The standard
library needs no arrow, and the component's own folders may use nothing else from outside, whatever the list says.
"""

import pathlib
import re
import sys
from typing import Iterator, NamedTuple

HOUSE = ("ferrowind", "host")
PURE = ("ferrowind/platform", "ferrowind/almanac", "ferrowind/business_days", "ferrowind/exchange", "ferrowind/control", "ferrowind/data", "ferrowind/loading", "ferrowind/planning", "ferrowind/views")

FOR_EVERYBODY = "ferrowind"

STANDARD = frozenset("""
algorithm any array atomic barrier bit bitset charconv chrono codecvt compare complex concepts condition_variable
coroutine deque exception execution filesystem format forward_list fstream functional future initializer_list iomanip
ios iosfwd iostream istream iterator latch limits list locale map memory memory_resource mutex new numbers numeric
optional ostream queue random ranges ratio regex scoped_allocator semaphore set shared_mutex source_location span
sstream stack stdexcept stop_token streambuf string string_view strstream syncstream system_error thread tuple
type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector version
cassert cctype cerrno cfenv cfloat cinttypes climits clocale cmath csetjmp csignal cstdarg cstddef cstdint cstdio
cstdlib cstring ctime cuchar cwchar cwctype
stddef.h stdint.h
""".split())

FAMILIES = (
    ("<qt>", re.compile(r"Q[A-Z]\w*|Qt\w*/\w+|qt?\w*\.h")),
    ("<sqlite>", re.compile(r"sqlite3\w*\.h")),
    ("<openssl>", re.compile(r"openssl/.+")),
    ("<libpq>", re.compile(r"libpq-fe\.h|postgres_ext\.h|libpq/.+")),
    ("<odbc>", re.compile(r"sql(ext|ucode)?\.h")),
    ("<libical>", re.compile(r"libical/.+")),
    ("<windows>", re.compile(r"(windows|commctrl|gdiplus|objbase|objidl|shobjidl)\.h")),
    ("<cli11>", re.compile(r"CLI/.+")),
    ("<json>", re.compile(r"nlohmann/.+")),
    # The C headers are here for what POSIX adds to them; the standard C++ ones have all the rest.
    ("<posix>", re.compile(r"(unistd|fcntl|signal|pwd|poll|dlfcn|pthread|stdio|stdlib|time|wchar)\.h|(sys|netinet)/\w+\.h")),
    ("<windows>", re.compile(r"(windows|aclapi|bcrypt|commdlg|dwmapi|guiddef|io|lmcons|oaidl|objbase|ocidl|ole2|oleacc|oleauto|olectl|oleidl|sddl|share|unknwn|winerror|wtypes)\.h")),
    ("<linux>", re.compile(r"linux/\w+\.h")),
)

# Written by the build from files of the including folder itself: forms, meta objects, embedded SQL.
GENERATED = re.compile(r"(.*/)?(ui_\w+\.h|moc_\w+\.cpp|\w+\.moc)|generated/.+")

INCLUDE = re.compile(r"^[ \t]*#[ \t]*include\b[ \t]*(.*?)[ \t]*(?://.*)?$", re.MULTILINE)
HEADER = re.compile(r'(?:<([^>]+)>|"([^"]+)")')
ARROW = re.compile(r"^(\S+) -> (\S+)$")
BLOCK_COMMENT_OR_RAW_TEXT = re.compile(r'/\*.*?\*/|R"(\w*)\(.*?\)\1"', re.DOTALL)


class Include(NamedTuple):
    file: str
    line: int
    """What follows the word include."""
    operand: str


def includes_of(root: pathlib.Path) -> Iterator[Include]:
    for top in HOUSE:
        for path in sorted((root / top).rglob("*")):
            if path.suffix not in (".h", ".cpp"):
                continue
            # Line numbers must survive, so what is blanked out keeps its line breaks.
            text = BLOCK_COMMENT_OR_RAW_TEXT.sub(
                lambda match: "\n" * match.group().count("\n"), path.read_text(encoding="utf-8"))
            for match in INCLUDE.finditer(text):
                line = text.count("\n", 0, match.start(1)) + 1
                yield Include(path.relative_to(root).as_posix(), line, match.group(1))


def target_of(root: pathlib.Path, include: Include) -> str | None:
    """The folder or family that the include leads to; None for one that needs no arrow. ValueError when unknown."""
    match = HEADER.fullmatch(include.operand)
    if not match:
        raise ValueError(f"{include.operand} is neither <header> nor \"header\"")
    outside, inside = match.groups()
    if inside:
        if GENERATED.fullmatch(inside):
            return None
        # The build writes a header from a file of its name with .in behind it.
        if not (root / inside).is_file() and not (root / f"{inside}.in").is_file():
            raise ValueError(f'"{inside}" is no file under the repository\'s root')
        folder = pathlib.PurePosixPath(inside).parent.as_posix()
        return None if folder == FOR_EVERYBODY else folder
    if outside in STANDARD:
        return None
    for family, pattern in FAMILIES:
        if pattern.fullmatch(outside):
            return family
    raise ValueError(f"<{outside}> belongs to no known library")


def is_pure(folder: str) -> bool:
    return any(folder == pure or folder.startswith(pure + "/") for pure in PURE)


def read_list(path: pathlib.Path) -> tuple[dict[tuple[str, str], int], list[str]]:
    """The arrows of the list with their line numbers, and the lines that are none."""
    arrows: dict[tuple[str, str], int] = {}
    errors = []
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        line = line.split("#")[0].strip()
        if not line:
            continue
        match = ARROW.match(line)
        if not match:
            errors.append(f"{path.name}:{number}: not an arrow 'folder -> folder': {line}")
        elif match.groups() in arrows:
            errors.append(f"{path.name}:{number}: listed before: {line}")
        else:
            arrows[match.groups()] = number
    return arrows, errors


def check(root: pathlib.Path, list_path: pathlib.Path) -> list[str]:
    allowed, errors = read_list(list_path)
    used = set()
    seen = 0
    for include in includes_of(root):
        seen += 1
        place = f"{include.file}:{include.line}"
        folder = pathlib.PurePosixPath(include.file).parent.as_posix()
        try:
            target = target_of(root, include)
        except ValueError as error:
            errors.append(f"{place}: {error}")
            continue
        if target is None or target == folder:
            continue
        if target.startswith("<") and is_pure(folder):
            errors.append(f"{place}: {folder} may use only the standard library, not {include.operand}")
        elif (folder, target) not in allowed:
            errors.append(f"{place}: the arrow {folder} -> {target} is not allowed ({include.operand})")
        used.add((folder, target))
    for arrow, number in allowed.items():
        if arrow not in used:
            errors.append(f"{list_path.name}:{number}: no file needs this arrow any more: {arrow[0]} -> {arrow[1]}")
    if seen == 0:
        errors.append(f"no include found under {root}: this is not the repository's root")
    return errors


def main(arguments: list[str]) -> int:
    if len(arguments) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    errors = check(pathlib.Path(arguments[0]), pathlib.Path(arguments[1]))
    print("\n".join(errors) if errors else "Every include follows an allowed arrow, and every arrow is needed.")
    return 1 if errors else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
