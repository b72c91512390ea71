#!/usr/bin/env python3
"""Checks what the libraries for hosts show of themselves against the lists that are kept, one for each library: a program that
was linked with an earlier release finds all that it was linked with.

usage: exported_symbols.py [--update] LISTS LIBRARY ...

A line is a function, a variable, or what the compiler keeps of a class. What is gone or changed breaks such programs and is for the
next major version, unless it was private and no inline function of a header used it. What is new is taken into the list with
--update. How types lie in memory is looked at by layouts.py.
"""

import argparse
import pathlib
import re
import subprocess
import sys

SYMBOL = re.compile(r"^\s*\d+:\s+[0-9a-f]+\s+\S+\s+(?:FUNC|OBJECT)\s+(GLOBAL|WEAK)\s+DEFAULT\s+(?!UND)\S+\s+(_Z[^\s@]+)", re.MULTILINE)
# As cmake/exported_symbols.map has them. Inline functions are weak and are compiled into whoever calls them, and so are the tables
# of virtual functions of interfaces, which a compiler that optimises drops besides.
SHOWN = re.compile(r"_Z(?:NK?|TVN)9ferrowind")
TYPE_OF_CLASS = re.compile(r"_ZTIN9ferrowind")


def output_of(command: list[str], text: str | None = None) -> str:
    return subprocess.run(command, input=text, stdout=subprocess.PIPE, text=True, check=True).stdout


def exported(library: pathlib.Path) -> list[str]:
    found = SYMBOL.findall(output_of(["readelf", "--wide", "--symbols", str(library)]))
    names = {name for binding, name in found if TYPE_OF_CLASS.match(name) or (binding == "GLOBAL" and SHOWN.match(name))}
    return sorted(set(output_of(["c++filt"], "\n".join(names)).splitlines()))


def differences(kept: list[str], found: list[str], library: str) -> list[str]:
    gone = [f"{library} has no more: {symbol}" for symbol in kept if symbol not in set(found)]
    new = [f"{library} has, and its list has not: {symbol}" for symbol in found if symbol not in set(kept)]
    return gone + new


def main(arguments: list[str]) -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--update", action="store_true")
    parser.add_argument("lists", type=pathlib.Path)
    parser.add_argument("libraries", type=pathlib.Path, nargs="+")
    given = parser.parse_args(arguments)
    complaints = []
    count = 0
    for library in given.libraries:
        name = library.name.split(".")[0]
        found = exported(library)
        if not found:
            complaints.append(f"{name} shows nothing at all")
        count += len(found)
        kept = given.lists / f"{name}.txt"
        if given.update:
            kept.write_text("\n".join(found) + "\n", encoding="utf-8")
        else:
            complaints += differences(kept.read_text(encoding="utf-8").splitlines(), found, name)
    print("\n".join(complaints) if complaints else f"{len(given.libraries)} libraries show {count} symbols, as their lists say.")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
