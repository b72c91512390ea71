#!/usr/bin/env python3
"""Proves that each architecture check refuses what it is there to refuse, on small examples of its own."""

import contextlib
import io
import json
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

import brought_programs
import build_depends
import core_only
import exported_symbols
import failure_texts
import format as format_check
import headers_alone
import include_graph
import installed_package
import layouts
import reference
import release_build
import shell_programs
import workflow

sys.path.append(str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
import said_texts  # noqa: E402
import translations  # noqa: E402


class TemporaryTree(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name).resolve()

    def write(self, path, text):
        file = self.root / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text, encoding="utf-8")
        return file


class IncludeGraph(TemporaryTree):
    def setUp(self):
        super().setUp()
        self.write("ferrowind/platform/values/value.h", "#pragma once\n#include <string>\n")
        self.write("ferrowind/data/cell.h", '#pragma once\n#include "ferrowind/platform/values/value.h"\n')
        self.write("ferrowind/adapters/qt/form.cpp", '#include <QWidget>\n#include "ui_form.h"\n')
        self.arrows = ["ferrowind/data -> ferrowind/platform/values", "ferrowind/adapters/qt -> <qt>"]

    def errors(self):
        return include_graph.check(self.root, self.write("allowed.txt", "\n".join(self.arrows)))

    def assert_refused(self, *words):
        errors = self.errors()
        self.assertEqual(len(errors), 1, errors)
        for word in words:
            self.assertIn(word, errors[0])

    def test_accepts_a_tree_that_follows_its_list(self):
        self.assertEqual(self.errors(), [])

    def test_accepts_headers_for_everybody_also_one_that_the_build_writes(self):
        self.write("ferrowind/export.h", "#pragma once\n")
        self.write("ferrowind/version.h.in", "#pragma once\n")
        self.write("ferrowind/data/cell.cpp", '#include "ferrowind/export.h"\n#include "ferrowind/version.h"\n')
        self.assertEqual(self.errors(), [])

    def test_refuses_an_arrow_that_is_not_listed_and_names_the_place(self):
        self.write("ferrowind/platform/values/value.h", '#pragma once\n\n#include "ferrowind/data/cell.h"\n')
        self.assert_refused("ferrowind/platform/values/value.h:3", "ferrowind/platform/values -> ferrowind/data")

    def test_refuses_an_arrow_of_the_list_that_nothing_needs(self):
        self.arrows.append("ferrowind/views/common -> ferrowind/data")
        self.assert_refused("allowed.txt:3", "ferrowind/views/common -> ferrowind/data")

    def test_refuses_an_outside_header_in_the_component_even_when_listed(self):
        self.write("ferrowind/data/cell.cpp", "#include <QString>\n")
        self.arrows.append("ferrowind/data -> <qt>")
        self.assert_refused("ferrowind/data/cell.cpp:1", "only the standard library")

    def test_refuses_a_c_header_in_the_component(self):
        self.write("ferrowind/views/common/wait.cpp", "#include <unistd.h>\n")
        self.assert_refused("ferrowind/views/common/wait.cpp:1", "only the standard library")

    def test_refuses_a_library_that_the_list_does_not_give_an_adapter(self):
        self.write("ferrowind/adapters/qt/form.h", "#pragma once\n#include <sqlite3.h>\n")
        self.assert_refused("ferrowind/adapters/qt -> <sqlite>")

    def test_refuses_an_unknown_library(self):
        self.write("ferrowind/adapters/qt/form.h", "#pragma once\n#include <boost/any.hpp>\n")
        self.assert_refused("<boost/any.hpp>")

    def test_refuses_an_include_that_does_not_start_at_the_root(self):
        self.write("ferrowind/data/cell.cpp", '#include "cell.h"\n')
        self.assert_refused("ferrowind/data/cell.cpp:1", '"cell.h"')

    def test_refuses_an_include_whose_header_a_macro_names(self):
        self.write("ferrowind/data/cell.cpp", "#include HEADER\n")
        self.assert_refused("ferrowind/data/cell.cpp:1", "HEADER")

    def test_ignores_an_include_inside_a_comment_or_a_text(self):
        self.write("ferrowind/data/cell.cpp", '/*\n#include <QString>\n*/\nconst char* text = R"(\n#include "x.h"\n)";\n')
        self.assertEqual(self.errors(), [])

    def test_refuses_a_line_of_the_list_that_is_no_arrow(self):
        self.arrows.append("ferrowind/data <- ferrowind/views")
        self.assert_refused("allowed.txt:3", "not an arrow")

    def test_refuses_an_arrow_listed_twice(self):
        self.arrows.append(self.arrows[0])
        self.assert_refused("allowed.txt:3", "listed before")

    def test_refuses_a_folder_without_the_house(self):
        shutil.rmtree(self.root / "ferrowind")
        self.arrows = []
        self.assert_refused("not the repository's root")


