"""Finds the texts that the sources say to people, each of which has a translation in translations/*.ts.

A string literal of a C++ source is said where it is
- the text of a call that says it: Said, Say, SaidOfNumber, InWords, Phrase::Of, Phrase::OfNumber, Translated;
- a caption, text or description in a design of a window, in ferrowind/views/planning;
- in the declaration, member or statement behind a line "//: said", which stands before texts that are handed on
  to such a call as variables; behind "//: said 2" only what is second in its brackets;
- an argument of a function of the source, or of a lambda, that hands it on to such a call: "//: says 2" in front of it
  tells which, "//: says 1 3" that there are several.
Of the layouts of the windows what no design sets is said: accessible names, tool tips and titles of groups.
"""

import re
import xml.etree.ElementTree as ElementTree
from dataclasses import dataclass, field
from itertools import pairwise

FOLDERS = ("ferrowind", "host/desktop")
DESIGNS = "ferrowind/views/planning/"
CONTEXT = "ferrowind"
MARK = "//: said"
MARK_OF_CALL = "//: says"

TOKEN = re.compile(
    r'(?P<mark>//: (?:said(?: \d)?|says(?: \d)+)[ \t]*$)|//[^\n]*|/\*.*?\*/|(?P<literal>"(?:\\.|[^"\\\n])*")'
    r"|'(?:\\.|[^'\\\n])*'|[A-Za-z_]\w*|\d[\w.']*|::|->|\s+|.",
    re.DOTALL | re.MULTILINE)
PREPROCESSOR = re.compile(r"^[ \t]*#(?:\\\n|[^\n])*", re.MULTILINE)
ESCAPE = re.compile(r"\\(u[0-9A-Fa-f]{4}|.)", re.DOTALL)
SPOKEN = re.compile(r"[A-Za-z]{2}|%[1-9n]")
# Keys of the keyboard, and names of controls, tools and columns.
NAME = re.compile(r"(Ctrl|Alt|Shift)\+.+|(ID_|fm|cmd|txt|lbl|cbo|cmb|tbl|pnl|frm)[A-Z]\w*")

# Which argument is the text.
SAYING = {"Said": 1, "Say": 0, "said": 0, "InWords": 0, "Phrase::Of": 0, "Translated": 0}
# Which argument is the form for one. That for many follows, and is what the text goes by.
COUNTING = {"SaidOfNumber": 2, "InWords": 1, "Phrase::OfNumber": 1, "Translated": 1}
DESIGN_MEMBERS = ("caption", "text", "description")


@dataclass(frozen=True, order=True)
class SaidText:
    """A text of a context. One that counts has a form for each kind of number that a language tells apart."""
    context: str
    text: str
    counts: bool = False


@dataclass
class Literal:
    text: str


@dataclass
class Bracket:
    """What stands between brackets: arguments or statements, each a list of tokens, literals and brackets."""
    kind: str
    name: str = ""
    arguments: list = field(default_factory=lambda: [[]])

    def literals(self, argument):
        """The literals of an argument, in parentheses of choices too, but not in calls."""
        if argument >= len(self.arguments):
            return []
        return literals_of(self.arguments[argument])


def literals_of(items):
    found = []
    for item in items:
        if isinstance(item, Literal):
            found.append(item.text)
        elif isinstance(item, Bracket) and item.kind == "(" and not item.name:
            for argument in item.arguments:
                found += literals_of(argument)
    return found


def unescaped(literal):
    def character(match):
        code = match.group(1)
        return chr(int(code[1:], 16)) if code[0] == "u" else {"n": "\n", "t": "\t"}.get(code, code)
    return ESCAPE.sub(character, literal)


def parsed(source):
    """The source as nested brackets; the outermost is its own."""
    open_brackets = [Bracket("")]
    for match in TOKEN.finditer(PREPROCESSOR.sub("", source)):
        token = match.group()
        items = open_brackets[-1].arguments[-1]
        if match.group("mark"):
            items.append(token.strip())
        elif match.group("literal"):
            text = unescaped(token[1:-1])
            if items and isinstance(items[-1], Literal):
                items[-1].text += text
            else:
                items.append(Literal(text))
        elif token.isspace() or token.startswith(("//", "/*")):
            continue
        elif token in "({[":
            bracket = Bracket(token, called(items))
            items.append(bracket)
            open_brackets.append(bracket)
        elif token in ")}]":
            if len(open_brackets) > 1:
                open_brackets.pop()
        elif token == ";" or (token == "," and not is_in_angles(items)):
            open_brackets[-1].arguments.append([])
        else:
            items.append(token)
    return open_brackets[0]


def called(items):
    """The name of what a bracket behind these items belongs to."""
    if not items or not isinstance(items[-1], str) or not re.fullmatch(r"[A-Za-z_]\w*", items[-1]):
        return ""
    name = items[-1]
    if name == "return":
        return ""
    return "::".join(items[-3::2]) if items[-3:-1] == ["Phrase", "::"] else name


