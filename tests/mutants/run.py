"""Mutants of the logic, and which of them the tests notice.

Every mutant is written into one copy of the sources as an alternative that an environment variable chooses, so that
everything is compiled once. A first run of each test case records which mutants it reaches; each mutant then meets those
cases alone, the quick ones first, until one of them fails. One that takes more than its time is noticed as well.
"""

import argparse
import collections
import concurrent.futures
import glob
import hashlib
import json
import os
import random
import re
import resource
import shutil
import subprocess
import sys
import tempfile
import threading
import time

import sites
import tables
from clang.cindex import Index

ROOT = os.path.realpath(os.path.join(os.path.dirname(__file__), "..", ".."))
WORK = os.path.join(ROOT, "build", "mutants")
SOURCE, BUILD = os.path.join(WORK, "source"), os.path.join(WORK, "tree")
PAGE = os.path.join(ROOT, "docs", "mutants.md")
FOLDERS = ["brivane/host", "brivane/frame", "brivane/toelichting", "brivane/scenario", "brivane/vrijekolom"]
ENTRY = ["brivane/controls/entry/PendingEdit.cpp", "brivane/controls/entry/PendingEdit.h",
         "brivane/controls/entry/PendingEdits.cpp", "brivane/controls/entry/PendingEdits.h"]
PROGRAMS = ["host_tests", "frame_tests", "scenario_rules_test", "toelichting_test", "scenario_form_test", "controls_tests",
            "vrijekolom_test", "memory_tests", "replay_test"]
TOO_LONG = 2  # seconds of the processor for one mutant in one program, over what it takes without


def mutated_files():
    found = [path for folder in FOLDERS for path in glob.glob(f"{folder}/**/*.*", root_dir=ROOT, recursive=True)]
    return sorted(path for path in found + ENTRY if path.endswith((".h", ".cpp")))


def read(paths):
    """What the compiler reads, of each file: the headers at once, the sources one by one."""
    together = "".join(f"#include <{path}>\n" for path in paths if path.endswith(".h"))
    headers = None
    for path in paths:
        if path.endswith(".h"):
            headers = headers or parse("headers.cpp", [("headers.cpp", together)])
            yield path, headers
        else:
            yield path, parse(path, None)


def parse(path, unsaved):
    unit = Index.create().parse(path, args=["-std=c++20", f"-I{ROOT}"], unsaved_files=unsaved)
    wrong = [str(d) for d in unit.diagnostics if d.severity >= 3]
    if wrong:
        raise SystemExit("\n".join(wrong))
    return unit


def content_of(path):
    with open(path, "rb") as file:
        return file.read()


def write(path, content):
    """Leaves a file alone that has its content already, so that nothing is compiled again."""
    os.makedirs(os.path.dirname(path), exist_ok=True)
    if not os.path.exists(path) or content_of(path) != content:
        with open(path, "wb") as file:
            file.write(content)


def mutate(paths):
    """The files with all mutants in them, their names by number, and the line of each (0 in a table)."""
    files, names, lines, counted, headers = {}, {}, {}, collections.Counter(), []

    def number(path, words, line):
        name = f"{path}: {words}"
        counted[name] += 1
        names[len(names) + 1] = name if counted[name] == 1 else f"{name} ({counted[name]})"
        lines[len(names)] = line
        return len(names)

    for path, unit in read(paths):
        text = content_of(path)
        finder = sites.Finder(text)
        finder.file(unit.cursor, path)
        ids = []
        for site, function in zip(finder.sites, finder.names):
            line = text.count(b"\n", 0, site.start) + 1
            ids.append([number(path, f"{function}: {change}", line) for change in site.changes][0])
        files[path] = sites.rewritten(text, finder.sites, ids)
        cases = "".join(f"    case {number(path, words, 0)}: {statement} break;\n" for statement, words in
                        tables.sites(unit.cursor, path))
        if cases and path.endswith(".cpp"):
            files[path] += writer(cases).encode()
        elif cases:
            headers.append((path, cases))
    files["tables.cpp"] = ("".join(f"#include <{path}>\n" for path, _ in headers) +
                           writer("".join(cases for _, cases in headers))).encode()
    return files, names, lines


def prepare():
    """The copy of the sources with all mutants in it; returns their names and lines by number."""
    paths = mutated_files()
    tools = [os.path.join(os.path.dirname(__file__), tool) for tool in ("sites.py", "tables.py")]
    state = hashlib.sha256(b"".join(content_of(path) for path in tools + paths)).hexdigest()
    known_path = os.path.join(WORK, "names.json")
    known = json.loads(content_of(known_path)) if os.path.exists(known_path) else {}
    if known.get("state") != state:
        files, names, lines = mutate(paths)
        for path, content in files.items():
            write(os.path.join(SOURCE, path), content)
        known = {"state": state, "names": names, "lines": lines}
        write(known_path, json.dumps(known, ensure_ascii=False, indent=0).encode())
    listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], check=True, capture_output=True, text=True)
    others = {path for path in listed.stdout.split("\n") if os.path.isfile(path)} - set(paths)
    for path in others:
        write(os.path.join(SOURCE, path), content_of(path))
    for folder, _, present in os.walk(SOURCE):
        for path in present:
            path = os.path.join(folder, path)
            if os.path.relpath(path, SOURCE) not in {*others, *paths, "tables.cpp"}:
                os.remove(path)
    return ({int(number): name for number, name in known["names"].items()},
            {int(number): line for number, line in known["lines"].items()})


