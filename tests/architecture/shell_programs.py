"""Which programs a shell script names: a modest reader of bash, good enough for the scripts of this repository.

It knows quotes, comments, here-documents, substitutions, functions, arrays, `case`, `for`, `[[`, and the commands that
start others. What a variable holds it doesn't know; of "$folder/program" it takes the program's name.
"""

import dataclasses
import re

KEYWORDS = {"if", "then", "else", "elif", "fi", "do", "done", "while", "until", "for", "case", "esac", "in", "{", "}", "!",
            "time", "function", "select"}
BUILTINS = {".", ":", "[", "[[", "alias", "bg", "break", "builtin", "cd", "command", "continue", "declare", "echo", "eval",
            "exec", "exit", "export", "false", "fg", "getopts", "hash", "jobs", "kill", "let", "local", "mapfile", "printf",
            "pwd", "read", "readonly", "return", "set", "shift", "source", "test", "times", "trap", "true", "type", "ulimit",
            "umask", "unset", "wait"}
# Their arguments may name a program, too.
STARTERS = {"command", "env", "exec", "find", "nohup", "runuser", "sudo", "time", "timeout", "xargs", "xvfb-run"}
SHELLS = {"bash", "sh"}
_BREAKS = re.compile(r"[ \t\n;&|()<>]")
_ASSIGNMENT = re.compile(r"[A-Za-z_]\w*(\[[^]]*\])?\+?=")
_BEFORE_COMMAND = {"if", "then", "else", "elif", "do", "while", "until", "{", "!", "time"}


@dataclasses.dataclass(frozen=True)
class Named:
    """A word that names a program; it is certain where only a program can stand."""
    word: str
    certain: bool


