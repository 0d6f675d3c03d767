"""Commands to a browser and its answers, as JSON over a WebSocket of this machine."""
import json
import time

import websocket

CALL_SHOWN = 300  # letters of a command in a failure


class WireError(Exception):
    """No answer in time, an answer that says what is wrong, or nobody there any more."""


class Wire:
    """ask() sends a command and waits for its answer; what the browser tells on its own in the
    meantime goes to `heard`, a procedure that takes the message. Nothing is read between two
    commands, so `heard` runs in the thread that asks."""

    def __init__(self, port, path, heard, seconds):
        self.heard = heard
        self.number = 0
        try:
            self.socket = websocket.create_connection(f"ws://127.0.0.1:{port}{path}", seconds,
                                                      suppress_origin=True)
        except (OSError, websocket.WebSocketException) as error:
            raise WireError(f"no browser listens at port {port}: {error}") from error

    def close(self):
        self.socket.shutdown()

    def ask(self, method, params, seconds, **more):
        """The result of a command; `more` stands beside its parameters."""
        number = self.tell(method, params, **more)
        end = time.monotonic() + seconds
        while True:
            try:
                message = json.loads(self.receive(end))
            except websocket.WebSocketTimeoutException:
                shown = json.dumps(params)[:CALL_SHOWN]
                raise WireError(f"no answer in {seconds:g} s to {method} {shown}") from None
            if message.get("id") == number:
                break
            if "method" in message:  # else the late answer to a command that was given up
                self.heard(message)
        if "error" in message:
            error = message["error"]
            words = message.get("message") or error.get("message")
            raise WireError(f"{method}: {words}")
        return message["result"]

    def tell(self, method, params, **more):
        """Sends a command whose answer nobody waits for; its number."""
        self.number += 1
        try:
            self.socket.settimeout(None)
            self.socket.send(json.dumps({"id": self.number, "method": method, "params": params, **more}))
        except (OSError, websocket.WebSocketException) as error:
            raise WireError(f"the browser has hung up: {error}") from error
        return self.number

    def receive(self, end):
        """The next message, whole."""
        left = end - time.monotonic()
        if left <= 0:
            raise websocket.WebSocketTimeoutException
        self.socket.settimeout(left)
        try:
            return self.socket.recv()
        except websocket.WebSocketTimeoutException:
            raise
        except (OSError, websocket.WebSocketException) as error:
            raise WireError(f"the browser has hung up: {error}") from error