class HeadersAlone(TemporaryTree):
    def setUp(self):
        super().setUp()
        self.write("ferrowind/data/cell.h", "#pragma once\n#include <string>\nstruct Cell { std::string name; };\n")
        self.write("precompiled.h", "#include <string>\n")
        source = self.write("ferrowind/data/cell.cpp", '#include "ferrowind/data/cell.h"\n')
        self.write("build/compile_commands.json", json.dumps([{
            "directory": str(self.root / "build"), "file": str(source),
            "command": f"/usr/bin/ccache /usr/bin/c++ -I{self.root} -DCELL=int -std=c++20 "
                       f"-Winvalid-pch -include {self.root}/precompiled.h -MD -MF a.d -o a.o -c {source}"}]))

    def errors(self):
        return headers_alone.check(self.root, self.root / "build")[1]

    def test_accepts_headers_that_include_what_they_use(self):
        self.assertEqual(self.errors(), [])

    def test_uses_the_flags_of_the_folder(self):
        self.write("ferrowind/data/row.h", "#pragma once\nstruct Row { CELL cell; };\n")
        self.assertEqual(self.errors(), [])
        self.write("ferrowind/views/row.h", "#pragma once\nstruct Row { CELL cell; };\n")
        self.assertEqual(len(self.errors()), 1)

    def test_refuses_a_header_that_lacks_an_include(self):
        self.write("ferrowind/data/row.h", "#pragma once\nstruct Row { std::string name; };\n")
        errors = self.errors()
        self.assertEqual(len(errors), 1)
        self.assertIn("ferrowind/data/row.h does not compile alone", errors[0])

    def test_refuses_a_header_without_a_guard(self):
        self.write("ferrowind/data/row.h", "struct Row {};\n")
        self.assertEqual(self.errors(), ["ferrowind/data/row.h does not begin with #pragma once"])

    def test_refuses_a_source_that_includes_another_header_before_its_own(self):
        self.write("ferrowind/data/cell.cpp", '#include <map>\n\n#include "ferrowind/data/cell.h"\n')
        errors = self.errors()
        self.assertEqual(len(errors), 1)
        self.assertIn("ferrowind/data/cell.cpp does not include ferrowind/data/cell.h first", errors[0])

    def test_leaves_a_folder_to_the_build_that_compiles_its_sources(self):
        self.write("ferrowind/elsewhere/row.cpp", '#include "ferrowind/elsewhere/row.h"\n')
        self.write("ferrowind/elsewhere/cell.h", "#pragma once\n#include <no_header_of_this_system.h>\n")
        self.assertEqual(headers_alone.check(self.root, self.root / "build"), (1, []))

    def test_looks_at_the_folders_that_it_is_told(self):
        self.write("ferrowind/views/row.h", "#pragma once\nstruct Row { std::string name; };\n")
        self.assertEqual(headers_alone.check(self.root, self.root / "build", ("ferrowind/data",)), (1, []))
        self.assertEqual(len(headers_alone.check(self.root, self.root / "build", ("ferrowind/views",))[1]), 1)

    def test_refuses_a_build_that_recorded_no_compiler(self):
        self.write("build/compile_commands.json", "[]")
        self.assertIn("names no compiler", self.errors()[0])


class Format(TemporaryTree):
    def setUp(self):
        super().setUp()
        self.write(".clang-format", "BasedOnStyle: Google\nColumnLimit: 40\n")
        self.write("ferrowind/cell.h", "int Cell();\n")

    def test_accepts_formatted_files(self):
        for release in (format_check.DECIDING_RELEASE, format_check.DECIDING_RELEASE + 1):
            self.assertEqual(format_check.check(self.root, release), (1, ""))

    def test_refuses_a_file_that_is_not_formatted_and_names_it(self):
        self.write("tests/cell_test.cpp", "int  Cell( );\n")
        self.assertIn("tests/cell_test.cpp", format_check.check(self.root, format_check.DECIDING_RELEASE)[1])

    def test_asks_the_formatter_for_its_release(self):
        self.assertGreaterEqual(format_check.installed_release(), format_check.DECIDING_RELEASE)

    def test_refuses_with_any_release_what_none_would_leave_so(self):
        for text, words in ((f"int {'a' * 40};\n", ":1: wider than 40"), ("int a; \n", ":1: a tab, or a blank"),
                            ("\tint a;\n", ":1: a tab, or a blank"), ("int a;", ":the end"), ("int a;\n\n", ":the end")):
            with self.subTest(text):
                self.write("tests/cell_test.cpp", text)
                self.assertEqual(format_check.check(self.root, format_check.DECIDING_RELEASE + 1)[1].split(".cpp")[1][:len(words)],
                                 words)

    def test_refuses_a_tree_without_files(self):
        shutil.rmtree(self.root / "ferrowind")
        self.assertIn("no C++ file", format_check.check(self.root)[1])


