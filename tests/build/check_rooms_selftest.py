#!/usr/bin/env python3
"""check_rooms_selftest.py ROOT: the check of rooms must find each kind of offence, planted in a copy of the tree, and
name it; and pass the copy as it is."""

import os
import shutil
import sys
import tempfile

import check_rooms

# FILE, LINE: an include that the list forbids where it stands.
PLANTED_INCLUDES = [
    # Up the house.
    ("brivane/host/model/B.h", '#include <brivane/frame/Calendar.h>'),
    ("brivane/frame/B.cpp", '  #  include <brivane/vrijekolom/VrijeKolom.h>'),
    ("brivane/frame/B.h", '#include <brivane/controls/Surface.h>'),
    ("brivane/toelichting/B.cpp", '#include <brivane/scenario/frmScenario.h>'),
    ("brivane/scenario/B.cpp", '#include <brivane/toelichting/Toelichting.h>'),
    ("brivane/vrijekolom/B.cpp", '#include <brivane/toolkits/memory/Toolkit.h>'),
    ("brivane/controls/B.cpp", '#include <brivane/vrijekolom/VrijeKolom.h>'),
    ("brivane/controls/entry/B.cpp", '#include <brivane/toolkits/qt/Text.h>'),
    ("brivane/toolkits/memory/B.cpp", '#include <brivane/toolkits/qt/Toolkit.h>'),
    ("brivane/toolkits/qt/peers/B.cpp", '#include "dossier/model/Application.h"'),
    ("brivane/toolkits/win32/window/B.cpp", '#include <brivane/vrijekolom/VrijeKolom.h>'),
    ("component/idl/B.h", '#include "component/automation/Variant.h"'),
    ("component/control/B.cpp", '#include "component/objects/Identity.h"'),
    ("component/objects/B.cpp", '#include "component/registration/Keys.h"'),
    ("dossier/model/B.cpp", '#include "dossier/store/Database.h"'),
    ("dossier/store/B.cpp", '#include "replay/document/Document.h"'),
    ("brivane/hostkit/B.cpp", '#include "replay/document/Document.h"'),
    ("brivane/session/play/B.cpp", '#include "dossier/model/Application.h"'),
    ("brivane/session/B.h", "#include <nlohmann/json.hpp>"),
    ("replay/play/B.cpp", '#include "app/recording/Recorder.h"'),
    ("app/recording/B.cpp", '#include "app/screen/MainWindow.h"'),
    ("app/screen/B.cpp", '#include "fuzz/Targets.h"'),
    ("fuzz/B.cpp", '#include "app/screen/MainWindow.h"'),
    ("examples/qt/B.cpp", '#include "dossier/model/Application.h"'),
    ("replay/tool/B.cpp", '#include "tests/support/TestHost.h"'),
    ("app/program/B.cpp", '#include "bench/Compare.h"'),
    # Out of the house.
    ("brivane/host/B.h", "#include <nlohmann/json.hpp>"),
    ("brivane/frame/B.h", "#include <QString>"),
    ("brivane/frame/B.h", "#include <unistd.h>"),
    ("brivane/toolkits/memory/B.h", "#include <windows.h>"),
    ("brivane/toolkits/qt/B.h", "#include <sqlite3.h>"),
    ("dossier/model/B.h", "#include <QString>"),
    ("dossier/store/B.h", "#include <nlohmann/json.hpp>"),
    ("replay/document/B.h", "#include <QJsonObject>"),
    ("app/screen/B.h", "#include <gtest/gtest.h>"),
    # Round the list.
    ("brivane/vrijekolom/B.cpp", '#include <brivane/host/../controls/Surface.h>'),
    ("brivane/frame/B.cpp", '#include "Calendar.h"'),
    ("brivane/frame/B.cpp", '#include "brivane/host/Error.h"'),
    ("brivane/frame/B.cpp", '#include "host/Error.h"'),
    ("brivane/frame/B.cpp", "#include SOME_MACRO"),
    ("brivane/frame/B.inc", '#import "replay/play/Session.h"'),
    ("brivane/frame/B.cpp", '#include "nowhere/Calendar.h"'),
]

