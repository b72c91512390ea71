#!/usr/bin/env python3
"""Checks how the types of the headers for hosts lie in memory against the list that is kept: a program that was compiled with an
earlier release reads members where they are and calls virtual functions by their places.

usage: layouts.py [--update] LIST DOXYFILE ROOT

The file is the build's, which names the headers. GCC compiles them with descriptions of all types that they have, and
libabigail reads those. A line is the size of a type, a member or a base with its offset in bytes, a virtual function with its
place in the table, or an enumerator with its value; what stands in no header for hosts is not listed. A line that goes or
changes breaks such programs and is for the next major version. What is new is taken into the list with --update.
"""

import argparse
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

import exported_symbols
import reference

HOUSE = "ferrowind"
COMPILE = ["g++", "-std=c++20", "-shared", "-fPIC", "-O0", "-g", "-fno-eliminate-unused-debug-types", "-femit-class-debug-always"]
READ = ["abidw", "--load-all-types", "--no-show-locs", "--no-corpus-path", "--no-comp-dir-path"]
# libabigail reads nothing of a file that defines nothing.
ANY_DEFINITION = "namespace of_layouts { extern const int any; const int any = 0; }\n"
BITS_OF_BYTE = 8
# The standard library's own spelling of what everybody writes shorter.
SHORTER = ((re.compile(r"std::__cxx11::"), "std::"),
           (re.compile(r"basic_string<char, std::char_traits<char>, std::allocator<char> ?>"), "string"),
           (re.compile(r"basic_string_view<char, std::char_traits<char> ?>"), "string_view"),
           (re.compile(r", std::(?:allocator|default_delete)<(?:[^<>]|<(?:[^<>]|<[^<>]*>)*>)*>"), ""),
           (re.compile(r" >"), ">"))


def qualified(scope: tuple[str, ...], element: xml.etree.ElementTree.Element) -> str:
    return "::".join((*scope, element.get("name") or "(unnamed)"))


