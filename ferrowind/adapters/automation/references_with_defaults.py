#!/usr/bin/env python3
"""Makes the arguments of a type library that are given back and have a default references.

usage: references_with_defaults.py FROM TO

Hosts were built against arguments such as `[in, out, optional, defaultvalue("None name")] BSTR* Caption`. widl takes a
default for a value only, so it is given the type without its star, and this puts the reference back: an argument that
has a default, of a simple type, gets the type "reference to it", which another argument of the library must have too.

The layout is that of files which begin with "MSFT", as the sources of Wine tell it (dlls/oleaut32/typelib.h).
"""

import struct
import sys
from pathlib import Path

HEADER_SIZE = 84
HELP_LIBRARY = 0x100  # of the header's flags: one more number follows the header
TYPE_COUNT, FLAGS = 8 * 4, 5 * 4  # places in the header
SEGMENT_SIZE, TYPE_SIZE, ARGUMENT_SIZE, REFERENCE_SIZE = 16, 100, 12, 8
TYPES, REFERENCES = 0, 9  # the segments
KIND_OF_REFERENCE = 26
DEFAULT = 0x20  # of an argument's flags
# What an argument's type takes in the memory of who reads the library, which each function says of itself.
READ_SIZE_OF_REFERENCE = 8


class Library:
    def __init__(self, content: bytes):
        self.content = bytearray(content)
        if self.content[:4] != b"MSFT":
            raise SystemExit("not a type library")
        self.type_count = self.number(TYPE_COUNT)
        self.segments = HEADER_SIZE + (4 if self.number(FLAGS) & HELP_LIBRARY else 0) + 4 * self.type_count

    def number(self, place: int) -> int:
        return struct.unpack_from("<I", self.content, place)[0]

    def short(self, place: int) -> int:
        return struct.unpack_from("<H", self.content, place)[0]

    def segment(self, index: int) -> tuple[int, int]:
        place = self.segments + SEGMENT_SIZE * index
        return self.number(place), self.number(place + 4)

    def functions(self):
        """The place and the length of the record of each function."""
        first_type, _ = self.segment(TYPES)
        for index in range(self.type_count):
            of_type = first_type + TYPE_SIZE * index
            place = self.number(of_type + 4) + 4
            for _ in range(self.short(of_type + 24)):
                length = self.short(place)
                yield place, length
                place += length

    def reference_to(self, simple_type: int) -> int:
        """The place, in its segment, of the type that refers to it."""
        start, length = self.segment(REFERENCES)
        for offset in range(0, length, REFERENCE_SIZE):
            kind = self.short(start + offset)
            if kind == KIND_OF_REFERENCE and self.number(start + offset + 4) == simple_type:
                return offset
        raise SystemExit(f"no argument of the library is a reference to the type {simple_type:#x}")

    def make_references(self) -> int:
        made = 0
        for function, length in self.functions():
            arguments = self.short(function + 20)
            for index in range(arguments):
                place = function + length - ARGUMENT_SIZE * (arguments - index)
                if not self.number(place + 8) & DEFAULT:
                    continue
                struct.pack_into("<I", self.content, place, self.reference_to(self.number(place)))
                size = self.short(function + 14) + READ_SIZE_OF_REFERENCE
                struct.pack_into("<H", self.content, function + 14, size)
                made += 1
        return made


def main() -> None:
    source, target = map(Path, sys.argv[1:])
    library = Library(source.read_bytes())
    if library.make_references() == 0:
        raise SystemExit(f"{source}: no argument has a default")
    target.write_bytes(library.content)


if __name__ == "__main__":
    main()
