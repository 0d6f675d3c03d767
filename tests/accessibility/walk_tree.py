#!/usr/bin/python3
"""Works the running editor through assistive technology alone:
    walk_tree.py PROGRAM
Needs a session bus and a display. Says what is wrong and ends with 1 if anything is."""

import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

import parts_table  # noqa: E402

TITLE = "Ombrelia Terrain Editor"
ROLES = {"button": "push button"}  # what the library calls them

# What was told without being asked: (name, role, state, its value), in order.
heard = []
faults = []


def expect(holds, words):
    if not holds:
        faults.append(words)


def wait_for(what, seconds=20):
    """What `what` gives once it is true; None if it never is."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        try:
            found = what()
        except GLib.Error:
            found = None
        if found:
            return found
        while GLib.MainContext.default().iteration(False):
            pass
        time.sleep(0.1)
    return None


def program():
    desktop = Atspi.get_desktop(0)
    for i in range(desktop.get_child_count()):
        child = desktop.get_child_at_index(i)
        if child is not None and child.get_name() in (TITLE, "ombrelia-terrain-editor"):
            return child
    return None


def parts(root):
    """Everything below root, itself included."""
    root.clear_cache()
    yield root
    for i in range(root.get_child_count()):
        child = root.get_child_at_index(i)
        if child is not None:
            yield from parts(child)


def role_of(part):
    """The role's name; younger libraries say "button" for a push button."""
    name = part.get_role_name()
    return "push button" if name == "button" else name


def find(name, role):
    app = program()
    if app is None:
        return None
    for part in parts(app):
        if part.get_name() == name and role_of(part) == role:
            return part
    return None


def states(part):
    part.clear_cache()
    return part.get_state_set().get_states()


def listen():
    """Hears of states that change; the desktop's events come in with wait_for."""
    def hear(event):
        heard.append((event.source.get_name(), event.source.get_role_name(),
                      event.type.split(":")[-1], event.detail1))
    listener = Atspi.EventListener.new(hear)
    for state in ("enabled", "sensitive", "checked"):
        listener.register(f"object:state-changed:{state}")
    return listener


def check_told(name, role, state, value, words):
    expect(wait_for(lambda: (name, role, state, value) in heard), words)


def press(name, role):
    part = wait_for(lambda: find(name, role))
    expect(part is not None, f"there is no {role} '{name}'")
    if part is not None:
        expect(Atspi.Action.do_action(part, 0), f"'{name}' cannot be pressed")
    return part


def check_parts():
    for role, names in parts_table.NAMES.items():
        for name in names:
            expect(find(name, ROLES.get(role, role)), f"there is no {role} '{name}'")
    expect(find("Map", "image"), "the map is not there")
    expect(find("Current Colors", "combo box"), "the list of colour sets is not there")
    for part in parts(program()):
        if role_of(part) in ("push button", "radio button", "check box", "slider"):
            expect(part.get_name() != "", f"a {role_of(part)} has no name")


def check_states():
    expect(Atspi.StateType.CHECKED in states(find("2D Mode", "radio button")), "2D Mode is not on")
    expect(Atspi.StateType.CHECKED not in states(find("3D Mode", "radio button")), "3D Mode is on")
    press("Pencil tool", "radio button")
    on = wait_for(lambda: Atspi.StateType.CHECKED in states(find("Pencil tool", "radio button")))
    expect(on, "the pencil is not on after a press")
    check_told("Pencil tool", "radio button", "checked", 1, "a tool that is on is not told of")
    box = find("River in the middle", "check box")
    before = Atspi.StateType.CHECKED in states(box)
    press("River in the middle", "check box")
    turned = wait_for(lambda: (Atspi.StateType.CHECKED in states(box)) != before)
    expect(turned, "the check box does not turn")


def check_places():
    menu = find("Menu", "push button")
    window = menu.get_parent()
    place = Atspi.Component.get_extents(menu, Atspi.CoordType.SCREEN)
    at = Atspi.Component.get_accessible_at_point(window, place.x + 2, place.y + 2, Atspi.CoordType.SCREEN)
    expect(at is not None and at.get_name() == "Menu", "the button is not found at its place")
    beyond = Atspi.Component.get_accessible_at_point(window, -5, -5, Atspi.CoordType.SCREEN)
    expect(beyond is None or beyond.get_name() != "Menu", "the button is found elsewhere")
    again = window.get_child_at_index(menu.get_index_in_parent())
    expect(again is not None and again.get_name() == "Menu", "the button's number is another's")


def check_slider():
    slider = find("Detail", "slider")
    limits = (Atspi.Value.get_minimum_value(slider), Atspi.Value.get_maximum_value(slider))
    expect(limits == (1, 8), "Detail does not go from 1 to 8")
    Atspi.Value.set_current_value(slider, 7)
    expect(wait_for(lambda: Atspi.Value.get_current_value(slider) == 7), "Detail does not become 7")
    expect(wait_for(lambda: find("Detail 7", "label")), "the readout of Detail does not follow")


def check_generate():
    press("Fractal Terrain tool", "radio button")
    press("Generate", "push button")
    check_told("Line tool", "radio button", "enabled", 0, "a disabled tool is not told of")
    done = wait_for(lambda: any(part.get_name().startswith(("Generating Fractal", "Updating View"))
                                for part in parts(program())))
    expect(done, "nothing is generated")
    check_told("Line tool", "radio button", "enabled", 1, "a tool enabled again is not told of")


def leave(editor):
    """By the close button and the question that it asks."""
    press("Close", "push button")
    press("Yes", "push button")
    try:
        expect(editor.wait(20) == 0, "the editor did not end well")
    except subprocess.TimeoutExpired:
        expect(False, "the editor did not end")


def main():
    Atspi.init()
    listener = listen()  # noqa: F841  heard as long as it lives
    editor = subprocess.Popen([sys.argv[1]])
    try:
        expect(wait_for(program), "the editor is not known")
        press("Small", "push button")
        expect(wait_for(lambda: find("Generate", "push button")), "the editor does not open")
        if not faults:
            check_parts()
            check_states()
            check_places()
            check_slider()
            check_generate()
        expect(editor.poll() is None, "the editor has ended")
        leave(editor)
    finally:
        editor.kill()
        editor.wait()
    for fault in faults:
        print(fault, file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
