#!/usr/bin/env python3
"""Checks that each program that a script, a test or a guide runs comes with the packages that it is told to install.

usage: brought_programs.py ROOT

A script that installs groups of tools/packages.txt may run what their packages and all that these depend on bring, and
what every Debian has. So may the scripts that it runs. On a fresh machine nothing else is there, however much is on the
machine of somebody who changes the scripts. A guide may run what the packages that it names bring; what its readers run
as the tests do must come with the tests' packages as well.

Which package brings a program is asked of the machine that the check runs on. Only what is not on it can't be judged.
"""

import ast
import dataclasses
import functools
import pathlib
import re
import subprocess
import sys

import shell_programs

LIST = "tools/packages.txt"
INSTALLER = "install_packages.sh"
# Those that people start, and folders whose texts name further scripts that they run.
ENTRIES = {"run": (), "test": ("tests",), "bench.sh": ("bench",), "tools/fuzz.sh": (), "tools/tidy.sh": (), "tools/test_windows.sh": (),
           "tools/make_packages.sh": (), "tools/make_windows_pictures.sh": (), "tools/check_packages.sh": (),
           "tools/compare_with_quantlib.sh": (), "tools/write_server_catalogue.sh": ()}
# What is started by people who have everything that ./test installs.
BESIDE_TESTS = ("tools/make_pictures.py", "tools/with_xvfb.py", ".ci/run")
BUILT_HERE = {"ferrowind", "ferrowindctl", "minimal_host"}
# Calls that take a program's name or a line for a shell; the others take lines, or words that are no programs.
STARTING_CALLS = {"system", "popen", "which", "_service"}
LINE_CALLS = {"run", "start", "Popen", "run_commands"}
EVERYWHERE = ("required",)
# What the installer of Debian leaves on a server.
ADMINISTRATORS = ("required", "important")
FENCE = re.compile(r"^```(\w*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
OUTSIDE_PATH = ("/usr/lib/postgresql/*/bin",)


@dataclasses.dataclass(frozen=True)
class Package:
    name: str
    priority: str
    depends: tuple[tuple[str, ...], ...]
    provides: tuple[str, ...]


class Machine:
    """What is installed here: packages, their files, and which of them bring a program."""

    def __init__(self, packages, files, folders=None):
        """`files` are the packages by the paths that they installed."""
        self.packages = {package.name: package for package in packages}
        self.files = files
        self.providers = {}
        for package in packages:
            for name in package.provides:
                self.providers.setdefault(name, package.name)
        here = pathlib.Path("/")
        self.folders = folders or ["/usr/local/bin", "/usr/bin", "/bin", "/usr/sbin", "/sbin"] + [
            str(folder) for pattern in OUTSIDE_PATH for folder in sorted(here.glob(pattern[1:]))]

    @classmethod
    def this_one(cls):
        form = "${Package}\\t${db:Status-Status}\\t${Priority}\\t${Pre-Depends}, ${Depends}\\t${Provides}\\n"
        told = subprocess.run(["dpkg-query", "-W", "-f", form], capture_output=True, text=True, check=True).stdout
        packages = []
        for line in told.splitlines():
            name, status, priority, depends, provides = line.split("\t")
            if status == "installed":
                packages.append(Package(name, priority, tuple(
                    tuple(_name(one) for one in all_of.split("|")) for all_of in depends.split(",") if all_of.strip()),
                    tuple(_name(one) for one in provides.split(",") if one.strip())))
        files = {}
        for listing in pathlib.Path("/var/lib/dpkg/info").glob("*.list"):
            package = listing.stem.split(":")[0]
            for path in listing.read_text(encoding="utf-8").splitlines():
                if "bin/" in path or "/libexec/" in path:
                    files.setdefault(path, package)
        return cls(packages, files)

    def closure(self, names):
        """The packages with all that they depend on; of alternatives the first that is installed."""
        found, waiting = set(), list(names)
        while waiting:
            name = waiting.pop()
            name = name if name in self.packages else self.providers.get(name, name)
            if name not in found:
                found.add(name)
                for choices in self.packages[name].depends if name in self.packages else ():
                    waiting += [one for one in choices if one in self.packages or one in self.providers][:1]
        return found

    def everywhere(self, priorities):
        return self.closure([package.name for package in self.packages.values() if package.priority in priorities]
                            + ["apt"])

    def owner(self, program):
        """The package that brings the program, by its name or its path; None when it is not here."""
        places = [program] if program.startswith("/") else [f"{folder}/{program}" for folder in self.folders]
        for place in places:
            # A link that no package owns is one that chooses between packages.
            for _ in range(4):
                for owned in (place, place.removeprefix("/usr"), f"/usr{place}"):
                    if owned in self.files:
                        return self.files[owned]
                path = pathlib.Path(place)
                if not path.is_symlink():
                    break
                place = str(path.parent / path.readlink())
        return None


def _name(dependency):
    return re.split(r"[ :(]", dependency.strip(), maxsplit=1)[0]


# What the files name ----------------------------------------------------------------------------------

def groups_in(script):
    """The groups that a script hands to the installer, in all its ways."""
    groups = re.findall(r"groups\+?=\(([^)]*)\)", script)
    groups += re.findall(rf'{re.escape(INSTALLER)}"?((?: \w+)+)$', script, re.MULTILINE)
    return sorted({group for words in groups for group in words.split()})


def _texts(tree):
    """The text constants of a Python module that are no comments."""
    comments = {id(node.value) for node in ast.walk(tree) if isinstance(node, ast.Expr)}
    return [node for node in ast.walk(tree)
            if isinstance(node, ast.Constant) and isinstance(node.value, str) and id(node) not in comments]


def programs_in_python(source):
    """Texts that may name a program: what a list begins with or passes to a shell, and what a call that starts programs
    is given; certain is only what subprocess itself is given."""
    named = []
    for node in ast.walk(ast.parse(source)):
        function = node.func if isinstance(node, ast.Call) else None
        called = getattr(function, "attr", getattr(function, "id", ""))
        given = node.args[0] if function is not None and node.args else None
        is_text = isinstance(given, ast.Constant) and isinstance(given.value, str)
        if is_text and (called in STARTING_CALLS or (called in LINE_CALLS and " " in given.value)):
            named += [shell_programs.Named(one.word, False) for one in shell_programs.named_in(given.value)]
        if isinstance(given, ast.List) and getattr(getattr(function, "value", None), "id", "") == "subprocess":
            named += [shell_programs.Named(item.value, True) for item in given.elts[:1] if isinstance(item, ast.Constant)]
        if isinstance(node, (ast.List, ast.Tuple)):
            items = [item.value if isinstance(item, ast.Constant) else None for item in node.elts]
            texts = [item for item in items if isinstance(item, str)]
            if texts and isinstance(items[0], str):
                named.append(shell_programs.Named(texts[0], False))
            for option, script in zip(texts, texts[1:]):
                if re.fullmatch(r"-\w*c", option) and shell_programs.SHELLS.intersection(texts):
                    named += [shell_programs.Named(one.word, False) for one in shell_programs.named_in(script)]
    return [one for one in named if re.fullmatch(r"[\w./+-]*[A-Za-z][\w.+-]*", one.word)]


def mentions(path, text):
    """The names of files that a file of code names outside its comments."""
    if path.suffix == ".py":
        tree = ast.parse(text)
        modules = [name.name for node in ast.walk(tree) if isinstance(node, ast.Import) for name in node.names]
        modules += [node.module for node in ast.walk(tree) if isinstance(node, ast.ImportFrom) and node.module]
        words = [module + ".py" for module in modules] + [node.value for node in _texts(tree)]
    elif path.suffix in (".cpp", ".h"):
        words = re.sub(r"//.*", "", text).split('"')
    elif path.suffix == ".txt":
        words = re.findall(r"[\w./-]+", re.sub(r"#.*", "", text))
    else:
        words = shell_programs.words_in(text)
    return {pathlib.PurePosixPath(word).name for word in words if "\n" not in word}


def is_script(path):
    return path.suffix in (".py", ".sh") or path.name in ("run", "test")


# The check --------------------------------------------------------------------------------------------

class Check:

    def __init__(self, root, machine):
        self.root = root
        self.machine = machine
        self.groups = {}
        for line in (root / LIST).read_text(encoding="utf-8").splitlines():
            if words := line.split("#")[0].split():
                self.groups.setdefault(words[0], []).append(words[1])
        self.allowed = functools.lru_cache(maxsize=None)(self._allowed)
        self.problems = []
        self.judged = 0

    def _allowed(self, packages, priorities):
        return self.machine.closure(packages) | self.machine.everywhere(priorities)

    def packages_of(self, groups):
        return tuple(sorted({package for group in groups for package in self.groups.get(group, ())}))

    def judge(self, place, named, packages, priorities, source):
        """Whether what is named comes with the packages; `source` says in words where these are told."""
        allowed = self.allowed(packages, priorities)
        all_here = all(package in self.machine.packages for package in packages)
        certain = {one.word for one in named if one.certain}
        for word in sorted({one.word for one in named} - BUILT_HERE):
            if "/" in word and not word.startswith("/"):
                continue
            package = self.machine.owner(word)
            if package is None and not (word in certain and all_here and priorities == EVERYWHERE):
                continue
            self.judged += 1
            if package is None:
                self.problems.append(f"{place} runs {word}, which no package of {source} brings")
            elif package not in allowed:
                self.problems.append(f"{place} runs {word}, which the package {package} brings: it is not in {source}")

    # Scripts -----------------------------------------------------------------------------------------

    def scripts(self):
        files = [path for top in ("tools", "tests") for path in (self.root / top).rglob("*")]
        files += [self.root / name for name in (*ENTRIES, *BESIDE_TESTS)]
        return sorted({path.relative_to(self.root).as_posix() for path in files if path.is_file() and is_script(path)})

    def contexts(self, scripts):
        """For each script the sets of groups with which it is run."""
        texts = {name: (self.root / name).read_text(encoding="utf-8") for name in scripts}
        own = {name: tuple(groups) for name, text in texts.items() if name in ENTRIES and (groups := groups_in(text))}
        found = {name: {own[name]} if name in own else set() for name in scripts}
        test = own["test"]
        for name in scripts:
            if name not in own and (name.startswith("tests/") or name in BESIDE_TESTS):
                found[name].add(test)

        def called_by(names):
            return [script for script in scripts if script not in own and pathlib.PurePosixPath(script).suffix
                    and pathlib.PurePosixPath(script).name in names]

        for entry, folders in ENTRIES.items():
            for path in (path for folder in folders for path in (self.root / folder).rglob("*")
                         if path.name == "CMakeLists.txt" or path.suffix in (".cpp", ".h")):
                for script in called_by(mentions(path, path.read_text(encoding="utf-8"))):
                    found[script].add(own[entry])
        mentioned = {name: mentions(pathlib.PurePosixPath(name), text) for name, text in texts.items()}
        before = None
        while before != (before := sum(map(len, found.values()))):
            for caller in scripts:
                for script in called_by(mentioned[caller]):
                    found[script] |= found[caller]
        return found

    def check_scripts(self):
        scripts = self.scripts()
        for name, contexts in self.contexts(scripts).items():
            path = self.root / name
            text = path.read_text(encoding="utf-8")
            if not contexts:
                self.problems.append(f"{name}: nothing tells which packages it is run with")
            named = programs_in_python(text) if path.suffix == ".py" else shell_programs.named_in(text)
            # Installs packages, so it needs none.
            for groups in sorted(contexts) if path.name != INSTALLER else [()]:
                source = f"the groups {', '.join(groups)} of {LIST}" if groups else "the packages of every Debian"
                self.judge(name, named, self.packages_of(groups), EVERYWHERE, source)

    # Guides ------------------------------------------------------------------------------------------

    def check_guides(self):
        test = self.packages_of(groups_in((self.root / "test").read_text(encoding="utf-8")))
        for folder in sorted({path.parent for path in (self.root / "docs").rglob("*.md")}):
            blocks = {path: [content for kind, content in FENCE.findall(path.read_text(encoding="utf-8")) if kind == "sh"]
                      for path in sorted(folder.glob("*.md"))}
            told = tuple(sorted(set().union(*(self.told_by(path, blocks[path]) for path in blocks))))
            for path, block in ((path, block) for path in blocks for block in blocks[path]):
                place = path.relative_to(self.root).as_posix()
                named = shell_programs.named_in(block)
                if block.startswith("# as root"):
                    self.judge(place, named, told, ADMINISTRATORS, "the packages that the guide names")
                    continue
                self.judge(place, named, test, EVERYWHERE, f"the groups of ./test in {LIST}")
                self.judge(place, named, told, EVERYWHERE, "the packages that the guide names")

    def told_by(self, path, blocks):
        """The packages that a page tells its reader to install."""
        told = set(re.findall(r"\(package `([\w.+-]+)`\)", path.read_text(encoding="utf-8")))
        for block in blocks:
            for command in re.findall(r"apt-get install((?:[^\n\\]|\\\n)*)", block):
                told |= {word for word in shell_programs.words_in(command) if not word.startswith("-")}
            if INSTALLER in block:
                told |= set(self.packages_of(groups_in(block)))
        return told


def check(root, machine):
    """How many times a program was judged, and what is wrong."""
    checked = Check(root, machine)
    checked.check_scripts()
    checked.check_guides()
    return checked.judged, checked.problems


def main(arguments):
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    judged, problems = check(pathlib.Path(arguments[0]), Machine.this_one())
    if judged == 0:
        problems.append("no script runs a program: this is not the repository's root")
    print("\n".join(problems) if problems else f"Every program comes with its packages ({judged} uses).")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
