"""Checks that the administrator's guide lists failure texts that the programs have, and all texts of some sources.
usage: failure_texts.py ROOT"""

import pathlib
import re
import sys

FOLDERS = ("ferrowind/adapters", "ferrowind/almanac", "ferrowind/business_days", "ferrowind/control", "ferrowind/data", "ferrowind/exchange", "ferrowind/loading", "ferrowind/planning", "ferrowind/platform",
           "host")
# Sources whose every text of several words is told to people, and so is in the guide.
COMPLETE = ("ferrowind/adapters/content/content_copy.cpp", "ferrowind/adapters/content/schema_upgrade.cpp",
            "ferrowind/adapters/postgres/connection_uri.cpp", "ferrowind/adapters/postgres/postgres_failure.cpp",
            "ferrowind/adapters/postgres_calls/sql_state.cpp", "ferrowind/adapters/odbc/connection_string.cpp",
            "ferrowind/adapters/odbc/diagnostics.cpp",
            "ferrowind/adapters/sqlite/sqlite_failure.cpp", "ferrowind/data/error_table.cpp",
            "host/admin/history_arguments.cpp", "host/admin/interruption.cpp")
# Questions to a database whose answers are told to people, and the beginnings of those answers, each of which is in the guide.
QUESTIONS = ("database/postgres/check", "database/postgres/administration")
FOREIGN = "| in the bracket |"  # The header of the table of texts that come from a library.
_LITERAL = re.compile(r'"(?:[^"\\\n]|\\.)*"')
_JOINED = re.compile(r'"\s*\n\s*"')
_NO_TEXT = re.compile(r"^\s*(//|#include).*$", re.MULTILINE)
_SHORTEST_PART = 6
_SQL_COMMENT = re.compile(r"--.*$", re.MULTILINE)
_SQL_LITERAL = re.compile(r"'((?:[^']|'')*)'")
_SQL_ANSWER = re.compile(r"\bformat\('((?:[^']|'')*)'")
_PLACE = re.compile(r"%(?:\d\$)?[sI]")
_FRAGMENT_WORDS = 3


def literals(source):
    """The texts of a C++ source, those that stand behind each other as one."""
    joined = _JOINED.sub("", _NO_TEXT.sub("", source))
    return [re.sub(r"\\(.)", r"\1", text[1:-1]) for text in _LITERAL.findall(joined)]


def sql_literals(question):
    """The texts of an SQL source."""
    return [text.replace("''", "'") for text in _SQL_LITERAL.findall(_SQL_COMMENT.sub("", question))]


def missing_answers(guide, question):
    """Answers of an SQL source of which the guide has no line with all their words up to the first that varies or a colon."""
    missing = []
    plain = guide.replace("`", "")
    for answer in _SQL_ANSWER.findall(_SQL_COMMENT.sub("", question)):
        fragments = [part.strip() for part in _PLACE.split(re.split("[;:]", answer.replace("''", "'"))[0])]
        telling = [part for part in fragments if len(part.split()) >= _FRAGMENT_WORDS]
        missing += [part for part in telling[:1] if part not in plain]
    return missing


def listed(guide):
    """The failure texts of the guide: what is in backticks in the first column of a table."""
    texts = []
    foreign = False
    for line in guide.splitlines():
        if not line.startswith("|"):
            foreign = False
            continue
        foreign |= line.startswith(FOREIGN)
        if not foreign:
            texts += re.findall(r"`([^`]+)`", line.split(" | ")[0])
    return texts


def is_in(corpus, fragment):
    """Whether the programs have the fragment, in one piece or put together from two."""
    if fragment in corpus:
        return True
    cuts = range(_SHORTEST_PART, len(fragment) - _SHORTEST_PART + 1)
    return any(fragment[:cut] in corpus and fragment[cut:] in corpus for cut in cuts)


def unknown_texts(guide, corpus):
    """Listed texts that no program has."""
    unknown = []
    for text in listed(guide):
        fragments = [fragment.strip(" .") for fragment in text.split("…")]
        if not all(is_in(corpus, fragment) for fragment in fragments if fragment):
            unknown.append(text)
    return unknown


def missing_texts(guide, source):
    """Texts of several words of a source that are not in the guide."""
    plain = guide.replace("`", "")
    return [text for text in literals(source) if len(text.split()) > 1 and text.strip(" .:;") not in plain]


def main(root):
    guide = (root / "docs/admin/failures.md").read_text(encoding="utf-8")
    sources = {path.relative_to(root).as_posix(): path.read_text(encoding="utf-8")
               for folder in FOLDERS for path in sorted((root / folder).rglob("*.[ch]*")) if path.suffix in (".cpp", ".h")}
    questions = {path.relative_to(root).as_posix(): path.read_text(encoding="utf-8")
                 for folder in QUESTIONS for path in sorted((root / folder).glob("*.sql"))}
    corpus = "\n".join([text for source in sources.values() for text in literals(source)]
                       + [_PLACE.sub("…", text) for question in questions.values() for text in sql_literals(question)])
    problems = [f"docs/admin/failures.md: no program says \"{text}\"" for text in unknown_texts(guide, corpus)]
    for name in COMPLETE:
        problems += [f"{name}: \"{text}\" is not in docs/admin/failures.md" for text in missing_texts(guide, sources[name])]
    for name, question in questions.items():
        problems += [f"{name}: \"{text}\" is not in docs/admin/failures.md" for text in missing_answers(guide, question)]
    for problem in problems:
        print(problem)
    if len(listed(guide)) < 50:
        print("docs/admin/failures.md: its tables are not found")
        return 1
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