class CoreOnly(TemporaryTree):
    """A component of one program, which a test runs."""

    SOURCE = "int main() { return 0; }\n"
    LISTS = """cmake_minimum_required(VERSION 3.25)
project(Example LANGUAGES CXX)
enable_testing()
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
add_subdirectory(parts)
add_executable(example main.cpp)
add_test(NAME example COMMAND example)
"""

    def setUp(self):
        super().setUp()
        self.write("CMakePresets.json", json.dumps({
            "version": 5, "configurePresets": [{"name": "core-only", "generator": "Ninja", "binaryDir": "${sourceDir}/x"}]}))
        self.write("main.cpp", self.SOURCE)
        self.write("CMakeLists.txt", self.LISTS)
        self.write("parts/part.cpp", "int Part() { return 1; }\n")
        self.write("parts/CMakeLists.txt", "add_library(part STATIC part.cpp)\n")

    def check(self):
        return core_only.check(self.root, self.root / "build", ["parts"], ["example"])

    def assert_refused(self, words):
        with self.assertRaisesRegex(RuntimeError, words):
            self.check()

    def test_accepts_a_component_on_the_standard_library(self):
        self.assertEqual(self.check(), 1)

    def test_refuses_a_package_that_must_not_be_found(self):
        for package in ("Qt6 COMPONENTS Widgets", "SQLite3", "PostgreSQL"):
            with self.subTest(package):
                self.write("CMakeLists.txt", self.LISTS + f"find_package({package} REQUIRED)\n")
                self.assert_refused("configuring core-only failed")

    def test_refuses_a_header_that_must_be_out_of_reach(self):
        for header in ("sqlite3.h", "libpq-fe.h", "QWidget", "QtCore/QObject"):
            with self.subTest(header):
                self.write("main.cpp", f"#include <{header}>\n{self.SOURCE}")
                self.assert_refused("out of reach")

    def test_refuses_a_part_that_no_program_uses(self):
        self.write("parts/part.cpp", "#include <sqlite3.h>\n")
        self.assert_refused("out of reach")

    def test_refuses_a_library_that_is_linked_by_its_path(self):
        self.write("main.cpp", "extern \"C\" int sqlite3_libversion_number();\n"
                   "int main() { return sqlite3_libversion_number() > 0 ? 0 : 1; }\n")
        self.write("CMakeLists.txt", self.LISTS + "target_link_libraries(example PRIVATE sqlite3)\n")
        self.assert_refused("example needs libsqlite3")

    def test_refuses_a_failing_test(self):
        self.write("main.cpp", "int main() { return 1; }\n")
        self.assert_refused("testing core-only failed")

    def test_refuses_a_component_without_tests(self):
        self.write("CMakeLists.txt", self.LISTS.replace("add_test(NAME example COMMAND example)", ""))
        self.assert_refused("testing core-only failed")


class ReleaseBuild(TemporaryTree):
    """A program that GCC warns of only while it optimises."""

    LISTS = """cmake_minimum_required(VERSION 3.25)
project(Example LANGUAGES CXX)
option(FERROWIND_PRECOMPILE "" ON)
add_executable(example main.cpp)
target_compile_options(example PRIVATE -Wall)
if(FERROWIND_PRECOMPILE)
  target_precompile_headers(example PRIVATE <string>)
endif()
"""
    DOUBTFUL = "int Last(int count) { int last; for (int i = 0; i < count; ++i) last = i * count; return last; }\n"
    MAIN = "int main(int count, char**) { return Last(count); }\n"

    def setUp(self):
        super().setUp()
        self.write("CMakeLists.txt", self.LISTS)
        self.write("main.cpp", "int Last(int count) { return count; }\n" + self.MAIN)

    def compile(self):
        release_build.compile_clean(self.root, self.root / "build")

    def test_accepts_sources_without_a_warning(self):
        self.compile()

    def test_refuses_a_warning_of_an_optimising_build_and_shows_it(self):
        self.write("main.cpp", self.DOUBTFUL + self.MAIN)
        with self.assertRaisesRegex(RuntimeError, "does not compile clean(.|\n)*may be used uninitialized"):
            self.compile()

    def test_refuses_a_source_that_lives_on_precompiled_headers(self):
        self.write("main.cpp", "int main() { return std::string().size() == 0 ? 0 : 1; }\n")
        with self.assertRaisesRegex(RuntimeError, "building the release failed"):
            self.compile()

    def test_refuses_a_source_that_means_something_else_where_nothing_is_asserted(self):
        self.write("host/a.cpp", "#include <cassert>\nstatic_assert(true);\n")
        self.write("ferrowind/b/c.cpp", "int B(int one) {\n  assert(one == 1);\n  return one;\n}\n")
        self.assertEqual(release_build.assertion_complaints(self.root), [
            "ferrowind/b/c.cpp:2 hangs on the build type by assert(", "host/a.cpp:1 hangs on the build type by <cassert>"])


class InstalledPackage(TemporaryTree):
    def test_names_an_include_that_is_not_installed(self):
        self.write("include/a/b.h", '#include <string>\n#include "a/c.h"\n#include "a/inside.h"\n')
        self.write("include/a/c.h", "#pragma once\n")
        self.assertEqual(installed_package.missing_includes(self.root / "include", ["a/b.h", "a/c.h"]),
                         ["a/b.h includes a/inside.h"])

    def test_names_an_installed_file_that_names_the_repository(self):
        self.write("prefix/lib/a.pc", "prefix=/usr\n")
        file = self.write("prefix/lib/b.pc", "libdir=/home/anna/tree/build\n")
        self.assertEqual(installed_package.installed_references(self.root / "prefix", pathlib.Path("/home/anna/tree")), [str(file)])


