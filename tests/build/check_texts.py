#!/usr/bin/env python3
"""Holds what the toolkits say to the catalogue of texts, brivane/frame/Texts.cpp.

    check_texts.py ROOT         every string in the sources and scripts that show controls
    check_texts.py selftest     whether it finds what it is for

A string is a text for a person where it has two words, a capital in front, a mnemonic, or goes on
with what stands beside it. What looks so and is none
stands below, with what it is. Prints each offence and a count, and fails when there is one."""

import os
import re
import sys

ROOMS = ("brivane/controls", "brivane/toolkits/qt", "brivane/toolkits/win32", "brivane/toolkits/web", "web/element")
SCRIPTS = "web/package/src"
FILES = ("brivane/frame/Dates.cpp", "brivane/frame/Dates.h", "brivane/frame/Numbers.cpp", "brivane/frame/Phrase.cpp",
         "brivane/frame/Reading.h", "brivane/vrijekolom/Onderwerp.h")
# For the engineer who embeds the editor, in English as error descriptions are.
FOR_ENGINEERS = ("brivane/controls/WhatIsMissing.cpp",)
# Fonts and colours, and what is said where there is no catalogue.
NOT_LOOKED_AT = ("web/package/src/style.js", "web/package/src/unloaded.js", "web/package/src/first.js")
NO_TEXTS = {
    "Ja": "a half of a toggle, which is a caption of the control",
    "Nee": "the other half",
    "STATIC": "a class of Windows", "Static": "a class of Windows",
    "EDIT": "a class of Windows", "Edit": "a class of Windows",
    "BUTTON": "a class of Windows", "Button": "a class of Windows",
    "COMBOBOX": "a class of Windows", "ComboBox": "a class of Windows",
    "BrivaneVlak": "a class of windows of our own",
    "BrivaneFormulier": "a class of windows of our own",
    "Brivane": "the beginning of a property's name, and where Qt finds the texts",
    "dddd d MMMM yyyy": "how Qt writes a day",
    '* { font: %1px \\"%2\\"; }': "a rule of a style sheet",
    "CreateWindowEx": "a function of Windows",
    "Escape": "a key of a page", "Enter": "a key of a page", "Tab": "a key of a page", "Home": "a key of a page",
    "End": "a key of a page",
    "clamp(0px, (${this.length(height)} + 3em - 94vh) * 99, 17px)": "a length of a style sheet",
    "box number": "classes of a style sheet", "message asks": "classes of a style sheet",
    **{f"control {kind}": "classes of a style sheet" for kind in (
        "frame", "plain", "label", "label lines", "date", "toggle", "hint", "choice", "box select", "button", "listview",
        "surface", "form")},
    "[object Date]": "the tag of a day in a script",
    " control": "a class of a style sheet",
    "dialog form": "parts of an element", "dialog message": "parts of an element",
    "input, select": "elements of a page", 'input, select, button, [tabindex="0"]': "elements of a page",
    "input, select, button, label, [tabindex]": "elements of a page",
}

DOUBLE, SINGLE, TEMPLATE = (f"{quote}(?:[^{quote}\\\\\\n]|\\\\.)*{quote}" for quote in "\"'`")
STRINGS = {False: DOUBLE, True: f"{DOUBLE}|{SINGLE}|{TEMPLATE}"}
LETTERS = "A-Za-zÀ-ÿ"


def is_text(string, names=()):
    if string in NO_TEXTS or string in names:
        return False
    string = re.sub(r"\$\{.*?\}", "%1", string)
    string = re.sub(r"\\u[0-9A-Fa-f]{4}|\\[nrt]", " ", string)
    words = re.findall(f"[{LETTERS}]{{2,}}", string)
    if not words:
        return False
    if re.search(f"[{LETTERS}]{{2,}}[^{LETTERS}]* [^{LETTERS}]*[{LETTERS}]{{2,}}", string):
        return True
    joined = string != string.strip() and re.search(f"[{LETTERS}]{{4,}}", string)
    alone = re.match(f"^[A-ZÀ-Þ][a-zà-ÿ]+(?![{LETTERS}])", string.strip())
    return bool(joined or alone or re.search(f"&[{LETTERS}]", string))