class Description:
    """What libabigail has read: every type by its identifier, and the types of the house with their names."""

    def __init__(self, root: xml.etree.ElementTree.Element) -> None:
        self.types = {}
        self.of_house = {}
        self.collect(root, ())

    def collect(self, element: xml.etree.ElementTree.Element, scope: tuple[str, ...]) -> None:
        for child in element:
            inner = scope
            if child.tag in ("namespace-decl", "class-decl", "union-decl"):
                inner = (*scope, child.get("name") or "(unnamed)")
            if identifier := child.get("id"):
                name = qualified(scope, child)
                self.types[identifier] = (name, child)
                is_whole = child.tag in ("class-decl", "union-decl", "enum-decl") and not child.get("is-declaration-only")
                if is_whole and scope[:1] == (HOUSE,) and "<" not in name:
                    self.of_house[name] = child
            self.collect(child, inner)

    def text(self, identifier: str) -> str:
        name, element = self.types[identifier]
        of = element.get("type-id")
        if element.tag == "pointer-type-def":
            return f"{self.text(of)}*"
        if element.tag == "reference-type-def":
            return f"{self.text(of)}{'&' if element.get('kind') == 'lvalue' else '&&'}"
        if element.tag == "qualified-type-def":
            return "".join(f"{word} " for word in ("const", "volatile") if element.get(word)) + self.text(of)
        if element.tag == "array-type-def":
            return self.text(of) + "".join(f"[{part.get('length')}]" for part in element.iter("subrange"))
        if element.tag == "function-type":
            parameters = ", ".join(self.text(part.get("type-id")) for part in element.iter("parameter"))
            return f"{self.text(element.find('return').get('type-id'))}({parameters})"
        for pattern, shorter in SHORTER:
            name = pattern.sub(shorter, name)
        return name

    def lines_of(self, name: str, element: xml.etree.ElementTree.Element) -> list[str]:
        if element.tag == "enum-decl":
            _, underlying = self.types[element.find("underlying-type").get("type-id")]
            values = [f"{name}: {part.get('name')} = {part.get('value')}" for part in element.findall("enumerator")]
            return [f"{name}: {self.bytes_of(underlying)}", *values]
        lines = [f"{name}: {self.bytes_of(element)}"]
        for base in element.findall("base-class"):
            lines.append(f"{name}: at {self.offset(base)} base {self.text(base.get('type-id'))}")
        for member in element.findall("data-member"):
            if member.get("static"):
                continue
            variable = member.find("var-decl")
            lines.append(f"{name}: at {self.offset(member)} {variable.get('name')}, {self.text(variable.get('type-id'))}")
        for member in element.findall("member-function"):
            if member.get("destructor"):
                # Its places in the table are not told, but those of its neighbours are.
                lines += [f"{name}: virtual destructor"] if member.get("vtable-offset") else []
            elif place := member.get("vtable-offset"):
                lines.append(f"{name}: virtual {place} {self.signature(member)}")
        return lines

    @staticmethod
    def bytes_of(element: xml.etree.ElementTree.Element) -> str:
        return f"{int(element.get('size-in-bits')) // BITS_OF_BYTE} bytes"

    @staticmethod
    def offset(part: xml.etree.ElementTree.Element) -> str:
        bits = int(part.get("layout-offset-in-bits"))
        return str(bits // BITS_OF_BYTE) if bits % BITS_OF_BYTE == 0 else f"{bits // BITS_OF_BYTE} bit {bits % BITS_OF_BYTE}"

    def signature(self, member: xml.etree.ElementTree.Element) -> str:
        function = member.find("function-decl")
        parameters = ", ".join(self.text(part.get("type-id")) for part in function.findall("parameter") if not part.get("is-artificial"))
        is_const = " const" if member.get("const") else ""
        return f"{function.get('name')}({parameters}){is_const} -> {self.text(function.find('return').get('type-id'))}"


def layouts(headers: list[str], flags: list[str]) -> list[str]:
    """The lines of all types of the house that the headers have."""
    with tempfile.TemporaryDirectory() as work:
        source, library, dump = (pathlib.Path(work) / name for name in ("all.cpp", "all.so", "all.xml"))
        source.write_text("".join(f'#include "{header}"\n' for header in headers) + ANY_DEFINITION, encoding="utf-8")
        subprocess.run([*COMPILE, *flags, str(source), "-o", str(library)], check=True)
        subprocess.run([*READ, "--out-file", str(dump), str(library)], check=True)
        description = Description(xml.etree.ElementTree.parse(dump).getroot())
    return [line for name, element in sorted(description.of_house.items()) for line in description.lines_of(name, element)]


def flags_of(root: pathlib.Path, doxyfile: pathlib.Path) -> list[str]:
    of_qt = subprocess.run(["pkg-config", "--cflags", "Qt6Widgets"], stdout=subprocess.PIPE, text=True, check=True).stdout
    return [f"-I{root}", f"-I{doxyfile.parent / 'include'}", *shlex.split(of_qt)]


def main(arguments: list[str]) -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--update", action="store_true")
    parser.add_argument("list", type=pathlib.Path)
    parser.add_argument("doxyfile", type=pathlib.Path)
    parser.add_argument("root", type=pathlib.Path)
    given = parser.parse_args(arguments)
    found = layouts(reference.headers_of(given.doxyfile.read_text(encoding="utf-8")), flags_of(given.root, given.doxyfile))
    if given.update:
        given.list.write_text("\n".join(found) + "\n", encoding="utf-8")
    complaints = exported_symbols.differences(given.list.read_text(encoding="utf-8").splitlines(), found, "what hosts include")
    if not found:
        complaints.append("The headers have no type at all.")
    print("\n".join(complaints) if complaints else f"What hosts include lies as the {len(found)} lines of the list say.")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
