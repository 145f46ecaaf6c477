# SPDX-License-Identifier: MIT
"""A print server with faults: stands before a real one and does, at one message, what it is told.

A message is a question with its answer, over whichever connection, counted from arm() on. The server behind has
always been asked when an answer goes wrong: what it was told to do, it does.
"""
import os
import random
import select
import socket
import struct
import threading
import time

# At a byte of the question; at a byte of the answer, "dead" for good; in place of the answer.
QUESTION = ("cut", "deaf")
ANSWER = ("silent", "dead", "drip", "reset", "close")
INSTEAD = ("garbage", "hostile", "endless", "repeat", "restart")
KINDS = QUESTION + ANSWER + INSTEAD


class Gone(Exception):
    pass


class Line:
    """A socket that is read by heads and bodies of HTTP."""

    def __init__(self, end):
        self.end = end
        self.left = b""

    def more(self):
        try:
            piece = self.end.recv(65536)
        except OSError:
            piece = b""
        self.left += piece
        return bool(piece)

    def head(self):
        while b"\r\n\r\n" not in self.left:
            if len(self.left) > 65536 or not self.more():
                raise Gone
        head, self.left = self.left.split(b"\r\n\r\n", 1)
        return head + b"\r\n\r\n"

    def take(self, count):
        while len(self.left) < count:
            if not self.more():
                raise Gone
        piece, self.left = self.left[:count], self.left[count:]
        return piece

    def until(self, mark):
        while mark not in self.left:
            if not self.more():
                raise Gone
        return self.take(self.left.index(mark) + len(mark))

    def body(self, head, is_answer):
        """The pieces of the body, as they come."""
        fields = dict(line.split(b":", 1) for line in head.lower().split(b"\r\n")[1:] if b":" in line)
        if b"chunked" in fields.get(b"transfer-encoding", b""):
            while True:
                size = self.until(b"\r\n")
                piece = self.take(int(size.split(b";")[0], 16) + 2)
                yield size + piece
                if len(piece) == 2:
                    return
        elif b"content-length" in fields:
            left = int(fields[b"content-length"])
            while left:
                piece = self.take(min(left, 65536))
                left -= len(piece)
                yield piece
        elif is_answer and head.split(b" ")[1:2] not in ([b"204"], [b"304"]):
            while self.left or self.more():
                yield self.take(len(self.left))


def hostile(answer, dice):
    """An answer of HTTP's that is well made, with one of IPP's that is not."""
    body = bytearray(answer.split(b"\r\n\r\n", 1)[1]) or bytearray(b"\x02\x00\x00\x00\x00\x00\x00\x01")
    text = lambda tag, name, value: struct.pack(">BH", tag, len(name)) + name + struct.pack(">H", len(value)) + value
    start = b"\x02\x00\x00\x00\x00\x00\x00\x01\x01" + text(0x47, b"attributes-charset", b"utf-8") + \
        text(0x48, b"attributes-natural-language", b"en")
    way = dice.randrange(5)
    if way == 0:
        for _ in range(dice.randrange(1, 16)):
            body[dice.randrange(len(body))] = dice.randrange(256)
    elif way == 1:
        body = start + b"\x04" + text(0x42, b"printer-name", b"x" * 0x7fff) * 400 + b"\x03"
    elif way == 2:
        body = start + b"\x04" + (text(0x34, b"media-col", b"") + text(0x4a, b"", b"a")) * 5000 + b"\x03"
    elif way == 3:
        evil = "\x1b]0;x\x07<img src='/x'>\u202e\n%s%n\x00".encode() * 40
        body = start + b"\x04" + text(0x42, b"printer-name", evil) + text(0x41, b"printer-info", evil) + \
            text(0x44, b"printer-state-reasons", evil) + text(0x21, b"printer-state", b"\x7f\xff\xff\xff") + \
            text(0x21, b"job-id", b"\xff\xff\xff\xff") + b"\x03"
    else:
        body = start + b"\x04" + struct.pack(">BH", 0x42, 0xffff) + b"short"
    return b"HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: %d\r\n\r\n" % len(body) + bytes(body)


