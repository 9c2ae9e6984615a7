#!/usr/bin/python3
"""Walks Quillmere's AT-SPI tree as a screen reader sees it, and names what has no name.

Starts the program with a fresh home (so it opens on its first-launch intro) holding a
small folder with one pair of equal files, and goes through it as a reader's user would,
with AT-SPI actions and keys only: the intro, the home folder choice, a scan of that
folder, its results, a group's detail popover (Return on the list's row), the rename
drop target, the list after choosing that folder, and a row's editor popover. It prints
the tree of each screen; every button, field, combo box, list, row, progress bar,
picture or dialog without a name is listed at the end, and the exit status is 1 if
there is any.

Needs a session bus, an X display and the AT-SPI packages (at-spi2-core,
python3-pyatspi, which is for the system Python, /usr/bin/python3), for example:

    xvfb-run -a -s '-screen 0 1280x800x24' dbus-run-session -- \\
        tools/atspi-dump.py build/FileUtilities/shell/quillmere

(the bus inside the display, so that the accessibility registry can send keys).
"""

import os
import pwd
import shutil
import subprocess
import sys
import tempfile
import time

import pyatspi
from gi.repository import GLib

NEEDS_NAME = {
    pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_TOGGLE_BUTTON, pyatspi.ROLE_CHECK_BOX,
    pyatspi.ROLE_RADIO_BUTTON, pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_ENTRY,
    pyatspi.ROLE_PASSWORD_TEXT, pyatspi.ROLE_LIST, pyatspi.ROLE_LIST_BOX,
    pyatspi.ROLE_TABLE, pyatspi.ROLE_TREE, pyatspi.ROLE_PROGRESS_BAR,
    pyatspi.ROLE_DIALOG, pyatspi.ROLE_PAGE_TAB, pyatspi.ROLE_SPIN_BUTTON,
    pyatspi.ROLE_SLIDER, pyatspi.ROLE_IMAGE, pyatspi.ROLE_LIST_ITEM,
}


def states_of(node):
    states = node.getState()
    words = []
    for state, word in ((pyatspi.STATE_FOCUSABLE, "focusable"),
                        (pyatspi.STATE_FOCUSED, "focused"),
                        (pyatspi.STATE_CHECKABLE, "checkable"),
                        (pyatspi.STATE_CHECKED, "checked"),
                        (pyatspi.STATE_EDITABLE, "editable")):
        if states.contains(state):
            words.append(word)
    return words, states.contains(pyatspi.STATE_SHOWING)


def walk(node, unnamed, depth=0, out=sys.stdout):
    """Prints the shown part of the tree under `node`; collects the unnamed controls."""
    try:
        role = node.getRole()
        name = node.name or ""
        description = node.description or ""
        words, showing = states_of(node)
    except Exception:  # the node went while we looked
        return
    if depth > 0 and not showing:
        return
    line = "  " * depth + f"[{node.getRoleName()}] {name!r}"
    if description:
        line += f" ({description})"
    if words:
        line += " " + ",".join(words)
    print(line, file=out)
    readonly_text = role == pyatspi.ROLE_TEXT and "focusable" not in words
    if role in NEEDS_NAME and not name.strip() and not readonly_text:
        unnamed.append(line.strip())
    for index in range(min(node.childCount, 400)):
        walk(node.getChildAtIndex(index), unnamed, depth + 1, out)


def find_app(name, timeout=20.0):
    deadline = time.time() + timeout
    while time.time() < deadline:
        desktop = pyatspi.Registry.getDesktop(0)
        for index in range(desktop.childCount):
            app = desktop.getChildAtIndex(index)
            if app is not None and app.name and name in app.name.lower():
                return app
        time.sleep(0.3)
    raise SystemExit(f"no application named {name!r} on the accessibility bus")


def find(node, role, name=None):
    """The first shown node under `node` of `role` (and `name`), depth first."""
    if node is None:
        return None
    try:
        if node.getRole() == role and (name is None or node.name == name):
            return node
        for index in range(node.childCount):
            found = find(node.getChildAtIndex(index), role, name)
            if found is not None:
                return found
    except Exception:
        return None
    return None


def find_editable(node):
    """The first editable text under `node` (depth first)."""
    try:
        if node.getRole() == pyatspi.ROLE_TEXT and node.getState().contains(
                pyatspi.STATE_EDITABLE):
            return node
        for index in range(node.childCount):
            found = find_editable(node.getChildAtIndex(index))
            if found is not None:
                return found
    except Exception:
        return None
    return None


def wait_for(app, role, name=None, timeout=10.0):
    deadline = time.time() + timeout
    while time.time() < deadline:
        found = find(app, role, name)
        if found is not None:
            return found
        time.sleep(0.2)
    raise SystemExit(f"no {pyatspi.Role(role)} named {name!r} appeared")


def press(node):
    try:
        node.queryAction().doAction(0)
    except GLib.GError:
        pass  # the node went with what it did, such as a dialog it closed
    time.sleep(0.5)