class FailureTexts(unittest.TestCase):
    SOURCE = """
        // "a comment"
        #include "a/file.h"
        throw Failure("The file " + path + " is "
                      "gone: \\"why\\"" + reason);
        """
    ROW = '| `The file … is gone: "why" …` | moved away | bring it back |\n'

    def corpus(self):
        return "\n".join(failure_texts.literals(self.SOURCE))

    def test_reads_texts_out_of_a_source(self):
        self.assertEqual(failure_texts.literals(self.SOURCE), ["The file ", ' is gone: "why"'])

    def test_accepts_a_listed_text_that_the_programs_have(self):
        self.assertEqual(failure_texts.unknown_texts(self.ROW, self.corpus()), [])
        self.assertEqual(failure_texts.missing_texts(self.ROW, self.SOURCE), [])

    def test_refuses_a_listed_text_that_no_program_has(self):
        row = self.ROW.replace("gone", "lost")
        self.assertEqual(failure_texts.unknown_texts(row, self.corpus()), ['The file … is lost: "why" …'])

    def test_refuses_a_text_that_is_not_listed(self):
        self.assertEqual(failure_texts.missing_texts("| `The file …` | | |\n", self.SOURCE), [' is gone: "why"'])

    QUESTION = """-- Whose 'names' are none.
SELECT format('The role %s may do ''everything'' here; take it: DROP %1$I', name) FROM roles WHERE name <> 'a b c d'"""

    def test_reads_texts_out_of_a_question_to_a_database(self):
        self.assertEqual(failure_texts.sql_literals(self.QUESTION),
                         ["The role %s may do 'everything' here; take it: DROP %1$I", "a b c d"])

    def test_refuses_an_answer_of_a_database_that_is_not_listed(self):
        row = "| `The role … may do 'everything' here` | | |\n"
        self.assertEqual(failure_texts.missing_answers(row, self.QUESTION), [])
        self.assertEqual(failure_texts.missing_answers(row.replace("every", "no"), self.QUESTION),
                         ["may do 'everything' here"])

    def test_knows_texts_that_come_from_a_library(self):
        table = "| in the bracket | cause |\n|---|---|\n| `no such user` | |\n\n" + self.ROW
        self.assertEqual(failure_texts.listed(table), ['The file … is gone: "why" …'])


class ShellPrograms(unittest.TestCase):

    def assert_named(self, script, *words):
        self.assertEqual([named.word for named in shell_programs.named_in(script)], list(words), script)

    def test_names_what_stands_in_front_of_a_command(self):
        self.assert_named("ls -l | sort && wc <a >b; ! grep x || exit 1\n(tail f) &", "ls", "sort", "wc", "grep", "tail")
        self.assert_named("LC_ALL=C sed p; a=1 b=2\nif test -e x; then cut -d: ; else { head; }; fi", "sed", "cut", "head")
        self.assert_named("for file in one two; do cat $file; done <list\nwhile read -r x; do od; done", "cat", "od")
        self.assert_named("tail 2>&1 >/dev/null log\nls -d x 2>/dev/null | tail", "tail", "ls", "tail")

    def test_names_what_a_substitution_runs(self):
        self.assert_named('a=$(id -u) b="x $(date +%F)" diff <(sort a) b', "id", "date", "sort", "diff")
        self.assert_named('echo $((1 + 2)) "${a:-none}" $# $1', )

    def test_passes_over_comments_quotes_and_documents(self):
        self.assert_named("# rm\ncat <<'END' >file  # mv\nrm a\nEND\nprintf 'cp; mv' \"ln; tr\"\ntouch a", "cat", "touch")

    def test_comes_to_an_end_where_a_quote_has_none(self):
        self.assert_named("ls; a man's cache", "ls", "a")

    def test_passes_over_patterns_and_functions(self):
        self.assert_named('case $1 in\n  start | stop) mkdir a ;;\n  *)\n    rmdir a\nesac\ncp b', "mkdir", "rmdir", "cp")
        self.assert_named("fail() {\n  tail log\n}\nfail now\n[[ $a = cp && $b ]] && mv", "tail", "mv")

    def test_names_what_other_commands_start(self):
        self.assert_named("xargs -0 -n 1 clang-tidy --quiet", "xargs", "clang-tidy")
        self.assert_named("runuser -u anna -- psql", "runuser", "anna", "psql")
        self.assert_named("exec xvfb-run sh -eu -c 'xprop -root; exec \"$@\"' name", "xvfb-run", "sh", "xprop", "name")
        self.assert_named('trap \'rm -f -- "$log"\' EXIT\nbuild=(cmake --build "x/$preset")\n"${build[@]}"', "rm", "cmake")
        self.assert_named('"$programs/initdb" -D x', "initdb")

    def test_tells_whether_it_is_certain(self):
        self.assertEqual(shell_programs.named_in("env psql"), [
            shell_programs.Named("env", True), shell_programs.Named("psql", False)])