def writer(cases):
    return ("\n[[maybe_unused]] static const bool written_by_mutant = [] {\n  switch (mutant::active) {\n" + cases +
            "    default: break;\n  }\n  return true;\n}();\n")


def build(launcher):
    header = os.path.join(ROOT, "tests", "mutants", "mutant.h")
    os.makedirs(BUILD, exist_ok=True)
    run = lambda command: subprocess.run(command, check=True)  # noqa: E731
    tables_object = os.path.join(WORK, "tables.o")
    run(["g++", "-std=c++20", "-O0", "-w", "-fPIE", f"-I{SOURCE}", "-include", header, "-c", os.path.join(SOURCE, "tables.cpp"),
         "-o", tables_object])
    run(["cmake", "-G", "Ninja", "-S", SOURCE, "-B", BUILD, "-DCMAKE_BUILD_TYPE=None", "-DBRIVANE_QT=OFF", "-DBRIVANE_BENCH=OFF",
         "-DBRIVANE_WARNINGS_AS_ERRORS=OFF", "-DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON", "--log-level=ERROR",
         f"-DCMAKE_CXX_FLAGS=-std=c++20 -O0 -w -Wno-narrowing -include {header}", f"-DCMAKE_EXE_LINKER_FLAGS={tables_object}"]
        + ([f"-DCMAKE_CXX_COMPILER_LAUNCHER={launcher}"] if launcher else []))
    run(["cmake", "--build", BUILD, "--target", *PROGRAMS, "--", "--quiet"])


def limits(seconds):
    resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds + 1))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    resource.setrlimit(resource.RLIMIT_AS, (4 << 30, 4 << 30))


def start(program, cases, mutant=None, seen=None, seconds=60):
    """Whether the cases of the program pass, which does not, and the seconds of the processor that they took."""
    environment = {**os.environ, "GTEST_FILTER": ":".join(cases), "GTEST_FAIL_FAST": "1", "GTEST_COLOR": "no"}
    if mutant is not None:
        environment["BRIVANE_MUTANT"] = str(mutant)
    if seen is not None:
        environment["BRIVANE_MUTANTS_SEEN"] = seen
    with tempfile.TemporaryDirectory(dir=WORK) as folder, tempfile.TemporaryFile() as said:
        child = subprocess.Popen([os.path.join(BUILD, "bin", program)], cwd=folder, env=environment, stdin=subprocess.DEVNULL,
                                 stdout=said, stderr=subprocess.STDOUT, preexec_fn=lambda: limits(seconds))
        watch = threading.Timer(30 * seconds, child.kill)
        watch.start()
        _, status, usage = os.wait4(child.pid, 0)
        watch.cancel()
        child.returncode = os.waitstatus_to_exitcode(status)
        said.seek(0)
        failed = re.findall(rb"^\[  FAILED  \] ([\w./]+)", said.read(), re.MULTILINE)
    took = usage.ru_utime + usage.ru_stime
    if child.returncode == 0:
        return True, "", took
    return False, failed[0].decode() if failed else f"ends with {child.returncode}", took


def cases_of(program):
    listed = subprocess.run([os.path.join(BUILD, "bin", program), "--gtest_list_tests"], check=True, capture_output=True,
                            text=True).stdout
    suite, found = "", []
    for line in listed.split("\n"):
        line = line.split("#")[0].rstrip()
        if line.startswith("  "):
            found.append(suite + line.strip())
        elif line.endswith("."):
            suite = line
    return [case for case in found if "DISABLED_" not in case]


def record(jobs):
    """Of each test case what it reaches and how long it takes."""
    def one(job):
        program, case = job
        with tempfile.TemporaryDirectory(dir=WORK) as folder:
            seen = os.path.join(folder, "seen")
            passed, _, took = start(program, [case], seen=seen)
            if not passed:
                raise SystemExit(f"{program} {case} fails without a mutant")
            with open(seen, encoding="ascii") as file:
                return program, case, took, sorted({int(line) for line in file})

    work = [(program, case) for program in PROGRAMS for case in cases_of(program)]
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        return list(pool.map(one, work))


def readers(names, lines):
    """Of each file with tables the numbers of the mutants in the sources that read it."""
    of_file = collections.defaultdict(set)
    for number, name in names.items():
        if lines[number]:
            of_file[name.split(":")[0]].add(number)
    found = {}
    for path in {name.split(":")[0] for number, name in names.items() if not lines[number]}:
        including = [other for other in of_file if f"#include <{path}>".encode() in content_of(other)]
        found[path] = frozenset().union(of_file[path], *(of_file[other] for other in including))
    return found


