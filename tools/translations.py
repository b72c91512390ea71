#!/usr/bin/env python3
"""Keeps translations/ferrowind_*.ts in step with the texts of the sources.

  tools/translations.py update        adds new texts, unfinished, and takes out those that nothing says any more
  tools/translations.py unfinished    lists what is still to be translated
  tools/translations.py check         fails on a text that is missing, unfinished, left over or wrongly translated

How texts are found is said in said_texts.py. A translation is wrong that lacks a place ("%1", "%n") of its text or has
another one, has not as many forms as its language has numbers, begins or ends with other blanks, or access key ("&") that another text of the same menu or window has.
"""

import argparse
import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree
from collections import Counter
from xml.sax.saxutils import escape

from said_texts import SaidText, texts_of_tree

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDER = "translations"
# The forms for numbers that Qt tells apart.
FORMS = {"de": 2, "es": 2, "fr": 2, "ja": 1}
# Written without blanks between words.
WITHOUT_BLANKS = {"ja"}
PLACE = re.compile(r"%[1-9n]")
KEY = re.compile(r"&([^&\s])")
# Texts with access keys that are on show together.
MENUS = (
    ("Sort &Ascending", "Sort &Descending", "&Clear Sorting", "&Group by This Column", "&Ungroup", "&Expand All",
     "C&ollapse All", "Show Group &Panel"),
    ("&Open calendars", "&Close calendars"),
)


class Translations:
    """The translations of one language."""

    def __init__(self, language, path):
        self.language = language
        self.path = path
        # Forms of each text, empty while unfinished.
        self.forms = {}
        if path.exists():
            self.read()

    def read(self):
        for context in ElementTree.parse(self.path).getroot().iter("context"):
            name = context.findtext("name")
            for message in context.iter("message"):
                counts = message.get("numerus") == "yes"
                text = SaidText(name, message.findtext("source"), counts)
                translation = message.find("translation")
                forms = [form.text or "" for form in translation] if counts else [translation.text or ""]
                self.forms[text] = [] if translation.get("type") == "unfinished" else forms

    def write(self):
        lines = ['<?xml version="1.0" encoding="utf-8"?>', "<!DOCTYPE TS>",
                 f'<TS version="2.1" language="{self.language}" sourcelanguage="en">']
        for context in sorted({text.context for text in self.forms}):
            lines += ["<context>", f"    <name>{context}</name>"]
            for text in sorted(self.forms):
                if text.context == context:
                    lines += self.lines_of(text)
            lines.append("</context>")
        self.path.parent.mkdir(exist_ok=True)
        self.path.write_text("\n".join([*lines, "</TS>", ""]), encoding="utf-8")

    def lines_of(self, text):
        forms = self.forms[text]
        kind = "" if forms else ' type="unfinished"'
        if text.counts:
            forms = forms or [""] * FORMS[self.language]
            inner = "".join(f"<numerusform>{escape(form)}</numerusform>" for form in forms)
        else:
            inner = escape(forms[0]) if forms else ""
        return ['    <message numerus="yes">' if text.counts else "    <message>",
                f"        <source>{escape(text.text)}</source>",
                f"        <translation{kind}>{inner}</translation>", "    </message>"]

    def update(self, texts):
        self.forms = {text: self.forms.get(text, []) for text in texts}

    def unfinished(self):
        return sorted(text for text, forms in self.forms.items() if not forms)

    def faults(self, texts):
        faults = [f'"{text.text}" of {text.context} is missing' for text in sorted(texts - self.forms.keys())]
        faults += [f'nothing says "{text.text}" of {text.context} any more'
                   for text in sorted(self.forms.keys() - texts)]
        faults += [f'"{text.text}" of {text.context} is unfinished' for text in self.unfinished()]
        for text, forms in sorted(self.forms.items()):
            faults += [f'"{text.text}": {fault}' for fault in self.faults_of(text, forms)]
        return faults + self.colliding_keys()

    def faults_of(self, text, forms):
        if not forms:
            return []
        faults = []
        if text.counts and len(forms) != FORMS[self.language]:
            faults.append(f"{len(forms)} forms, and the language has {FORMS[self.language]}")
        for number, form in enumerate(forms):
            if not form.strip():
                faults.append("a translation is empty")
            elif not has_places_of(form, text, is_for_one=text.counts and number == 0 and len(forms) > 1):
                faults.append(f'the places of "{form}" are others')
            if edges(form) != edges(text.text) and self.language not in WITHOUT_BLANKS:
                faults.append(f'"{form}" begins or ends with other blanks')
            if bool(KEY.search(form)) != bool(KEY.search(text.text)):
                faults.append(f'"{form}" has an access key, or lacks one')
        return faults

    def colliding_keys(self):
        faults = []
        for menu in MENUS:
            shown = {text.text: forms[0] for text, forms in self.forms.items() if forms and text.text in menu}
            keys = Counter(key.group(1).lower() for form in shown.values() if (key := KEY.search(form)))
            faults += [f'the access key "{key}" is on several of: {", ".join(shown.values())}'
                       for key, count in keys.items() if count > 1]
        return faults


def has_places_of(form, text, is_for_one):
    places, expected = set(PLACE.findall(form)), set(PLACE.findall(text.text))
    # "in one day" need not say the number.
    return places == expected or is_for_one and places == expected - {"%n"}


def edges(text):
    return text[:1].isspace(), text[-1:].isspace()


def ambiguous(texts):
    """Texts with and without a number go by one name in a translator."""
    names = Counter((text.context, text.text) for text in texts)
    return [f'"{name[1]}" is said with a number and without' for name, count in sorted(names.items()) if count > 1]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("command", choices=("update", "unfinished", "check"))
    parser.add_argument("--root", type=pathlib.Path, default=ROOT, help="the repository")
    arguments = parser.parse_args()
    texts = texts_of_tree(arguments.root)
    faults = ambiguous(texts)
    for language in FORMS:
        path = arguments.root / FOLDER / f"ferrowind_{language}.ts"
        translations = Translations(language, path)
        if arguments.command == "update":
            translations.update(texts)
            translations.write()
        if arguments.command == "check":
            faults += [f"{path.name}: {fault}" for fault in translations.faults(texts)]
        else:
            for text in translations.unfinished():
                print(f"{path.name}: {text.context}: {text.text!r}")
    for fault in faults:
        print(fault, file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