class BroughtPrograms(TemporaryTree):
    """A machine of a few packages, on which everything is installed that anybody may need."""

    PACKAGES = {"dash": ("required", ""), "apt": ("important", ""), "psmisc": ("optional", ""), "systemd": ("important", ""),
                "cmake": ("optional", "nothing-here | make-it"), "make-it": ("optional", ""), "xvfb": ("optional", "xauth"),
                "xauth": ("optional", ""), "openbox": ("optional", ""), "sql-15": ("optional", "")}
    PROGRAMS = {"sh": "dash", "cmake": "cmake", "make": "make-it", "Xvfb": "xvfb", "xauth": "xauth", "openbox": "openbox",
                "fuser": "psmisc", "systemctl": "systemd"}

    def setUp(self):
        super().setUp()
        self.write("tools/packages.txt", "build cmake # a\ntest xvfb # b\nremote openbox # c\nbench cmake #\nfuzz cmake #\n"
                   "tidy cmake #\ncompare cmake #\n")
        for entry, groups in (("run", "remote"), ("test", "test"), ("bench.sh", "bench"), ("tools/fuzz.sh", "fuzz"),
                              ("tools/tidy.sh", "tidy"), ("tools/compare_with_quantlib.sh", "compare")):
            self.write(entry, f'tools/install_packages.sh build {groups}\n"$root/tools/build.sh"\n')
        self.write("tools/build.sh", "cmake && make\n")
        self.write("tools/install_packages.sh", "sh\n")
        for script in brought_programs.BESIDE_TESTS:
            self.write(script, "")
        self.packages = {name: brought_programs.Package(
            name, priority, ((tuple(depends.split(" | ")),) if depends else ()), ("sql",) if name == "sql-15" else ())
            for name, (priority, depends) in self.PACKAGES.items()}
        self.bin = self.root / "bin"
        self.files = {str(self.bin / program): package for program, package in self.PROGRAMS.items()}

    def problems(self):
        machine = brought_programs.Machine(list(self.packages.values()), self.files, [str(self.bin)])
        return brought_programs.check(self.root, machine)[1]

    def assert_refused(self, *words):
        problems = self.problems()
        self.assertEqual(len(problems), 1, problems)
        for word in words:
            self.assertIn(word, problems[0])

    def test_accepts_programs_that_the_groups_or_every_debian_bring(self):
        self.write("tests/a.py", "import subprocess\nsubprocess.run(['Xvfb'])\nsubprocess.run(['sh', '-c', 'xauth'])\n")
        self.assertEqual(self.problems(), [])

    def test_refuses_a_program_of_another_group_and_names_script_and_package(self):
        self.write("tests/a.sh", "openbox --sm-disable &\n")
        self.assert_refused("tests/a.sh", "openbox", "build, test")

    def test_refuses_a_program_that_a_python_script_starts(self):
        for text in ("import subprocess\nsubprocess.Popen(['openbox'])\n", "server = ['openbox', '-x']\n",
                     "run(['sh', '-c', 'exec openbox'])\n", "self.start('sh; openbox')\n", "shutil.which('openbox')\n"):
            with self.subTest(text):
                self.write("tests/a.py", text)
                self.assert_refused("tests/a.py", "openbox")

    def test_refuses_a_program_that_one_of_two_callers_does_not_bring(self):
        self.write("tools/serve.py", "import display\n")
        self.write("tools/display.py", "frames = ['openbox']\n")
        self.write("run", 'groups=(build)\ngroups+=(remote)\ntools/install_packages.sh "${groups[@]}"\n'
                   '"$root/tools/serve.py"\n')
        self.assertEqual(self.problems(), [])
        self.write("tests/CMakeLists.txt", "add_test(NAME a COMMAND ${PROJECT_SOURCE_DIR}/tools/serve.py)\n")
        self.assert_refused("tools/display.py", "openbox", "build, test")

    def test_refuses_a_script_that_nothing_runs(self):
        self.write("tools/forgotten.sh", "sh\n")
        self.assert_refused("tools/forgotten.sh")

    def test_refuses_an_installer_that_needs_a_package(self):
        self.write("tools/install_packages.sh", "cmake\n")
        self.assert_refused("tools/install_packages.sh", "cmake", "every Debian")

    def test_refuses_a_program_that_no_package_brings(self):
        self.write("tests/a.sh", "homemade\n")
        self.assert_refused("homemade", "no package")

    def test_cannot_judge_a_program_when_packages_of_its_group_are_not_here(self):
        self.write("tests/a.sh", "homemade\n")
        del self.packages["xvfb"]
        self.assertEqual(self.problems(), [])

    def test_knows_a_program_behind_links_and_a_package_by_what_it_provides(self):
        self.bin.mkdir()
        (self.bin / "psql").symlink_to(self.bin / "psql-15")
        self.files[str(self.bin / "psql-15")] = "sql-15"
        self.write("tests/a.sh", "psql\n")
        self.assert_refused("psql", "sql-15")
        self.write("tools/packages.txt", (self.root / "tools/packages.txt").read_text() + "test sql #\n")
        self.assertEqual(self.problems(), [])

    def test_refuses_a_program_that_a_guide_does_not_name_the_package_of(self):
        page = "```sh\n# as root\nfuser a && systemctl b\n```\n"
        self.write("docs/admin/a.md", page)
        self.assert_refused("docs/admin/a.md", "fuser", "psmisc")
        for told in ("Needs it (package `psmisc`).\n", "```sh\n# as root\napt-get install psmisc\n```\n"):
            with self.subTest(told):
                self.write("docs/admin/a.md", told + page)
                self.assertEqual(self.problems(), [])

    def test_refuses_a_program_of_a_guide_that_the_tests_do_not_bring(self):
        self.write("docs/a.md", "```sh\n# as root\napt-get install openbox\n```\n\n```sh\nopenbox\n```\n")
        self.assert_refused("docs/a.md", "openbox", "./test")


