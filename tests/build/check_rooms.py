#!/usr/bin/env python3
"""Holds the tree to the list of rooms, rooms.txt.

    check_rooms.py includes ROOT          every include of every source
    check_rooms.py links ROOT LINKS       every target of a build tree, as cmake/Links.cmake wrote them to LINKS
    check_rooms.py readme ROOT            the table of folders in README.md

Prints each offence and a count, and fails when there is one."""

import fnmatch
import os
import re
import sys

STANDARD = set(
    """algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono cinttypes climits
    clocale cmath codecvt compare complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef cstdint
    cstdio cstdlib cstring ctime cuchar cwchar cwctype deque exception execution filesystem format forward_list fstream
    functional future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory
    memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore
    set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string string_view strstream
    syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray
    variant vector version""".split())
SOURCES = (".h", ".hpp", ".inc", ".cpp", ".cc", ".c")
# What is made and what belongs to others.
NOT_OURS = {"build", "out", ".git", "node_modules"}


class Rooms:
    """The list: for each room the rooms that it may use, itself included, and the outside libraries."""

    def __init__(self, path):
        self.uses, self.outside, self.libraries = {}, {}, {}
        self.faults = []
        with open(path, encoding="utf-8") as lines:
            for number, line in enumerate(lines, 1):
                line = line.split("#")[0].strip()
                if not line:
                    continue
                if line.startswith("library "):
                    _, name, *patterns = line.split()
                    self.libraries[name] = patterns
                    continue
                room, uses, outside = (part.split() for part in line.split("|"))
                self.add(room[0], uses, outside, f"{os.path.basename(path)}:{number}")
        for room, names in self.outside.items():
            for name in names:
                if name != "*" and name not in self.libraries:
                    self.faults.append(f"{room} may include {name}, which no line explains")

    def add(self, room, uses, outside, where):
        closed = {room}
        for used in uses:
            if used != "*" and used not in self.uses:
                self.faults.append(f"{where}: {room} uses {used}, which does not stand above it")
            closed |= self.uses.get(used, {used})
        self.uses[room] = closed
        self.outside[room] = outside

    def of(self, path):
        """The room that a file is in: that of the innermost folder with a line of its own."""
        folder = os.path.dirname(path)
        while folder and folder not in self.uses:
            folder = os.path.dirname(folder)
        return folder

    def may_use(self, room, used):
        return used in self.uses[room] or "*" in self.uses[room]

    def may_include_outside(self, room, header):
        return any(name == "*" or any(fnmatch.fnmatchcase(header, pattern) for pattern in self.libraries.get(name, ()))
                   for name in self.outside[room])


def sources_of(root):
    for folder, inner, files in os.walk(root):
        inner[:] = sorted(name for name in inner if name not in NOT_OURS and not os.path.islink(os.path.join(folder, name)))
        for name in sorted(files):
            if name.endswith(SOURCES):
                yield os.path.relpath(os.path.join(folder, name), root)


def allowed_path(rooms, room, path):
    # The examples can be copied elsewhere, so they name what is theirs from their own folder.
    used = rooms.of(path) or (room if room == "examples" else "")
    return ".." not in path and bool(used) and rooms.may_use(room, used)


def allowed_include(rooms, room, what):
    if match := re.match(r"\s*<([^>]*)>", what):
        if match[1].startswith("brivane/"):
            return allowed_path(rooms, room, match[1])
        return match[1] in STANDARD or rooms.may_include_outside(room, match[1])
    if match := re.match(r'\s*"([A-Za-z0-9_./]+)"', what):
        path = match[1]
        if "/" not in path:
            return rooms.may_include_outside(room, path)
        return not path.startswith("brivane/") and allowed_path(rooms, room, path)
    return False


def check_includes(root):
    rooms = Rooms(os.path.join(root, "rooms.txt"))
    offences = list(rooms.faults)
    lived_in = set()
    files = 0
    for path in sources_of(root):
        files += 1
        room = rooms.of(path)
        if not room:
            offences.append(f"{path}: in a folder that is no room")
            continue
        lived_in.add(room)
        with open(os.path.join(root, path), encoding="utf-8", errors="replace") as lines:
            for number, line in enumerate(lines, 1):
                match = re.match(r"\s*#\s*(?:include|include_next|import)\b(.*)", line)
                if match and not allowed_include(rooms, room, match[1]):
                    offences.append(f"{path}:{number}:{line.rstrip()}")
    offences += [f"{room}: a room without a source" for room in rooms.uses if room not in lived_in]
    return offences, f"{files} files in {len(rooms.uses)} rooms"


def check_links(root, links):
    """A line of LINKS is a target, its folder, its sources and what it links, with tabs between and semicolons inside."""
    rooms = Rooms(os.path.join(root, "rooms.txt"))
    targets = {}
    with open(links, encoding="utf-8") as lines:
        for line in lines:
            name, folder, sources, linked = line.rstrip("\n").split("\t")
            paths = (os.path.relpath(os.path.join(folder, source), root) for source in sources.split(";") if source)
            # What stands outside the tree or is made in a build tree has no room.
            targets[name] = ({rooms.of(path) for path in paths} - {""}, re.findall(r"[\w.-]+", linked))
    offences = list(rooms.faults)
    arrows = 0
    for name, (own, linked) in targets.items():
        for library in linked:
            for used in targets.get(library, (set(), ()))[0]:
                arrows += 1
                if own and not any(rooms.may_use(room, used) for room in own):
                    offences.append(f"{name} ({' '.join(sorted(own))}) links {library} ({used})")
    if not arrows:
        offences.append(f"no target links another in {links}")
    return offences, f"{len(targets)} targets, {arrows} links"


def check_readme(root):
    """The table names each room in the order of the list: in a row of its own, or by its own name in the row of the
    folder that it is in."""
    rooms = Rooms(os.path.join(root, "rooms.txt"))
    with open(os.path.join(root, "README.md"), encoding="utf-8") as readme:
        rows = dict(re.findall(r"^\| `([\w/]+)/` \| (.*) \|$", readme.read(), re.MULTILINE))
    offences = list(rooms.faults)
    order = []
    for room in rooms.uses:
        outer, inner = os.path.split(room)
        row = room if room in rows else outer
        if row not in rows:
            offences.append(f"README.md names no folder {row or room}/")
        elif row != room and not re.search(rf"`{inner}/?`", rows[row]):
            offences.append(f"README.md does not name {inner} in the row of {row}/")
        order += [row] if row not in order else []
    offences += [f"README.md: there is no folder {row}/" for row in rows if not os.path.isdir(os.path.join(root, row))]
    if (told := [row for row in rows if row in order]) != order and not offences:
        offences.append(f"README.md has the folders in another order than rooms.txt: {' '.join(told)}")
    return offences, f"{len(rows)} rows"


CHECKS = {"includes": check_includes, "links": check_links, "readme": check_readme}

if __name__ == "__main__":
    found, told = CHECKS[sys.argv[1]](*sys.argv[2:])
    print(*found, sep="\n", end="\n" if found else "")
    print(f"{told}, {len(found)} offences")
    sys.exit(1 if found else 0)
