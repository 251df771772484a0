#!/usr/bin/env python3
"""compiles.py BUILD ROOT PREFIX...: what a plain build leaves out still compiles. Each source under a prefix is compiled
as the build tree would compile it, to nothing."""

import concurrent.futures
import json
import os
import shlex
import subprocess
import sys


def command_of(entry):
    words = shlex.split(entry["command"])
    for option in ("-o", "-include"):  # the object, and the precompiled headers that may not have been made
        while option in words:
            at = words.index(option)
            del words[at:at + 2]
    return [word for word in words if word != "-Winvalid-pch"] + ["-fsyntax-only"]


def compiles(entry):
    return subprocess.run(command_of(entry), cwd=entry["directory"], stderr=subprocess.STDOUT, stdout=subprocess.PIPE,
                          text=True, check=False)


def main(build, root, *prefixes):
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as file:
        entries = [entry for entry in json.load(file) if os.path.relpath(entry["file"], root).startswith(prefixes)]
    wrong = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for entry, outcome in zip(entries, pool.map(compiles, entries)):
            if outcome.returncode:
                wrong += 1
                print(entry["file"], outcome.stdout, sep="\n")
    print(f"{len(entries)} sources, {wrong} do not compile")
    return 1 if wrong or not entries else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
