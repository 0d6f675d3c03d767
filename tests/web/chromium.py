"""Chromium, by the DevTools protocol."""
import json
import time

import quiet
import wire
from any_browser import PATIENCE, POLL, Browser, BrowserError, told


class Chromium(Browser):
    name, commands = "chromium", ("chromium", "chromium-browser")

    def run(self, profile, start):
        (profile / "Default").mkdir()
        (profile / "Default/Preferences").write_text(
            json.dumps(quiet.chromium_preferences(str(self.downloads))))
        self.names = {}  # of downloads that go on
        self.program.run(self.commands, quiet.chromium_switches(profile, self.pixel_ratio) + [start])

    def connect(self, profile, end):
        text = self.program.wait_for_file(profile / "DevToolsActivePort", end - time.monotonic(),
                                          lambda text: text.count("\n") == 1)
        port, path = text.split()
        self.wire = wire.Wire(int(port), path, self.hear, PATIENCE)
        self.ask("Browser.setDownloadBehavior", PATIENCE, behavior="default", eventsEnabled=True)
        while True:
            targets = self.ask("Target.getTargets", PATIENCE)["targetInfos"]
            pages = [t["targetId"] for t in targets if t["type"] == "page" and t["url"] == self.opened]
            if pages:
                break
            if time.monotonic() > end:
                raise BrowserError(f"the browser has no page: {targets}")
            time.sleep(POLL)
        attached = self.ask("Target.attachToTarget", PATIENCE, targetId=pages[0], flatten=True)
        self.session = attached["sessionId"]
        for method, parameters in self.watching():
            self.ask(method, PATIENCE, self.session, **parameters)

    def watching(self):
        """What makes a page, or a worker of one, tell what it asks for."""
        attach = {"autoAttach": True, "waitForDebuggerOnStart": True, "flatten": True}
        return [("Network.enable", {}), ("Target.setAutoAttach", attach)]

    def ask(self, method, seconds, session=None, **parameters):
        more = {"sessionId": session} if session else {}
        return self.wire.ask(method, parameters, seconds, **more)

    def hear(self, message):
        method, told_of = message["method"], message["params"]
        if method == "Network.requestWillBeSent":
            self.asked.append(told_of["request"]["url"])
        elif method == "Network.webSocketCreated":
            self.asked.append(told_of["url"])
        elif method == "Target.attachedToTarget" and "sessionId" in message:  # a worker, which waits
            for name, parameters in self.watching() + [("Runtime.runIfWaitingForDebugger", {})]:
                self.wire.tell(name, parameters, sessionId=told_of["sessionId"])
        elif method == "Browser.downloadWillBegin":
            self.names[told_of["guid"]] = told_of["suggestedFilename"]
        elif method == "Browser.downloadProgress" and told_of["state"] != "inProgress":
            name = self.names.pop(told_of["guid"])
            is_whole = told_of["state"] == "completed"
            self.saved.append(told_of.get("filePath") or str(self.downloads / name) if is_whole else None)

    def navigate(self, url, seconds):
        wrong = self.ask("Page.navigate", seconds, self.session, url=url).get("errorText")
        if wrong:
            raise BrowserError(f"{url}: {wrong}")

    def touch(self, *places):
        """A finger comes down at the first place and goes at the last, CSS pixels."""
        kinds = ["touchStart"] + ["touchMove"] * (len(places) - 1)
        with told():
            for kind, (x, y) in zip(kinds, places):
                self.ask("Input.dispatchTouchEvent", PATIENCE, self.session, type=kind,
                         touchPoints=[{"x": x, "y": y}])
            self.ask("Input.dispatchTouchEvent", PATIENCE, self.session, type="touchEnd", touchPoints=[])

    def run_script(self, source, seconds):
        done = self.ask("Runtime.evaluate", seconds, self.session, expression=source, awaitPromise=True,
                        returnByValue=True)
        wrong = done.get("exceptionDetails")
        if wrong:
            thrown = wrong.get("exception", {})
            words = thrown.get("description") or thrown.get("value") or wrong["text"]
            raise BrowserError(f"the page threw {words}")
        return done["result"].get("value")