class _Reader:

    def __init__(self, text):
        self.text = text
        self.at = 0
        self.named = []
        self.functions = set()
        self.heredocs = []
        self.words = []

    # Words ---------------------------------------------------------------------------------------

    def rest(self, length=1):
        return self.text[self.at:self.at + length]

    def skip_to(self, end):
        found = self.text.find(end, self.at)
        self.at = len(self.text) if found < 0 else found + len(end)

    def dollar(self):
        """Passes what begins with $; what it stands for is unknown, so it is "$" in the word."""
        if self.rest(3) == "$((":
            self.skip_to("))")
        elif self.rest(2) == "$(":
            self.at += 2
            self.commands(")")
        elif self.rest(2) == "${":
            depth = 0
            while self.at < len(self.text):
                depth += {"{": 1, "}": -1}.get(self.rest(), 0)
                self.at += 1
                if self.text[self.at - 1] == "}" and depth == 0:
                    break
        else:
            self.at += 1
            match = re.compile(r"\w+|[@*#?$!-]").match(self.text, self.at)
            self.at = match.end() if match else self.at
        return "$"

    def word(self):
        found = ""
        while self.at < len(self.text) and not _BREAKS.match(self.rest()):
            character = self.rest()
            if character == "\\":
                found += self.text[self.at + 1:self.at + 2].replace("\n", "")
                self.at += 2
            elif character == "'":
                begin = self.at + 1
                self.at = begin
                self.skip_to("'")
                found += self.text[begin:self.at].removesuffix("'")
            elif character == '"':
                self.at += 1
                while self.at < len(self.text) and self.rest() != '"':
                    if self.rest() == "\\":
                        found += self.text[self.at + 1:self.at + 2]
                        self.at += 2
                    elif self.rest() == "$":
                        found += self.dollar()
                    else:
                        found += self.rest()
                        self.at += 1
                self.at += 1
            elif character == "$":
                found += self.dollar()
            else:
                found += character
                self.at += 1
        self.words.append(found)
        return found

    def skip_blanks(self):
        while self.rest() in (" ", "\t") or self.rest(2) == "\\\n":
            self.at += 2 if self.rest() == "\\" else 1
        if self.rest() == "#":
            end = self.text.find("\n", self.at)
            self.at = len(self.text) if end < 0 else end

    def new_line(self):
        self.at += 1
        for tag in self.heredocs:
            end = re.compile(rf"^\t*{re.escape(tag)}$", re.MULTILINE).search(self.text, self.at)
            self.at = end.end() if end else len(self.text)
        self.heredocs = []

    def redirection(self):
        if self.rest(2) in ("<(", ">("):
            self.at += 2
            self.commands(")")
            return
        operator = re.compile(r"<<<|<<-?|[<>]{1,2}[&|]?").match(self.text, self.at).group()
        self.at += len(operator)
        self.skip_blanks()
        if self.rest(2) in ("<(", ">("):
            self.redirection()
            return
        target = self.word()
        if operator in ("<<", "<<-"):
            self.heredocs.append(target)

    # Commands ------------------------------------------------------------------------------------

    def name(self, word, certain):
        if "/" in word and "$" in word:
            word, certain = word.rsplit("/", 1)[1], False
        if re.fullmatch(r"[\w./+-]*[A-Za-z][\w./+-]*", word) and not word.startswith("-") and word not in KEYWORDS | BUILTINS:
            self.named.append(Named(word, certain))

    def simple(self, words):
        """One command with its arguments."""
        while words and _ASSIGNMENT.match(words[0]):
            words = words[1:]
        if not words:
            return
        self.name(words[0], True)
        starts = words[0] in STARTERS
        for place, word in enumerate(words[1:], 1):
            is_script = re.fullmatch(r"-\w*c", words[place - 1]) and SHELLS.intersection(words[:place])
            if is_script or (words[0] == "trap" and place == 1):
                self.named += [Named(named.word, False) for named in named_in(word)]
            elif starts or "$/" in word:
                self.name(word, False)

    def array(self):
        """Behind "name=(": the elements of an array, which may be a command to come."""
        elements = []
        while self.at < len(self.text) and self.rest() != ")":
            self.skip_blanks()
            if self.rest() == "\n":
                self.at += 1
            elif self.rest() != ")":
                elements.append(self.word())
        self.at += 1
        if elements:
            self.name(elements[0], False)
            if elements[0] in STARTERS:
                for element in elements[1:]:
                    self.name(element, False)

    def case(self):
        """Behind "case": the word, and the commands of each pattern."""
        while self.at < len(self.text):
            self.skip_blanks()
            if self.rest() == "\n":
                self.at += 1
            elif self.word() == "in":
                break
        while self.at < len(self.text):
            self.skip_blanks()
            if self.rest() in ("\n", "(", "|"):
                self.at += 1
                continue
            if self.rest() == ")":
                self.at += 1
                self.commands(";;")
                continue
            if self.word() == "esac":
                return

    def commands(self, closer=None):
        """Commands up to the closer, which is passed; a ";;" also ends before "esac"."""
        current = []
        plain = False  # Whether the words up to the end of the command are no command: those of "for".
        while self.at < len(self.text):
            self.skip_blanks()
            character = self.rest()
            if not character:
                break
            if character in "<>" or re.compile(r"\d+[<>]").match(self.text, self.at):
                self.at += len(re.compile(r"\d*").match(self.text, self.at).group())
                self.redirection()
                continue
            if closer == ";;" and self.rest(2) == ";;":
                self.at += 2
                break
            if closer == ")" and character == ")":
                self.at += 1
                break
            if character == "(" and current and _ASSIGNMENT.fullmatch(current[-1]):
                self.at += 1
                self.array()
                continue
            if self.rest(2) == "()" and len(current) == 1:
                self.functions.add(current.pop())
                self.at += 2
                continue
            if character in "\n;&|()":
                if not plain:
                    self.simple(current)
                current, plain = [], False
                if self.rest(2) == "((":
                    self.skip_to("))")
                elif character == "\n":
                    self.new_line()
                else:
                    self.at += 1
                continue
            start = self.at
            word = self.word()
            if not current and self.text[start:self.at] == word:
                if word == "[[":
                    self.skip_to("]]")
                    continue
                if word == "case":
                    self.case()
                    continue
                if word == "esac" and closer == ";;":
                    self.at = start
                    break
                if word in _BEFORE_COMMAND:
                    continue
                plain = plain or word in ("for", "select")
            current.append(word)
        if not plain:
            self.simple(current)


def _read(text):
    reader = _Reader(text)
    reader.commands()
    return reader


def named_in(text):
    """What the script names as programs, without its own functions."""
    reader = _read(text)
    return [named for named in reader.named if named.word not in reader.functions]


def words_in(text):
    """All the script's words without comments, quotes removed and what is unknown as "$"."""
    return _read(text).words
