"""The commands of the guides, and what these say they print."""

import dataclasses
import pathlib
import re

FOLDER = pathlib.Path(__file__).parents[3] / "docs"
_FENCE = re.compile(r"^```(\w*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
_PERSON = re.compile(r"# as (.*)\n")
_PAGE = re.compile(r"\]\((admin/[\w-]+\.md)")


@dataclasses.dataclass(frozen=True)
class Block:
    """Commands as they stand in a page of docs/, by whom they are typed, and how they end."""
    page: str
    line: int
    person: str
    commands: str
    status: int
    expected: str | None

    @property
    def place(self):
        return f"docs/{self.page}:{self.line}"


def pages():
    """The pages of the administrator's guide in the order of the table of contents."""
    return list(dict.fromkeys(_PAGE.findall((FOLDER / "admin.md").read_text())))


def blocks(page, text=None):
    """The page's blocks of commands, in order; what stands in a block of text right behind one is what it prints."""
    text = text if text is not None else (FOLDER / page).read_text()
    found = []
    end_of_last = -1
    for fence in _FENCE.finditer(text):
        kind, content = fence.groups()
        if kind == "sh":
            person = _PERSON.match(content)
            status = re.search(r"  # status (\d)$", content, re.MULTILINE)
            found.append(Block(page, text.count("\n", 0, fence.start()) + 1, person.group(1) if person else "user", content,
                               int(status.group(1)) if status else 0, None))
        elif kind == "text":
            if not found or text[end_of_last:fence.start()].strip() or found[-1].expected is not None:
                raise ValueError(f"{page}: output without a command in front of it: {content}")
            found[-1] = dataclasses.replace(found[-1], expected=content)
        end_of_last = fence.end()
    return found


def code(page, language):
    """What stands in the page's blocks of that language, in order."""
    return [content for kind, content in _FENCE.findall((FOLDER / page).read_text()) if kind == language]


def prints(expected, output):
    """Whether the output is what was expected. There "..." stands for anything within a line, and alone in a line for any
    lines, or none."""
    pattern = ""
    for line in expected.rstrip().split("\n"):
        pattern += r"(?:.*\n)*?" if line == "..." else ".*".join(map(re.escape, line.split("..."))) + r"\n"
    return re.fullmatch(pattern, output.rstrip() + "\n") is not None