class Workflow(TemporaryTree):
    def setUp(self):
        super().setUp()
        self.write("tools/build.sh", "").chmod(0o755)
        self.step = {"run": "cd build && tools/build.sh x | tee tools.txt"}
        self.workflow = {True: "push", "jobs": {"build": {"runs-on": "debian", "steps": [{"uses": "it"}, self.step]}}}

    def check(self):
        return workflow.check_workflow(self.root, "a.yml", self.workflow)

    def test_accepts_one_whose_scripts_are_here(self):
        self.assertEqual(self.check(), (1, []))

    def test_refuses_a_script_that_is_not_here(self):
        self.step["run"] = "apt-get update\n./test"
        self.assertEqual(self.check(), (1, ["a.yml: the job build runs ./test, which is no program here"]))

    def test_refuses_a_script_that_is_no_program(self):
        (self.root / "tools/build.sh").chmod(0o644)
        self.assertEqual(self.check(), (1, ["a.yml: the job build runs tools/build.sh, which is no program here"]))

    def test_refuses_one_that_nothing_starts(self):
        del self.workflow[True]
        self.assertEqual(self.check(), (1, ["a.yml: nothing starts it"]))

    def test_refuses_a_job_without_steps(self):
        self.workflow["jobs"]["build"]["steps"] = []
        self.assertEqual(self.check(), (0, ["a.yml: the job build lacks a machine or steps"]))

    def test_refuses_one_without_jobs(self):
        self.assertEqual(workflow.check_workflow(self.root, "a.yml", ["text"]), (0, ["a.yml: there are no jobs"]))


class Translations(TemporaryTree):
    def setUp(self):
        super().setUp()
        self.write("ferrowind/views/planning/window.cpp", """
            const auto design = Design{.caption = "History", .controls = {{ControlKind::kLabel, "lblDay", "Day"}}};
            //: said
            constexpr std::array<const char*, 2> kDays = {"Sunday", "Monday"};
            constexpr const char* kTool = "ID_Tool";
            //: said 2
            const Column kColumns[] = {{"Name1", "name", AsItStands}};
            void Tell() {
              //: says 2 3
              const auto add = [&](int count, const char* one, const char* many) { parts.push_back(Said(one)); };
              add(2, "%n day", "%n days");
              Show(Said(platform_, is_open ? "Open on %1" : "Closed on %1", {"EUR"}), "Window History");
              Show(SaidOfNumber(platform_, count, "It changes.", "They change."));
            }
            """)
        self.write("ferrowind/adapters/qt/forms/fmDays.ui", """<ui><class>fmDays</class><widget>
            <property name="accessibleName"><string>Days</string></property>
            <property name="text"><string>Of the design</string></property></widget></ui>""")
        self.texts = said_texts.texts_of_tree(self.root)
        self.forms = {text: ["%n Tag", "%n Tage"] if text.text == "%n days" else ["Es", "Sie"] if text.counts
                      else ["Am %1" if "%1" in text.text else "Wort"] for text in self.texts}
        self.path = self.root / "translations" / "ferrowind_de.ts"

    def faults(self):
        german = translations.Translations("de", self.path)
        german.forms = self.forms
        german.write()
        return translations.Translations("de", self.path).faults(self.texts)

    def assert_refused(self, *words):
        faults = self.faults()
        self.assertEqual(len(faults), 1, faults)
        for word in words:
            self.assertIn(word, faults[0])

    def form(self, text, *forms):
        self.forms[next(said for said in self.texts if said.text == text)] = list(forms)

    def test_find_the_texts_that_are_said_and_nothing_else(self):
        self.assertEqual({(text.context, text.text, text.counts) for text in self.texts}, {
            ("ferrowind", "History", False), ("ferrowind", "Day", False), ("ferrowind", "Sunday", False),
            ("ferrowind", "Monday", False), ("ferrowind", "name", False), ("ferrowind", "%n days", True),
            ("ferrowind", "Open on %1", False), ("ferrowind", "Closed on %1", False),
            ("ferrowind", "They change.", True), ("fmDays", "Days", False)})

    def test_accept_a_language_that_has_every_text(self):
        self.assertEqual(self.faults(), [])

    def test_refuse_a_text_that_is_missing_and_one_that_is_left_over(self):
        text = next(said for said in self.texts if said.text == "Monday")
        del self.forms[text]
        self.assert_refused("Monday", "missing")
        self.forms[text] = ["Montag"]
        self.forms[said_texts.SaidText("ferrowind", "Gone")] = ["Weg"]
        self.assert_refused("Gone", "any more")

    def test_refuse_what_is_unfinished_or_empty(self):
        self.form("Monday")
        self.assert_refused("Monday", "unfinished")
        self.form("Monday", " ")
        self.assertIn('"Monday": a translation is empty', self.faults())

    def test_refuse_another_place_but_need_no_number_in_the_form_for_one(self):
        self.form("Open on %1", "Am %2")
        self.assert_refused("Open on %1", "places")
        self.form("Open on %1", "Am %1")
        self.form("%n days", "ein Tag", "%n Tage")
        self.assertEqual(self.faults(), [])
        self.form("%n days", "ein Tag", "viele Tage")
        self.assert_refused("%n days", "places")

    def test_refuse_other_numbers_of_forms(self):
        self.form("%n days", "%n Tage")
        self.assert_refused("%n days", "1 forms")

    def test_refuse_access_keys_that_collide(self):
        self.texts |= {said_texts.SaidText("ferrowind", text) for text in ("&Open calendars", "&Close calendars")}
        self.form("&Open calendars", "Kalender &zeigen")
        self.form("&Close calendars", "Kalender &Zumachen")
        self.assert_refused('"z"', "Kalender &zeigen")
        self.form("&Close calendars", "Kalender zumachen")
        self.assert_refused("access key")

    def test_refuse_a_mark_that_nothing_follows(self):
        self.write("ferrowind/data/said.cpp", "int a; //: said\n")
        with self.assertRaises(ValueError):
            said_texts.texts_of_tree(self.root)


