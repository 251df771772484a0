"""Reads what a screen reader finds in each scene of the program, and holds it to trees/NAME.txt.

  read_scenes.py PROGRAM [NAME...]            PROGRAM is show_scene; without names every scene
  read_scenes.py PROGRAM --write [NAME...]    writes the texts instead: to be reviewed line by line

The program runs on a display, a session bus and an accessibility bus of this test's own, and is read over that bus, from
another process. A line of a tree is one element: role, name, (content), states, and what describes it. Below the tree stands
what was announced while the scene came about.
"""

import difflib
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
import traceback

HERE = os.path.dirname(os.path.abspath(__file__))
TREES = os.path.join(HERE, "trees")
PATIENCE = 30  # seconds for anything to come about
VERBOSE = "BRIVANE_ACCESS_VERBOSE" in os.environ  # what the buses say is shown too
INSIDE = "BRIVANE_ACCESS_INSIDE"
PYTHON = "/usr/bin/python3"  # the one that Debian's modules are for
NEEDS = "Install the packages of packages.txt that the screen-reader test needs (at-spi2-core, gir1.2-atspi-2.0, python3-gi, xvfb, dbus-daemon)."


def fail(text):
    print(text)
    sys.exit(1)


def run_inside():
    """Starts this script again on a display and a session bus of its own, with nothing of the person's own at hand."""
    missing = [tool for tool in ("Xvfb", "dbus-run-session") if shutil.which(tool) is None]
    if not os.path.exists("/usr/share/dbus-1/services/org.a11y.Bus.service"):
        missing.append("at-spi2-core")
    if missing:
        fail("Missing: " + ", ".join(missing) + ". " + NEEDS)
    home = tempfile.mkdtemp(prefix="access-")
    os.chmod(home, 0o700)
    end, told = os.pipe()
    screen = subprocess.Popen(
        ["Xvfb", "-displayfd", str(told), "-screen", "0", "1280x720x24", "-nolisten", "tcp"],
        pass_fds=[told], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(told)
    try:
        with os.fdopen(end) as answer:
            number = answer.readline().strip()
        if not number:
            fail("Xvfb did not start.")
        kept = {name: os.environ[name] for name in ("PATH", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS")
                if name in os.environ}
        environment = kept | {
            INSIDE: home, "DISPLAY": ":" + number, "HOME": home, "XDG_RUNTIME_DIR": home, "XDG_CONFIG_HOME": home,
            "XDG_DATA_HOME": home, "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "xcb", "QT_ACCESSIBILITY": "1",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        return subprocess.run(["dbus-run-session", "--", PYTHON, "-B", *sys.argv], env=environment,
                              stderr=subprocess.STDOUT if VERBOSE else subprocess.DEVNULL, check=False).returncode
    finally:
        screen.terminate()
        screen.wait()
        shutil.rmtree(home, ignore_errors=True)


STATES = (("CHECKED", "checked"), ("FOCUSED", "focused"), ("SELECTED", "selected"), ("EXPANDED", "expanded"),
          ("INVALID_ENTRY", "invalid"), ("IS_DEFAULT", "default"), ("MODAL", "modal"))


def attempt(read, otherwise):
    """What an element answers; it may go away while it is read."""
    try:
        return read()
    except Exception:  # whatever the bus has to say
        return otherwise


def part_of(lines, start):
    """The lines of the element that starts like this, and of alerts wherever they are; all where nothing is given."""
    if not start:
        return lines
    depth = lambda line: len(line) - len(line.lstrip())
    found, inside = [], None
    for line in lines:
        if inside is not None and depth(line) <= inside:
            inside = None
        if inside is None and line.lstrip().startswith(start):
            inside = depth(line)
            outer = inside
        if inside is not None:
            found.append(line[outer:])
        elif line.lstrip().startswith("alert "):
            found.append(line.lstrip())
    return found


class Reader:
    """Everything that stands on the accessibility bus, and what was announced on it."""

    def __init__(self):
        import gi
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi, GLib
        self.atspi = Atspi
        self.loop = GLib.MainContext.default()
        self.heard = []
        Atspi.init()
        Atspi.set_timeout(5000, 15000)
        self.listener = Atspi.EventListener.new(self.hear)
        for event in ("object:state-changed:showing", "object:announcement", "object:state-changed:invalid-entry"):
            attempt(lambda event=event: self.listener.register(event), None)

    def hear(self, event):
        role = attempt(event.source.get_role_name, "")
        name = attempt(event.source.get_name, "")
        if event.type == "object:announcement" or (role in ("alert", "notification") and event.detail1):
            said = f'{role} "{name}"'
            if said not in self.heard:
                self.heard.append(said)
        elif "invalid-entry" in event.type:
            self.heard.append(f'{role} "{name}" {"invalid" if event.detail1 else "valid"}')

    def turn(self):
        while self.loop.iteration(False):
            pass

    def application(self, process):
        desktop = self.atspi.get_desktop(0)
        for number in range(desktop.get_child_count()):
            child = attempt(lambda number=number: desktop.get_child_at_index(number), None)
            if child is not None and attempt(child.get_process_id, 0) == process:
                return child
        return None

    def lines(self, element, depth=0):
        states = attempt(element.get_state_set, None)
        if states is None:
            return
        has = lambda name: states.contains(getattr(self.atspi.StateType, name))
        role = attempt(element.get_role_name, "?")
        # What is not shown is not read, but for what waits in a closed menu or list.
        if depth > 0 and not has("SHOWING") and role not in ("menu item", "check menu item", "separator"):
            return
        line = "  " * depth + role
        name = attempt(element.get_name, "")
        if name:
            line += f' "{name}"'
        if attempt(lambda: element.get_text_iface(), None) is not None:
            text = attempt(lambda: self.atspi.Text.get_text(element, 0, -1), "")
            if text != name or has("EDITABLE"):
                line += f" ({text})"
        if attempt(lambda: element.get_value_iface(), None) is not None:
            line += f" = {attempt(lambda: self.atspi.Value.get_current_value(element), 0):g}"
        if role not in ("menu item", "menu", "separator") and not has("ENABLED"):
            line += " disabled"
        line += "".join(" " + word for state, word in STATES if has(state))
        if role == "text" and has("READ_ONLY"):
            line += " read-only"
        describes = attempt(element.get_description, "") if depth > 0 else ""
        if describes:
            line += f' -- {describes}'
        yield line
        for number in range(attempt(element.get_child_count, 0)):
            child = attempt(lambda number=number: element.get_child_at_index(number), None)
            if child is not None:
                yield from self.lines(child, depth + 1)

    def tree(self, process, part):
        found = self.application(process)
        if found is None:
            return ""
        found.clear_cache()
        windows = [found.get_child_at_index(number) for number in range(found.get_child_count())]
        # Of what lies behind a dialog nothing can be reached.
        dialogs = [window for window in windows if attempt(window.get_role_name, "") in ("dialog", "alert")]
        lines = [line for window in dialogs or windows for line in self.lines(window)]
        return "".join(line + "\n" for line in part_of(lines, part))


def read_scene(reader, program, name, part, wanted):
    """The text of a scene: as soon as it is the one that is wanted, else as it stays."""
    folder = tempfile.mkdtemp(prefix="scene-", dir=os.environ[INSIDE])
    reader.turn()
    reader.heard = []
    shown = subprocess.Popen([program, name, folder], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                             stderr=subprocess.STDOUT)
    try:
        os.set_blocking(shown.stdout.fileno(), False)
        end = time.monotonic() + PATIENCE
        said = b""
        while b"ready" not in said and time.monotonic() < end and shown.poll() is None:
            reader.turn()  # the program waits for answers of this process
            said += shown.stdout.read() or b""
            time.sleep(0.02)
        if b"ready" not in said:
            return f"(the scene did not come about: {said.decode(errors='replace')})\n"
        before, since = None, time.monotonic()
        while time.monotonic() < end:
            reader.turn()
            text = reader.tree(shown.pid, part)
            reader.turn()
            text += "".join(f"heard: {line}\n" for line in reader.heard)
            text = text.replace(folder, "FOLDER")
            if wanted is not None and text == wanted:
                return text
            if text != before or not text:
                before, since = text, time.monotonic()
            elif time.monotonic() - since > 3:
                break
            time.sleep(0.1)
        return before or "(nothing on the bus)\n"
    finally:
        shown.stdin.close()
        try:
            shown.wait(10)
        except subprocess.TimeoutExpired:
            shown.kill()
            shown.wait()


def main():
    program = os.path.abspath(sys.argv[1])
    arguments = sys.argv[2:]
    write = arguments[:1] == ["--write"]
    names = arguments[1:] if write else arguments
    listed = subprocess.run([program, "--list"], check=True, capture_output=True, text=True).stdout
    scenes = dict(line.split("\t") for line in listed.splitlines() if not line.endswith("\ttimed"))
    try:
        reader = Reader()
    except (ImportError, ValueError) as error:
        fail(f"{error}. {NEEDS}")
    bad = 0
    for name in names or scenes:
        path = os.path.join(TREES, name + ".txt")
        wanted = open(path, encoding="utf-8").read() if os.path.exists(path) and not write else None
        text = read_scene(reader, program, name, scenes[name], wanted)
        if write:
            with open(path, "w", encoding="utf-8") as file:
                file.write(text)
        elif text != wanted:
            bad += 1
            print(f"{name}: what a screen reader finds is not what trees/{name}.txt says:")
            sys.stdout.writelines(difflib.unified_diff(
                (wanted or "").splitlines(True), text.splitlines(True), "trees/" + name + ".txt", "found"))
    if not names and not write:
        stray = {file[:-4] for file in os.listdir(TREES)} - set(scenes)
        if stray:
            fail("no scenes any more: " + ", ".join(sorted(stray)))
    print(f"{len(names or scenes) - bad} of {len(names or scenes)} scenes as they should be")
    return 1 if bad else 0


if __name__ == "__main__":
    if INSIDE not in os.environ:
        sys.exit(run_inside())
    try:
        sys.exit(main())
    except Exception:
        fail(traceback.format_exc())
