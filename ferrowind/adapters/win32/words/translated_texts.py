#!/usr/bin/env python3
"""Makes the C++ file of the native windows' texts in all languages, of their sources and translations/*.ts.

usage: translated_texts.py REPOSITORY OUTPUT LANGUAGE...
"""

import pathlib
import sys

# Besides those of the adapter itself: the words for marks.
FOLDERS = ("ferrowind/adapters/win32", "ferrowind/platform/toolkit")


def literal(text: str) -> str:
    """A C++ literal of the text's UTF-8, in which no digit can go on with an escape."""
    escaped = "".join(chr(byte) if 0x20 <= byte < 0x7F and chr(byte) not in '"\\' else f"\\{byte:03o}"
                      for byte in text.encode())
    return f'"{escaped}"'


def main(repository: str, output: str, languages: list[str]) -> None:
    root = pathlib.Path(repository)
    sys.path.insert(0, str(root / "tools"))
    # pylint: disable=import-error, import-outside-toplevel
    from said_texts import texts_of_tree
    from translations import Translations

    said = sorted(texts_of_tree(root, FOLDERS))
    counting = [text.text for text in said if text.counts]
    if counting:
        sys.exit(f"The native windows have no forms for numbers, which this text needs: {counting[0]}")
    lines = ['#include "ferrowind/adapters/win32/words/translated_texts.h"', "", "#include <array>", "",
             "namespace ferrowind::win32 {", "", "std::span<const TranslatedText> TranslatedTexts() {",
             "  static constexpr auto kTexts = std::to_array<TranslatedText>({"]
    for language in languages:
        forms = Translations(language, root / "translations" / f"ferrowind_{language}.ts").forms
        for text in said:
            if forms.get(text):
                lines.append(f'      {{"{language}", {literal(text.text)}, {literal(forms[text][0])}}},')
    lines += ["  });", "  return kTexts;", "}", "", "}  // namespace ferrowind::win32", ""]
    pathlib.Path(output).write_text("\n".join(lines), encoding="ascii")


if __name__ == "__main__":
    if len(sys.argv) < 4:
        sys.exit(__doc__)
    main(sys.argv[1], sys.argv[2], sys.argv[3:])
