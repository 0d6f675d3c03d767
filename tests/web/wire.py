"""Commands to a browser and its answers, as JSON over a WebSocket of this machine."""
import base64
import json
import os
import socket
import time

TEXT, CLOSE, PING, PONG = 1, 8, 9, 10  # kinds of frames
LONGEST_HEAD = 1 << 16
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
        self.waiting = bytearray()  # bytes of a frame that has not come whole
        self.parts = b""  # of a message that comes in several frames
        end = time.monotonic() + seconds
        try:
            self.socket = socket.create_connection(("127.0.0.1", port), seconds)
        except OSError as error:
            raise WireError(f"no browser listens at port {port}: {error}") from error
        self.socket.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
        key = base64.b64encode(os.urandom(16)).decode()
        self.socket.sendall((f"GET {path} HTTP/1.1\r\nHost: 127.0.0.1:{port}\r\n"
                             "Upgrade: websocket\r\nConnection: Upgrade\r\n"
                             f"Sec-WebSocket-Key: {key}\r\nSec-WebSocket-Version: 13\r\n\r\n").encode())
        try:
            while b"\r\n\r\n" not in self.waiting and len(self.waiting) < LONGEST_HEAD:
                self.read_more(end)
        except TimeoutError:
            raise WireError(f"no answer in {seconds:g} s at port {port}") from None
        head, _, rest = bytes(self.waiting).partition(b"\r\n\r\n")
        if b" 101 " not in head.split(b"\r\n")[0]:
            raise WireError(f"the browser does not talk: {head[:CALL_SHOWN]!r}")
        self.waiting = bytearray(rest)

    def close(self):
        self.socket.close()

    def ask(self, method, params, seconds, **more):
        """The result of a command; `more` stands beside its parameters."""
        number = self.tell(method, params, **more)
        end = time.monotonic() + seconds
        while True:
            try:
                message = json.loads(self.receive(end))
            except TimeoutError:
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
        self.send(TEXT, json.dumps({"id": self.number, "method": method, "params": params, **more}).encode())
        return self.number

    def send(self, kind, data):
        size = len(data)
        if size < 126:
            head = bytes([0x80 | kind, 0x80 | size])
        elif size < 1 << 16:
            head = bytes([0x80 | kind, 0x80 | 126]) + size.to_bytes(2, "big")
        else:
            head = bytes([0x80 | kind, 0x80 | 127]) + size.to_bytes(8, "big")
        mask = os.urandom(4)  # what a client sends must be masked
        whole = (mask * (size // 4 + 1))[:size]
        masked = (int.from_bytes(data, "big") ^ int.from_bytes(whole, "big")).to_bytes(size, "big")
        try:
            self.socket.settimeout(None)
            self.socket.sendall(head + mask + masked)
        except OSError as error:
            raise WireError(f"the browser has hung up: {error}") from error

    def receive(self, end):
        """The next message; TimeoutError if it has not come whole before `end`."""
        while True:
            is_last, kind, data = self.frame(end)
            if kind == PING:
                self.send(PONG, data)
            elif kind == CLOSE:
                raise WireError("the browser has hung up")
            elif kind != PONG:
                self.parts += data
                if is_last:
                    message, self.parts = self.parts, b""
                    return message

    def frame(self, end):
        self.need(2, end)
        size, start = self.waiting[1] & 0x7F, 2
        if size >= 126:
            start += 2 if size == 126 else 8
            self.need(start, end)
            size = int.from_bytes(self.waiting[2:start], "big")
        self.need(start + size, end)
        first, data = self.waiting[0], bytes(self.waiting[start:start + size])
        del self.waiting[:start + size]
        return bool(first & 0x80), first & 0x0F, data

    def need(self, count, end):
        while len(self.waiting) < count:
            self.read_more(end)

    def read_more(self, end):
        left = end - time.monotonic()
        if left <= 0:
            raise TimeoutError
        self.socket.settimeout(left)
        try:
            data = self.socket.recv(1 << 20)
        except TimeoutError:
            raise
        except OSError as error:
            raise WireError(f"the browser has hung up: {error}") from error
        if not data:
            raise WireError("the browser has hung up")
        self.waiting += data