def without_comments(source, is_script=False):
    """The source with blanks for its comments, line for line, and without what it includes."""
    found = re.compile(rf"//[^\n]*|/\*.*?\*/|{STRINGS[is_script]}", re.S)
    source = found.sub(lambda m: re.sub(r"[^\n]", " ", m[0]) if m[0].startswith("/") else m[0], source)
    return re.sub(r"^[ \t]*#[^\n]*", "", source, flags=re.M)


def offences(source, is_script=False, names=()):
    """A script asks for a text by its name."""
    for number, line in enumerate(without_comments(source, is_script).split("\n"), 1):
        if "static_assert" in line or re.search(r"\bthrow\b", line):
            continue
        for string in re.finditer(STRINGS[is_script], line):
            if is_text(string[0][1:-1], names if is_script else ()):
                yield number, string[0][1:-1]


def sources(root):
    for room in ROOMS:
        for folder, _, names in os.walk(os.path.join(root, room)):
            for name in sorted(names):
                path = os.path.relpath(os.path.join(folder, name), root)
                if name.endswith((".cpp", ".h")) and path not in FOR_ENGINEERS:
                    yield path
    yield from FILES
    for folder, _, names in os.walk(os.path.join(root, SCRIPTS)):
        for name in sorted(names):
            path = os.path.relpath(os.path.join(folder, name), root)
            if name.endswith(".js") and path not in NOT_LOOKED_AT:
                yield path


def check(root):
    count = looked = 0
    with open(os.path.join(root, "brivane/frame/Texts.cpp"), encoding="utf-8") as catalogue:
        names = re.findall(r"BRIVANE_TEXT\((\w+)\)", catalogue.read())
    for path in sources(root):
        looked += 1
        with open(os.path.join(root, path), encoding="utf-8") as source:
            for number, text in offences(source.read(), path.endswith(".js"), names):
                print(f'{path}:{number}: "{text}" is no text of the catalogue')
                count += 1
    print(f"{count} texts outside the catalogue in {looked} files")
    return 1 if count or looked < 100 else 0


def selftest():
    texts = ['f(" wordt ");', 'f("Plak een kolom.");', 'f(L"&Nee");', 'f("Kalender");', 'f(" van de rij");', 'g(QStringLiteral("Vrije kolom"));',
             'x = "a" + "De waarde\\u00A0is";', '/* c */ f("Één kolom"); // d']
    others = ['f("TxtBd");  // "Vrije kolom"', 'f("edit-paste");', '#include "Een bestand.h"', 'f("%1 %2");',
              'f(L"BUTTON");', 'f("= ");', '/* "De\n waarde" */']
    scripts = ["f('Kalender (F4)');", 'f("Weet u het zeker?");', "f(`Regel ${regel} bestaat niet`);", "f('Hulp'); // 'Help'"]
    no_scripts = ["f('aria-label');", "f(of('Help'));", "f(`c${id}`);", "throw new HostError(13, 'Type mismatch');", "// f('Hulp')",
                  "f('Escape'); /* 'Een\n tekst' */"]
    missed = [line for line in texts if not list(offences(line))]
    missed += [line for line in scripts if not list(offences(line, True, ["Help"]))]
    wrong = [line for line in others if list(offences(line))]
    wrong += [line for line in no_scripts if list(offences(line, True, ["Help"]))]
    for line in missed:
        print("not found:", line)
    for line in wrong:
        print("found:", line)
    return 1 if missed or wrong else 0


if __name__ == "__main__":
    sys.exit(selftest() if sys.argv[1] == "selftest" else check(sys.argv[1]))
