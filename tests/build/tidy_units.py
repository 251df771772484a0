#!/usr/bin/env python3
"""What clang-tidy reads.

    tidy_units.py UNITS [FOLDER...] -- TREE...

Writes to UNITS, for each source below these folders (below all of them, if none is named), but for the tests, the first of
the build trees that has it, the checks that are not for it, and the unit that it is compiled in, each ended by a zero byte.
Rewrites what the trees say of their compilers' commands, so that Clang understands them. Prints the count of the sources."""

import json
import os
import re
import subprocess
import sys


# Sources stand in a unit by their addresses.
NEVER = ["bugprone-suspicious-include"]
# A browser has one thread, for which every constant that is no number passes for one that is made twice.
NOT_IN_BROWSERS = ["bugprone-dynamic-static-initializers"]
# Names that share a value, classes in the header that is made, handles that are pointers by another name, messages that carry
# addresses as numbers, objects that delete themselves when nobody refers to them any more.
NOT_ON_WINDOWS = ["bugprone-branch-clone", "bugprone-forward-declaration-namespace", "misc-misplaced-const",
                  "performance-no-int-to-ptr", "cppcoreguidelines-virtual-class-destructor"]


def said(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True, stdin=subprocess.DEVNULL)


def for_clang(command):
    """A command of another compiler, with its headers, but for those that every compiler has of its own; and the checks that
    are not for what it compiles."""
    compiler = command.split()[0]
    if os.path.basename(compiler) == "em++":
        return f"{command} {said(compiler, '--cflags').stdout.strip()}", NEVER + NOT_IN_BROWSERS
    if "mingw" in compiler:
        found = re.findall(r"^ (/\S+)$", said(compiler, "-xc++", "-E", "-v", "-").stderr, re.MULTILINE)
        headers = [path for path in map(os.path.normpath, found) if "/c++" in path or "/gcc/" not in path]
        command = command.replace(" -fno-keep-inline-dllexport", "") + "".join(f" -isystem {path}" for path in headers)
        return command, NEVER + NOT_ON_WINDOWS
    return command, NEVER


def sources_of(unit):
    """Several sources stand in one by their addresses."""
    if "/Unity/" not in unit:
        return {unit}
    with open(unit, encoding="utf-8") as text:
        return set(re.findall(r'^#include "(.*)"', text.read(), re.MULTILINE))


def main():
    units, *words = sys.argv[1:]
    folders, trees = words[:words.index("--")], words[words.index("--") + 1:]
    root, folders = os.getcwd() + "/", tuple(folder.rstrip("/") + "/" for folder in folders)
    seen = set()
    with open(units, "w", encoding="utf-8") as out:
        for tree in trees:
            listed, chosen = f"{tree}/compile_commands.json", []
            with open(listed, encoding="utf-8") as file:
                entries = json.load(file)
            for entry in entries:
                new = {source.removeprefix(root) for source in sources_of(entry["file"]) if source.endswith(".cpp")} - seen
                new = {source for source in new if not source.startswith(("/", "build/", "tests/"))}
                if any(source.startswith(folders) or not folders for source in new):
                    seen |= new
                    command, without = for_clang(entry["command"])
                    chosen.append({**entry, "command": command})
                    out.write(f"{tree}\0-{',-'.join(without)}\0{entry['file']}\0")
            with open(listed, "w", encoding="utf-8") as file:
                json.dump(chosen, file)
    print(len(seen))


if __name__ == "__main__":
    main()
