#!/usr/bin/python3
"""Saves and imports through the desktop's own dialogs, as a portal offers them:
    portal_dialogs.py PROGRAM
The portal is played here: it answers each question at once with what is told it beforehand. Needs
a session bus and a display. Says what is wrong and ends with 1 if anything is."""

import os
import pathlib
import subprocess
import sys
import tempfile

from gi.repository import Gio, GLib

import walk_tree as tree

NAME = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
FILE_CHOOSER = Gio.DBusNodeInfo.new_for_xml("""
<node><interface name="org.freedesktop.portal.FileChooser">
  <method name="OpenFile">
    <arg type="s" direction="in"/><arg type="s" direction="in"/>
    <arg type="a{sv}" direction="in"/><arg type="o" direction="out"/>
  </method>
  <method name="SaveFile">
    <arg type="s" direction="in"/><arg type="s" direction="in"/>
    <arg type="a{sv}" direction="in"/><arg type="o" direction="out"/>
  </method>
  <property name="version" type="u" access="read"/>
</interface></node>""").interfaces[0]
CHOSEN, CANCELLED = 0, 1


class Portal:
    """Answers what it is asked; the last answer stays."""

    def __init__(self):
        self.asked = []
        self.answers = []
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self.bus.register_object(PATH, FILE_CHOOSER, self.ask, lambda *_: GLib.Variant("u", 3), None)
        Gio.bus_own_name_on_connection(self.bus, NAME, Gio.BusNameOwnerFlags.NONE, None, None)

    def ask(self, bus, sender, path, interface, method, parameters, invocation):
        _, title, options = parameters.unpack()
        self.asked.append((method, title, options))
        caller = sender.lstrip(":").replace(".", "_")
        request = f"{PATH}/request/{caller}/{options.get('handle_token', 'none')}"
        invocation.return_value(GLib.Variant("(o)", (request,)))
        path = self.answers.pop(0) if self.answers else None
        results = {"uris": GLib.Variant("as", [pathlib.Path(path).as_uri()])} if path else {}
        answer = GLib.Variant("(ua{sv})", (CHOSEN if path else CANCELLED, results))
        GLib.timeout_add(200, lambda: self.bus.emit_signal(
            sender, request, "org.freedesktop.portal.Request", "Response", answer) and False)


def check_dialogs(portal, folder):
    saved = folder / "from the portal.bmp"
    portal.answers = [saved]
    tree.press("Save", "push button")
    tree.expect(tree.wait_for(lambda: saved.exists() and saved.stat().st_size > 1000),
                "the map is not where the portal said")
    tree.expect(portal.asked and portal.asked[0][:2] == ("SaveFile", "Save Terrain"),
                f"the portal was asked {portal.asked[:1]}")

    # What holds something is never replaced: that is said, and the portal is asked again.
    before = saved.read_bytes()
    portal.answers = [saved, None]
    tree.press("Save", "push button")
    tree.expect(tree.wait_for(lambda: len(portal.asked) == 2), "the second save asks nothing")
    tree.press("OK", "push button")
    tree.expect(tree.wait_for(lambda: len(portal.asked) == 3), "the save does not go back")
    tree.expect(saved.read_bytes() == before, "the map that was there is another one")

    portal.answers = [saved]
    tree.press("Import", "push button")
    tree.expect(tree.wait_for(lambda: len(portal.asked) == 4), "the import asks nothing")
    if len(portal.asked) == 4:
        method, _, options = portal.asked[3]
        kinds = [name for name, _ in options.get("filters", [])]
        tree.expect(method == "OpenFile" and len(kinds) == 3 and kinds[1].startswith("All Pictures"),
                    f"the import asks {method} for {kinds}")
    tree.expect(tree.wait_for(lambda: tree.find("Ombrelia Terrain Editor - Small Map", "label")),
                "the map is not imported")


def main():
    tree.Atspi.init()
    portal = Portal()
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        environment = dict(os.environ, QT_QPA_PLATFORMTHEME="xdgdesktopportal")
        editor = subprocess.Popen([sys.argv[1]], env=environment)
        try:
            tree.expect(tree.wait_for(tree.program), "the editor is not known")
            tree.press("Small", "push button")
            opened = tree.wait_for(lambda: tree.find("Generate", "push button"))
            tree.expect(opened, "the editor does not open")
            if opened:
                check_dialogs(portal, folder)
            tree.expect(editor.poll() is None, "the editor has ended")
            tree.leave(editor)
        finally:
            editor.kill()
            editor.wait()
    for fault in tree.faults:
        print(fault, file=sys.stderr)
    return 1 if tree.faults else 0


if __name__ == "__main__":
    sys.exit(main())