class Reference(TemporaryTree):
    def check(self, header):
        path = self.write("include/thing.h", header)
        settings = self.write("Doxyfile", f'INPUT = "{path}"\nQUIET = YES\nGENERATE_LATEX = NO\n'
                                          "MACRO_EXPANSION = YES\nEXPAND_ONLY_PREDEF = YES\nPREDEFINED = FERROWIND_EXPORT=\n")
        said = io.StringIO()
        with contextlib.redirect_stdout(said):
            status = reference.main([str(settings)])
        return status, said.getvalue()

    def test_takes_what_is_documented(self):
        status, said = self.check("/// Of things.\nnamespace things {\n/// A thing.\nstruct FERROWIND_EXPORT Thing {\n"
                                  "  /// In metres.\n  int size;\n};\n}\n")
        self.assertEqual(status, 0, said)

    def test_names_a_member_without_a_comment(self):
        status, said = self.check("/// Of things.\nnamespace things {\n/// A thing.\nstruct FERROWIND_EXPORT Thing {\n"
                                  "  int size;\n};\n}\n")
        self.assertEqual(status, 1)
        self.assertIn("Member size", said)

    def test_names_a_namespace_that_hides_its_members(self):
        status, said = self.check("namespace things {\nint Size(int thing);\n/// A thing.\nstruct FERROWIND_EXPORT Thing {};\n}\n")
        self.assertEqual(status, 1)
        self.assertIn("things", said)

    def test_names_a_type_that_is_not_found(self):
        status, said = self.check("/// Of things.\nnamespace things {\n/// A thing.\nstruct Thing {};\n#if 0\n"
                                  "struct FERROWIND_EXPORT Other {};\n#endif\n}\n")
        self.assertEqual(status, 1)
        self.assertIn("Other", said)


class ExportedSymbols(TemporaryTree):
    SOURCE = ("#define EXPORT __attribute__((visibility(\"default\")))\n"
              "namespace ferrowind {\nstruct EXPORT Port { virtual int Ask() { return 1; } };\n"
              "EXPORT int Size(int thing) { return thing + Port().Ask(); }\nint Hidden() { return 2; }\n}\n")

    def library(self, source):
        library = self.root / "libferrowind.o"
        path = self.write("source.cpp", source)
        subprocess.run(["clang++", "-std=c++20", "-fvisibility=hidden", "-fPIC", "-c", str(path), "-o", str(library)], check=True)
        return library

    def check(self, source, *options):
        (self.root / "lists").mkdir(exist_ok=True)
        said = io.StringIO()
        with contextlib.redirect_stdout(said):
            status = exported_symbols.main([*options, str(self.root / "lists"), str(self.library(source))])
        return status, said.getvalue()

    def test_sees_what_is_shown_and_no_more(self):
        shown = exported_symbols.exported(self.library(self.SOURCE))
        self.assertIn("ferrowind::Size(int)", shown)
        self.assertNotIn("ferrowind::Hidden()", shown)
        self.assertIn("typeinfo for ferrowind::Port", shown)

    def test_takes_what_it_was_updated_with(self):
        self.assertEqual(self.check(self.SOURCE, "--update")[0], 0)
        self.assertEqual(self.check(self.SOURCE)[0], 0)

    def test_refuses_another_signature(self):
        self.check(self.SOURCE, "--update")
        status, said = self.check(self.SOURCE.replace("int Size(int", "int Size(long"))
        self.assertEqual(status, 1)
        self.assertIn("no more: ferrowind::Size(int)", said)
        self.assertIn("list has not: ferrowind::Size(long)", said)

    def test_refuses_a_library_that_shows_nothing(self):
        self.check(self.SOURCE, "--update")
        status, said = self.check("namespace ferrowind {}\n")
        self.assertEqual(status, 1)
        self.assertIn("nothing at all", said)


