"""The commands of ferrowindctl as its help tells them."""

import functools
import re

import ferrowindctl


@functools.cache
def help_of(path=""):
    """The help of a command, "" for the program."""
    return ferrowindctl.run(*path.split(), "--help").stdout.decode()


def _entries(text, heading):
    """The first words of the lines below a heading of help."""
    section = re.search(rf"^{heading}:\n((?:  .*\n)+)", text, re.MULTILINE)
    return [line.split()[0] for line in section.group(1).splitlines()] if section else []


def commands_in(path=""):
    return _entries(help_of(path), "Subcommands")


def options_of(path):
    """The option names, each spelling for itself."""
    return [name for names in _entries(help_of(path), "Options") for name in names.split(",")]


def all_paths(path=""):
    """The program, its commands, and those within them, each as the words that call it."""
    return [path] + [inner for name in commands_in(path) for inner in all_paths(f"{path} {name}".strip())]