# What is made of a file of the tree: the file, the text that goes and what comes, the words that must be said.
PLANTED_CHANGES = [
    ("includes", "rooms.txt", "\nbrivane/frame  ", "\nbrivane/framework  ", "brivane/frame/Calendar.h: in a folder that is no room"),
    ("includes", "rooms.txt", "\ntests  ", "\nattic | | \ntests  ", "attic: a room without a source"),
    ("includes", "rooms.txt", "\nbrivane/controls          | brivane/frame", "\nbrivane/controls | brivane/toolkits/memory", "does not stand above it"),
    ("includes", "rooms.txt", "| nlohmann", "| jsonlib", "brivane/session/document may include jsonlib, which no line explains"),
    ("readme", "README.md", "| `replay/` |", "| replay |", "README.md names no folder replay/"),
    ("readme", "README.md", "`win32`", "Windows", "README.md does not name win32 in the row of brivane/toolkits/"),
    ("readme", "README.md", "| `docs/` |", "| `papers/` |", "there is no folder papers/"),
    ("readme", "README.md", "| `brivane/host/` | ", "| `brivane/frame/` | x |\n| `brivane/host/` | ", "in another order than rooms.txt"),
]

# Lines of targets: their name, folder, sources and libraries.
PLANTED_LINKS = [
    ("brivane_model\tdossier/model\tLening.cpp\tbrivane_file", "brivane_model (dossier/model) links brivane_file"),
    ("brivane_frame\tbrivane/frame\tCalendar.cpp\t$<BUILD_INTERFACE:brivane_model>;Qt6::Core", "links brivane_model (dossier/model)"),
]
SOUND_LINKS = """brivane_model\tdossier/model\tLening.cpp\tbrivane_frame
brivane_file\tdossier/store\tReader.cpp;/elsewhere/moc.cpp\t$<BUILD_INTERFACE:brivane_warnings>;brivane_model;Qt6::Sql
brivane_frame\tbrivane/frame\tCalendar.cpp\tbrivane_warnings
brivane_warnings\t.\t\t
"""


def fail(text):
    print(text)
    sys.exit(1)


def said(check, words, *arguments):
    offences, _ = check(*arguments)
    if not offences:
        fail(f"not found: {words}")
    if not any(words in offence for offence in offences):
        fail(f"not named: {words}, but {offences}")


def copy_of(root, tree):
    for path in ["rooms.txt", "README.md", *check_rooms.sources_of(root)]:
        os.makedirs(os.path.dirname(os.path.join(tree, path)), exist_ok=True)
        shutil.copyfile(os.path.join(root, path), os.path.join(tree, path))
    os.makedirs(os.path.join(tree, "docs"))


def plant_includes(tree):
    for path, line in PLANTED_INCLUDES:
        full = os.path.join(tree, path)
        with open(full, "x", encoding="utf-8") as file:
            file.write("// the second line is the one\n" + line + "\n")
        said(check_rooms.check_includes, f"{path}:2:{line}", tree)
        os.remove(full)


def plant_changes(tree):
    for check, path, gone, come, words in PLANTED_CHANGES:
        full = os.path.join(tree, path)
        with open(full, encoding="utf-8") as file:
            text = file.read()
        if gone not in text:
            fail(f"{path} has no {gone!r}")
        with open(full, "w", encoding="utf-8") as file:
            file.write(text.replace(gone, come, 1))
        said(check_rooms.CHECKS[check], words, tree)
        with open(full, "w", encoding="utf-8") as file:
            file.write(text)


def plant_links(tree):
    links = os.path.join(tree, "links.txt")

    def write(lines):
        with open(links, "w", encoding="utf-8") as file:
            file.writelines(
                "\t".join([name, os.path.join(tree, folder), *rest])
                for name, folder, *rest in (line.split("\t") for line in lines))

    sound = SOUND_LINKS.splitlines(keepends=True)
    write(sound)
    if offences := check_rooms.check_links(tree, links)[0]:
        fail(f"sound links are refused: {offences}")
    for line, words in PLANTED_LINKS:
        name = line.split("\t")[0] + "\t"
        write([line + "\n" if other.startswith(name) else other for other in sound])
        said(check_rooms.check_links, words, tree, links)
    write(sound[2:])
    said(check_rooms.check_links, "no target links another", tree, links)


def main(root):
    with tempfile.TemporaryDirectory() as tree:
        copy_of(root, tree)
        for check in ("includes", "readme"):
            if offences := check_rooms.CHECKS[check](tree)[0]:
                fail(f"the tree as it is is refused: {offences}")
        plant_includes(tree)
        plant_changes(tree)
        plant_links(tree)
    print(f"{len(PLANTED_INCLUDES) + len(PLANTED_CHANGES) + len(PLANTED_LINKS) + 1} planted offences found")


if __name__ == "__main__":
    sys.dont_write_bytecode = True
    main(sys.argv[1])