class BuildDepends(TemporaryTree):
    PACKAGES = "# group package # why\nbuild   g++   # the compiler\nbuild   cmake # configures\nbuild   libpq-dev # the server\ntest    doxygen # tells\n"

    def check(self, depends):
        self.write("tools/packages.txt", self.PACKAGES)
        self.write("debian/control", f"Source: ferrowind\nBuild-Depends:\n{depends}\nPackage: ferrowind\n")
        said = io.StringIO()
        with contextlib.redirect_stdout(said):
            status = build_depends.main([str(self.root)])
        return status, said.getvalue()

    def test_accepts_all_but_the_compiler(self):
        self.assertEqual(self.check(" cmake (>= 3.25),\n libpq-dev,\n python3:any\n")[0], 0)

    def test_names_what_packages_are_built_without(self):
        status, said = self.check(" cmake (>= 3.25)\n")
        self.assertEqual(status, 1)
        self.assertIn("libpq-dev", said)


class Layouts(TemporaryTree):
    HEADER = ("#pragma once\n#include <string>\n#include <vector>\nnamespace ferrowind {\n"
              "enum class Kind { kNear, kFar = 4 };\n"
              "struct Base { int first; };\n"
              "struct Row : Base { bool set; static int count; std::vector<std::string> texts; Kind kind; };\n"
              "class Port { public: virtual ~Port(); virtual int Ask(const std::string& text) const; virtual void Tell(Row* row); };\n"
              "struct Hidden;\n}\nnamespace others { struct Foreign { int size; }; }\n")

    def check(self, header, *options):
        path = self.write("port.h", header)
        doxyfile = self.write("Doxyfile", f'INPUT = "{path}" "{self.root}/a_page.md"\n')
        said = io.StringIO()
        with contextlib.redirect_stdout(said):
            status = layouts.main([*options, str(self.root / "layouts.txt"), str(doxyfile), str(self.root)])
        return status, said.getvalue()

    def changed(self, before, after):
        self.assertIn(before, self.HEADER)
        self.assertEqual(self.check(self.HEADER, "--update")[0], 0)
        status, said = self.check(self.HEADER.replace(before, after))
        self.assertEqual(status, 1)
        return said

    def test_lists_sizes_members_bases_virtual_functions_and_enumerators(self):
        self.check(self.HEADER, "--update")
        self.assertEqual((self.root / "layouts.txt").read_text(encoding="utf-8").splitlines(), [
            "ferrowind::Base: 4 bytes", "ferrowind::Base: at 0 first, int",
            "ferrowind::Kind: 4 bytes", "ferrowind::Kind: kNear = 0", "ferrowind::Kind: kFar = 4",
            "ferrowind::Port: 8 bytes", "ferrowind::Port: virtual destructor",
            "ferrowind::Port: virtual 2 Ask(const std::string&) const -> int", "ferrowind::Port: virtual 3 Tell(ferrowind::Row*) -> void",
            "ferrowind::Row: 40 bytes", "ferrowind::Row: at 0 base ferrowind::Base", "ferrowind::Row: at 4 set, bool",
            "ferrowind::Row: at 8 texts, std::vector<std::string>", "ferrowind::Row: at 32 kind, ferrowind::Kind"])

    def test_takes_what_it_was_updated_with(self):
        self.check(self.HEADER, "--update")
        self.assertEqual(self.check(self.HEADER)[0], 0)

    def test_refuses_a_member_that_moved(self):
        self.assertIn("no more: ferrowind::Row: at 4 set, bool", self.changed("bool set;", "int before; bool set;"))

    def test_refuses_virtual_functions_that_changed_places(self):
        said = self.changed("virtual int Ask(const std::string& text) const; virtual void Tell(Row* row);",
                            "virtual void Tell(Row* row); virtual int Ask(const std::string& text) const;")
        self.assertIn("no more: ferrowind::Port: virtual 2 Ask(", said)

    def test_refuses_another_result(self):
        self.assertIn("no more: ferrowind::Port: virtual 3 Tell(", self.changed("virtual void Tell", "virtual bool Tell"))

    def test_refuses_an_enumerator_of_another_value(self):
        self.assertIn("no more: ferrowind::Kind: kFar = 4", self.changed("kFar = 4", "kFar = 5"))

    def test_refuses_headers_without_a_type(self):
        self.assertEqual(self.check("#pragma once\nnamespace ferrowind {}\n", "--update")[0], 1)


if __name__ == "__main__":
    unittest.main()