def choose_in_dialog(app, path):
    """Fills Qt's file dialog with `path` and confirms it."""
    dialog = wait_for(app, pyatspi.ROLE_DIALOG)
    time.sleep(0.5)
    # Qt's line edits are text roles; the dialog's own is its file name field.
    field = find(dialog, pyatspi.ROLE_ENTRY) or find_editable(dialog)
    if field is not None:
        editable = field.queryEditableText()
        editable.setTextContents(path)
        print(f"(dialog {dialog.name!r}: {field.name!r} reads "
              f"{field.queryText().getText(0, -1)!r})")
    for title in ("Choose", "&Choose", "Open", "&Open"):
        button = find(dialog, pyatspi.ROLE_PUSH_BUTTON, title)
        if button is not None:
            press(button)
            return
    raise SystemExit("the file dialog has no button to confirm")


def key(keysym):
    pyatspi.Registry.generateKeyboardEvent(keysym, None, pyatspi.KEY_SYM)
    time.sleep(0.5)


RETURN, ESCAPE = 0xFF0D, 0xFF1B


def open_popover_on_list(app, list_name, unnamed, title):
    """Puts the focus on the named list and opens its current row with Return."""
    listing = wait_for(app, pyatspi.ROLE_LIST, list_name)
    # Without a window manager nothing makes the window active; a click on the list's
    # empty end does, without opening a row.
    box = listing.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    pyatspi.Registry.generateMouseEvent(box.x + box.width // 2, box.y + box.height - 5,
                                        pyatspi.MOUSE_B1C)
    time.sleep(0.5)
    listing.queryComponent().grabFocus()
    time.sleep(0.3)
    key(RETURN)
    popover = wait_for(app, pyatspi.ROLE_DIALOG)
    print(f"== {title}")
    walk(app, unnamed)
    key(ESCAPE)


def main():
    if len(sys.argv) != 2:
        raise SystemExit(__doc__)
    program = os.path.abspath(sys.argv[1])
    # Inside the user's real home: the program offers only folders under it.
    home = tempfile.mkdtemp(prefix="quillmere-atspi-", dir=pwd.getpwuid(os.getuid()).pw_dir)
    sample = os.path.join(home, "Photos")
    for copy in ("a", "b"):
        os.makedirs(os.path.join(sample, copy))
        with open(os.path.join(sample, copy, "beach.jpg"), "wb") as out:
            out.write(bytes(range(256)) * 400)
    environment = dict(os.environ, HOME=home, XDG_CONFIG_HOME=os.path.join(home, ".config"),
                       XDG_DATA_HOME=os.path.join(home, ".local/share"),
                       QT_ACCESSIBILITY="1", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                       QT_QPA_PLATFORM="xcb")
    process = subprocess.Popen([program], env=environment)
    unnamed = []
    try:
        app = find_app("quillmere")
        print("== first launch")
        walk(app, unnamed)
        press(wait_for(app, pyatspi.ROLE_PUSH_BUTTON, "Got it!"))

        print("== home folder")
        walk(app, unnamed)
        press(wait_for(app, pyatspi.ROLE_PUSH_BUTTON, "Select Home Folder"))
        choose_in_dialog(app, home)

        print("== duplicates")
        wait_for(app, pyatspi.ROLE_PUSH_BUTTON, "Start Scan")
        walk(app, unnamed)
        press(wait_for(app, pyatspi.ROLE_PUSH_BUTTON, "Choose Folder…"))
        choose_in_dialog(app, sample)
        press(wait_for(app, pyatspi.ROLE_PUSH_BUTTON, "Start Scan"))
        # The scan's end comes as an alert, read and dismissed.
        deadline = time.time() + 30
        alert = None
        while alert is None and time.time() < deadline:
            time.sleep(0.3)
            alert = find(app, pyatspi.ROLE_ALERT) or find(app, pyatspi.ROLE_DIALOG)
        if alert is None:
            raise SystemExit("the scan did not end with its alert")
        print("== scan complete alert")
        walk(alert, unnamed)
        press(find(alert, pyatspi.ROLE_PUSH_BUTTON, "OK") or
              find(alert, pyatspi.ROLE_PUSH_BUTTON, "&OK"))
        print("== results")
        walk(app, unnamed)
        open_popover_on_list(app, "Duplicates", unnamed, "detail popover")
        # The tool switch is a pair of radio buttons.
        for role in (pyatspi.ROLE_RADIO_BUTTON, pyatspi.ROLE_CHECK_BOX,
                     pyatspi.ROLE_PUSH_BUTTON):
            rename = find(app, role, "Rename")
            if rename is not None:
                press(rename)
                break
        print("== rename")
        walk(app, unnamed)
        press(wait_for(app, pyatspi.ROLE_PUSH_BUTTON, "Choose Files…"))
        # A folder chosen in the files-and-folders dialog: its files are listed.
        choose_in_dialog(app, os.path.join(sample, "a"))
        wait_for(app, pyatspi.ROLE_LIST, "Files to rename")
        print("== rename list")
        walk(app, unnamed)
        open_popover_on_list(app, "Files to rename", unnamed, "rename editor")
    finally:
        process.terminate()
        process.wait(10)
        shutil.rmtree(home, ignore_errors=True)

    print("== unnamed controls")
    for line in sorted(set(unnamed)):
        print(line)
    print(f"{len(set(unnamed))} unnamed")
    return 1 if unnamed else 0


if __name__ == "__main__":
    sys.exit(main())
