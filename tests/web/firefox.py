"""Firefox, by WebDriver BiDi."""
import json
import time

import quiet
import wire
from any_browser import PATIENCE, POLL, Browser, BrowserError, told


class Firefox(Browser):
    name, commands = "firefox", ("firefox-esr", "firefox")

    def run(self, profile, start):
        rows = quiet.firefox_preferences(str(self.downloads), self.pixel_ratio)
        (profile / "user.js").write_text("".join(
            f"user_pref({json.dumps(name)}, {json.dumps(value)});\n" for name, value in rows.items()))
        self.program.run(self.commands, ["--no-remote", "--new-instance", "--profile", str(profile),
                                         "--kiosk", "--remote-debugging-port=0", start])

    def connect(self, profile, end):
        text = self.program.wait_for_file(profile / "WebDriverBiDiServer.json", end - time.monotonic(),
                                          lambda text: text.rstrip().endswith("}"))
        self.wire = wire.Wire(json.loads(text)["ws_port"], "/session", self.hear, PATIENCE)
        # The page's questions are the user's to answer.
        self.ask("session.new", PATIENCE, capabilities={"alwaysMatch": {"unhandledPromptBehavior": {
            kind: "ignore" for kind in ("alert", "beforeUnload", "confirm", "default", "file", "prompt")}}})
        self.ask("session.subscribe", PATIENCE,
                 events=["network.beforeRequestSent", "browsingContext.downloadEnd"])
        while True:
            contexts = self.ask("browsingContext.getTree", PATIENCE)["contexts"]
            pages = [c["context"] for c in contexts if c["url"] == self.opened]
            if pages:
                break
            if time.monotonic() > end:
                raise BrowserError(f"the browser has no page: {contexts}")
            time.sleep(POLL)
        self.context = pages[0]

    def ask(self, method, seconds, **parameters):
        return self.wire.ask(method, parameters, seconds)

    def hear(self, message):
        told_of = message["params"]
        if message["method"] == "network.beforeRequestSent":
            self.asked.append(told_of["request"]["url"])
        elif message["method"] == "browsingContext.downloadEnd":
            self.saved.append(told_of["filepath"] if told_of["status"] == "complete" else None)

    def navigate(self, url, seconds):
        self.ask("browsingContext.navigate", seconds, context=self.context, url=url, wait="complete")

    def touch(self, *places):
        """A finger comes down at the first place and goes at the last, CSS pixels."""
        moves = [{"type": "pointerMove", "x": round(x), "y": round(y)} for x, y in places]
        finger = {"type": "pointer", "id": "finger", "parameters": {"pointerType": "touch"},
                  "actions": [moves[0], {"type": "pointerDown", "button": 0}, *moves[1:],
                              {"type": "pointerUp", "button": 0}]}
        with told():
            self.ask("input.performActions", PATIENCE, context=self.context, actions=[finger])

    def run_script(self, source, seconds):
        done = self.ask("script.evaluate", seconds, expression=source, target={"context": self.context},
                        awaitPromise=True)
        if done["type"] == "exception":
            raise BrowserError(f"the page threw {done['exceptionDetails']['text']}")
        return done["result"].get("value")