def meet(name, mutant, reaching, recorded):
    """What notices a mutant: the program and the case; nothing where none reaches it, and false where all pass. A table
    is reached by who reaches what reads it, and by cases that reach nothing else, which read the table themselves."""
    by_program = {}
    for program, case, took, reached in recorded:
        if mutant in reached or (reaching is not None and (not reached or reached & reaching)):
            by_program.setdefault(program, []).append((took, case))
    if not by_program:
        return None
    # The tests of the same folder first: they are meant to notice.
    folder = name.split("/")[1]
    for program, cases in sorted(by_program.items(),
                                 key=lambda item: (not item[0].startswith(folder), sum(took for took, _ in item[1]))):
        seconds = int(TOO_LONG + 2 * sum(took for took, _ in cases))
        passed, case, _ = start(program, [case for _, case in cases], mutant=mutant, seconds=seconds)
        if not passed:
            return f"{program} {case}"
    return False


def reasons():
    """What the page says of the survivors: `name`: reason."""
    found = {}
    if os.path.exists(PAGE):
        with open(PAGE, encoding="utf-8") as file:
            for match in re.finditer(r"^- `(.+?)`\n((?:  .+\n)+)", file.read(), re.MULTILINE):
                found[match[1].replace("´", "`")] = " ".join(match[2].split())
    return found


def main():
    parser = argparse.ArgumentParser(prog="scripts/mutants", description=__doc__)
    parser.add_argument("--count", type=int, default=0, help="so many of them, chosen at random (all)")
    parser.add_argument("--seed", type=int, default=1, help="what the choice begins with")
    parser.add_argument("--only", default="", metavar="WORDS", help="those with these words in their name")
    parser.add_argument("--survivors", action="store_true", help="try only those again that were not noticed the last time")
    parser.add_argument("--jobs", type=int, default=1, help="so many at a time")
    parser.add_argument("--list", action="store_true", help="name them and end")
    arguments = parser.parse_args()
    os.chdir(ROOT)
    os.makedirs(WORK, exist_ok=True)

    names, lines = prepare()
    if arguments.list:
        print("\n".join(names.values()))
        return 0
    build(shutil.which("ccache"))
    recorded = record(arguments.jobs)
    recorded = [(program, case, took, frozenset(reached)) for program, case, took, reached in recorded]

    results_path = os.path.join(WORK, "results.json")
    before = {}
    if os.path.exists(results_path):
        with open(results_path, encoding="utf-8") as file:
            before = json.load(file)
    chosen = [number for number, name in names.items() if arguments.only in name]
    if arguments.count and arguments.count < len(chosen):
        chosen = sorted(random.Random(arguments.seed).sample(chosen, arguments.count))

    outcome = {}
    if arguments.survivors:
        outcome = {names[number]: before[names[number]] for number in chosen if before.get(names[number])}
        chosen = [number for number in chosen if names[number] not in outcome]
    reading = readers(names, lines)
    tries, began = 0, time.monotonic()
    with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as pool:
        tried = pool.map(lambda n: meet(names[n], n, None if lines[n] else reading[names[n].split(":")[0]], recorded), chosen)
        for number, noticed in zip(chosen, tried):
            outcome[names[number]] = noticed
            tries += 1
            if tries % 50 == 0:
                alive = sum(1 for noticed in outcome.values() if not noticed)
                print(f"{tries} of {len(chosen)}, {alive} live, {time.monotonic() - began:.0f} s", flush=True)
                with open(results_path, "w", encoding="utf-8") as file:
                    json.dump({**before, **outcome}, file, ensure_ascii=False, indent=0)
    with open(results_path, "w", encoding="utf-8") as file:
        json.dump({**before, **outcome}, file, ensure_ascii=False, indent=0)

    known = reasons()
    living = [name for name, noticed in outcome.items() if not noticed]
    same = [name for name in living if known.get(name, "").startswith("Equivalent")]
    for name in living:
        if name not in same:
            reason = known.get(name, "not looked at")
            where = next(lines[n] for n, other in names.items() if other == name)
            print(f"{'lives' if outcome[name] is False else 'unreached'}: {name} [{where}]: {reason}")
    for name in known:
        if outcome.get(name):
            print(f"listed as a survivor and noticed by {outcome[name]}: {name}")
        elif name not in names.values():
            print(f"listed and gone: {name}")
    seen = len(outcome) - len(same)
    killed = len(outcome) - len(living)
    print(f"{len(outcome)} mutants, {killed} noticed, {len(same)} change nothing that can be seen, {seen - killed} live: "
          f"{100 * killed / max(seen, 1):.1f} %")
    return 0 if killed >= 0.98 * seen else 1


if __name__ == "__main__":
    sys.exit(main())
