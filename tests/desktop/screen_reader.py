#!/usr/bin/python3
"""screen_reader.py PROGRAM ARCHIVE: uses the window as a screen reader's client does.

Also tests what only a real display shows: the position of the title and an empty clipboard. Needs a
display with a window manager, a session bus, xdotool and python3-pyatspi. While the client listens to
keys, Qt delivers copies of them.
"""
import os
import subprocess
import sys
import time

import pyatspi
from gi.repository import GLib

LIMIT = 60  # seconds

focused = []


def pump(seconds=0.0):
    end = time.monotonic() + seconds
    context = GLib.MainContext.default()
    while True:
        while context.iteration(False):
            pass
        if time.monotonic() >= end:
            return
        time.sleep(0.01)


def wait_for(what, condition):
    end = time.monotonic() + LIMIT
    while time.monotonic() < end:
        pump(0.05)
        try:
            found = condition()
        except (LookupError, GLib.Error):
            found = None
        if found:
            return found
    sys.exit(f"{what} did not happen; focused: {focused}")


def find(node, condition):
    if node is None or condition(node):
        return node
    for child in node:
        found = find(child, condition)
        if found is not None:
            return found
    return None


def keys(*names):
    typing = subprocess.Popen(["xdotool", "key", "--delay", "40", *names])
    while typing.poll() is None:
        pump(0.01)


def on_focus(event):
    if event.detail1 == 1:
        focused.append(event.source.name)


def check_title(program):
    """The title is on the screen, also if the window is higher than the screen."""
    tool = subprocess.Popen([program], env={**os.environ, "QT_SCALE_FACTOR": "2.2"})
    try:
        def top():
            found = subprocess.run(
                ["xdotool", "search", "--onlyvisible", "--pid", str(tool.pid), "--name",
                 "Ostrane.dat-tool -", "getwindowgeometry", "--shell"],
                check=False, capture_output=True, text=True).stdout
            return int(found.split("Y=")[1].split()[0]) if "Y=" in found else -1

        wait_for("the title on the screen", lambda: top() >= 10)
    finally:
        tool.kill()


def main():
    program, archive = sys.argv[1:]
    check_title(program)
    os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
    pyatspi.Registry.registerEventListener(on_focus, "object:state-changed:focused")
    pyatspi.Registry.registerKeystrokeListener(
        lambda event: False, key_set=None, mask=0, kind=(pyatspi.KEY_PRESSED_EVENT,),
        synchronous=True, preemptive=True)
    tool = subprocess.Popen([program, archive])
    try:
        desktop = pyatspi.Registry.getDesktop(0)
        window = wait_for("the window", lambda: find(
            desktop, lambda n: n.name.startswith("Ostrane.dat-tool -")
            and n.getRole() == pyatspi.ROLE_FRAME))
        entries = wait_for("the list", lambda: find(window, lambda n: n.name == "Entries"))
        wait_for("the archive", lambda: entries.childCount > 5)

        def is_shown(row):
            return find(window, lambda n: n.name.startswith(row + " - ")
                        and n.getRole() != pyatspi.ROLE_LIST_ITEM)

        subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--name",
                        "Ostrane.dat-tool -", "windowactivate", "--sync"], check=True)
        keys("ctrl+l")
        pump(0.5)
        for word, row in (("gem", "GEMS.SHP"), ("vis", "VISTA.SHP"), ("gui", "GUIDE.TXT")):
            keys(*word)
            wait_for(f"{row} by typing {word}", lambda r=row: is_shown(r))
            pump(1)

        # A paste with an empty clipboard into the text of the entry.
        keys("ctrl+v", "shift+Tab", "ctrl+v")
        pump(0.5)
        keys("ctrl+l", "v", "i", "s")
        wait_for("VISTA.SHP", lambda: is_shown("VISTA.SHP"))
        focused.clear()
        keys("Tab", "Tab")
        wait_for("the focus of a picture", lambda: any(
            name.startswith("Picture 1, 226 by 176") for name in focused))
        keys("Right")
        wait_for("the next picture", lambda: focused[-1].startswith("Picture 2, "))
        keys("Return")
        wait_for("the report", lambda: find(
            desktop, lambda n: n.name.startswith("Icon-data for picture")))
        focused.clear()
        keys("Escape")
        wait_for("the picture again", lambda: focused and focused[-1].startswith("Picture 2, "))
        if any(name.startswith("Picture 0") for name in focused):
            sys.exit(f"A hidden picture had the focus: {focused}")
        if tool.poll() is not None:
            sys.exit("The program has ended")
    finally:
        tool.kill()


main()