def declared(items):
    """The name of the function or lambda whose declaration begins."""
    before = []
    for item in items:
        is_end = item == "=" or isinstance(item, Bracket) and item.kind == "("
        if is_end and before:
            return before[-1]
        before.append(item)
    raise ValueError(f'no function follows a line "{MARK_OF_CALL}"')


def is_in_angles(items):
    return items.count("<") > items.count(">")


class SourceTexts:
    """The said texts of one source."""

    def __init__(self, source, has_designs):
        self.has_designs = has_designs
        self.texts = set()
        # The positions of texts in calls of what this source itself declares.
        self.own_calls = {}
        outermost = parsed(source)
        self.find_own_calls(outermost)
        self.walk(outermost)

    def add(self, text, counts=False):
        if SPOKEN.search(text) and not NAME.fullmatch(text):
            self.texts.add(SaidText(CONTEXT, text, counts))

    def find_own_calls(self, bracket):
        for argument in bracket.arguments:
            for position, item in enumerate(argument):
                if isinstance(item, Bracket):
                    self.find_own_calls(item)
                elif isinstance(item, str) and item.startswith(MARK_OF_CALL):
                    name = declared(argument[position + 1:])
                    self.own_calls[name] = [int(number) - 1 for number in item[len(MARK_OF_CALL):].split()]

    def walk(self, bracket):
        if not self.add_counted(bracket):
            self.add_called(bracket)
        if self.has_designs and bracket.kind == "{":
            self.add_designed(bracket)
        for argument in bracket.arguments:
            for position, item in enumerate(argument):
                if isinstance(item, Bracket):
                    self.walk(item)
                elif isinstance(item, str) and item.startswith(MARK):
                    self.add_marked(argument[position + 1:], int(item[len(MARK):] or 0))

    def add_called(self, call):
        if call.name in SAYING:
            self.add_all_of(call.literals(SAYING[call.name]))
        elif call.name in self.own_calls:
            self.add_of_own_call(call)

    def add_of_own_call(self, call):
        positions = self.own_calls[call.name]
        for position in positions:
            forms = call.literals(position)
            if position - 1 in positions and any("%n" in text for text in forms):
                continue
            many = call.literals(position + 1) if position + 1 in positions else []
            if any("%n" in text for text in many):
                self.add_all_of(many, counts=True)
            else:
                self.add_all_of(forms)

    def add_all_of(self, texts, counts=False):
        for text in texts:
            self.add(text, counts)

    def add_counted(self, call):
        first = COUNTING.get(call.name)
        if first is None or not call.literals(first) or not call.literals(first + 1):
            return False
        for text in call.literals(first + 1):
            self.add(text, counts=True)
        return True

    def add_designed(self, braces):
        for argument in braces.arguments:
            if len(argument) > 1 and argument[0] == "." and argument[1] in DESIGN_MEMBERS:
                for text in literals_of(argument):
                    self.add(text)
        first = braces.arguments[0]
        if "ControlKind" in first and first[0] != ".":
            for text in braces.literals(2):
                self.add(text)
        is_tool = len(first) == 1 and isinstance(first[0], str) and re.fullmatch("k[A-Z]\\w*", first[0])
        if is_tool and braces.literals(1) and braces.literals(2):
            for text in braces.literals(1) + braces.literals(3):
                self.add(text)

    def add_marked(self, items, position):
        """Up to the end of the first braces, or of the statement; of position 0 all texts."""
        if not items:
            raise ValueError(f'nothing follows a line "{MARK}"')
        for item in items:
            self.add_all(item, position)
            if isinstance(item, Bracket) and item.kind == "{":
                return

    def add_all(self, item, position):
        if isinstance(item, Literal):
            self.add(item.text)
        if not isinstance(item, Bracket):
            return
        forms = set()
        for one, many in pairwise(item.arguments):
            if [type(i) for i in one] == [type(i) for i in many] == [Literal] and "%n" in many[0].text:
                self.add(many[0].text, counts=True)
                forms |= {one[0].text, many[0].text}
        for number, argument in enumerate(item.arguments, 1):
            for inner in argument:
                is_left_out = isinstance(inner, Literal) and (
                    inner.text in forms or position not in (0, number))
                if not is_left_out:
                    self.add_all(inner, position)


def texts_of_layout(path):
    """What a layout of a window says that its design doesn't: each layout is a context of its own."""
    layout = ElementTree.parse(path).getroot()
    context = layout.findtext("class")
    return {SaidText(context, property.findtext("string"))
            for property in layout.iter("property")
            if property.get("name") in ("accessibleName", "toolTip", "placeholderText", "title")
            and property.findtext("string")}


def texts_of_tree(root, folders=FOLDERS):
    """All said texts of the sources in those folders under root, which is the repository."""
    texts = set()
    for folder in folders:
        for path in sorted((root / folder).rglob("*")):
            name = path.relative_to(root).as_posix()
            if path.suffix in (".cpp", ".h"):
                try:
                    texts |= SourceTexts(path.read_text(encoding="utf-8"), name.startswith(DESIGNS)).texts
                except ValueError as error:
                    raise ValueError(f"{name}: {error}") from error
            elif path.suffix == ".ui":
                texts |= texts_of_layout(path)
    return texts
