#!/usr/bin/env python3
"""Checks that everything public in the headers that hosts include is documented, by what Doxygen warns of.

usage: reference.py DOXYFILE

The file is the build's, which names the headers. Nothing of its reference is written.
"""

import pathlib
import re
import shlex
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

# Writing XML, unlike HTML, takes no time and has Doxygen look at every member.
CHECK = ("GENERATE_HTML = NO\nGENERATE_XML = YES\nXML_PROGRAMLISTING = NO\nWARN_IF_UNDOCUMENTED = YES\n"
         "WARN_AS_ERROR = NO\nWARN_LOGFILE =\nWARNINGS = YES\n")
OTHERS_NAMESPACES = ("std",)
MARKED = re.compile(r"^ *(?:class|struct|enum class) FERROWIND_EXPORT (\w+)", re.MULTILINE)
INPUT = re.compile(r"^INPUT *= (.*)$", re.MULTILINE)


def headers_of(settings: str) -> list[pathlib.Path]:
    [inputs] = INPUT.findall(settings)
    return [pathlib.Path(name) for name in shlex.split(inputs) if name.endswith(".h")]


def marked_names(settings: str) -> set[str]:
    """The types that the headers mark for hosts, so that one that Doxygen passes over is seen."""
    return {name for header in headers_of(settings) for name in MARKED.findall(header.read_text(encoding="utf-8"))}


def found_names(index: pathlib.Path) -> set[str]:
    return {name.text.split("::")[-1] for name in xml.etree.ElementTree.parse(index).iter("name") if name.text}


def undocumented_namespaces(xml_folder: pathlib.Path) -> list[str]:
    """Doxygen warns of no namespace, and of nothing in one that has no description."""
    compounds = (xml.etree.ElementTree.parse(path).getroot().find("compounddef") for path in xml_folder.glob("namespace*.xml"))
    return sorted(compound.findtext("compoundname") for compound in compounds
                  if not compound.findall("briefdescription/*") and compound.findtext("compoundname") not in OTHERS_NAMESPACES)


def main(arguments: list[str]) -> int:
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    settings = pathlib.Path(arguments[0]).read_text(encoding="utf-8")
    with tempfile.TemporaryDirectory() as work:
        doxygen = subprocess.run(["doxygen", "-"], input=f'{settings}\n{CHECK}OUTPUT_DIRECTORY = "{work}"\n', cwd=work, text=True,
                                 stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        if doxygen.returncode != 0 or doxygen.stdout.strip():
            print(doxygen.stdout)
            return 1
        if bare := undocumented_namespaces(pathlib.Path(work) / "xml"):
            print(f"These namespaces are not documented, so that nothing in them is looked at: {', '.join(bare)}")
            return 1
        found = found_names(pathlib.Path(work) / "xml/index.xml")
    marked = marked_names(settings)
    if not marked or not marked <= found:
        print(f"Doxygen has not found {', '.join(sorted(marked - found)) or 'any type'}, which the headers mark for hosts.")
        return 1
    print(f"Everything public is documented, {len(marked)} types among it.")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