class FaultServer:
    def __init__(self, behind, restart=lambda: None, tcp=False, folder="/tmp"):
        """`behind` is the real server's socket; `restart` ends it and starts it again."""
        self.behind = behind
        self.restart = restart
        self.lock = threading.Lock()
        self.arm(None)
        if tcp:
            self.listener = socket.create_server(("127.0.0.1", 0))
            self.address = "127.0.0.1:%d" % self.listener.getsockname()[1]
        else:
            self.address = os.path.join(folder, "faults-%d-%d.sock" % (os.getpid(), id(self)))
            self.listener = socket.socket(socket.AF_UNIX)
            self.listener.bind(self.address)
            self.listener.listen(64)
        self.open = True
        threading.Thread(target=self.accept, daemon=True).start()

    def arm(self, fault, seed=0):
        """`fault` is (message, kind), or nothing: then it only counts."""
        with self.lock:
            self.fault = fault
            self.dice = random.Random(seed)
            self.messages = 0
            self.fired = False

    def close(self):
        self.open = False
        self.listener.close()
        if self.address.startswith("/"):
            os.unlink(self.address)

    def accept(self):
        while self.open:
            try:
                client, _ = self.listener.accept()
            except OSError:
                return
            threading.Thread(target=self.serve, args=(client,), daemon=True).start()

    def serve(self, client):
        behind = None
        try:
            line = Line(client)
            while True:
                head = line.head()
                behind = behind or Line(self.connect())
                self.converse(line, head, behind, self.next())
        except (Gone, OSError, ValueError):
            pass
        for end in (client, behind and behind.end):
            if end:
                end.close()

    def connect(self):
        end = socket.socket(socket.AF_UNIX)
        end.connect(self.behind)
        return end

    def next(self):
        with self.lock:
            self.messages += 1
            if self.fired and self.fault and self.fault[1] == "dead":
                return "dead"
            if not self.fault or self.fault[0] != self.messages:
                return None
            self.fired = True
            return self.fault[1]

    def converse(self, line, head, behind, kind):
        at = self.dice.randrange(1, 400)
        self.ask(line, head, behind, kind, at)
        answer = behind.head()
        while answer.split(b" ")[1].startswith(b"1"):
            answer = behind.head()
        pieces = behind.body(answer, True)
        if not kind:
            line.end.sendall(answer)
            for piece in pieces:
                line.end.sendall(piece)
            return
        self.misbehave(line, answer + b"".join(pieces), kind, at)

    def ask(self, line, head, behind, kind, at):
        behind.end.sendall(head)
        if b"100-continue" in head.lower():
            line.end.sendall(b"HTTP/1.1 100 Continue\r\n\r\n")
        passed = len(head)
        for piece in line.body(head, False):
            passed += len(piece)
            if kind in QUESTION and passed > at:
                if kind == "cut":
                    self.reset(line)
                self.wait(line)
            behind.end.sendall(piece)

    def reset(self, line):
        line.end.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
        raise Gone

    def wait(self, line):
        """Nothing more is said, and nothing read, until the client leaves."""
        poll = select.poll()
        poll.register(line.end, select.POLLRDHUP)
        while self.open and not poll.poll(200):
            pass
        raise Gone

    def misbehave(self, line, answer, kind, at):
        client = line.end
        at = min(at, len(answer) - 1)
        if kind in ANSWER:
            client.sendall(answer[:at] if self.dice.randrange(3) else b"")
            if kind in ("silent", "dead"):
                self.wait(line)
            for byte in answer[at:] if kind == "drip" else b"":
                client.sendall(bytes([byte]))
                time.sleep(1)
            if kind == "reset":
                self.reset(line)
        elif kind == "garbage":
            client.sendall(self.dice.randbytes(self.dice.randrange(1, 5000)))
        elif kind == "hostile":
            client.sendall(hostile(answer, self.dice))
            return
        elif kind == "endless":
            client.sendall(b"HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nTransfer-Encoding: chunked\r\n\r\n")
            while self.open:
                client.sendall(b"8000\r\n" + bytes(0x8000) + b"\r\n")
        elif kind == "repeat":
            client.sendall(answer + answer)
            return
        elif kind == "restart":
            self.restart()
        raise Gone
