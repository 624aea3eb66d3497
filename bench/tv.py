"""The TV in which the benchmarks run: its remote control, and its bus with this program as the middleware."""

import os
import random
import select
import socket
import time
from collections import namedtuple

from jeepney import DBusAddress, MessageType, new_method_call, new_method_return
from jeepney.io.blocking import open_dbus_connection

Moment = namedtuple("Moment", "time kind words")
Answer = namedtuple("Answer", "time ui_id kind button")

PATIENCE = 60  # seconds, for whatever has to happen


def now():
    """Nanoseconds of the clock that the compositor uses too."""
    return time.clock_gettime_ns(time.CLOCK_MONOTONIC)


class Remote:
    """The remote control's socket, and what the compositor has recorded (host/compositor/picture/Moments.h)."""

    def __init__(self):
        self._socket = socket.socket(socket.AF_UNIX)
        self._socket.connect(os.environ["VESKAR_REMOTE_SOCKET"])
        self._lines = self._socket.makefile()
        self.ask("moments")  # from now on, they are recorded
        self.ask(f"shot {os.environ['VESKAR_TV_DIR']}/bench.png")  # draws a frame
        self.moments = []
        self.bare = self.forget()

    def ask(self, command):
        self._socket.sendall(command.encode() + b"\n")
        lines = []
        while not (line := self._lines.readline()).startswith(("ok", "error")):
            if not line:
                raise RuntimeError("the compositor has ended")
            lines.append(line.strip())
        if line.startswith("error"):
            raise RuntimeError(f"{command}: {line.strip()}")
        return lines

    def forget(self):
        """What happened until now is of no interest, but for the hash of the display, which is returned."""
        pictures = self.pictures()
        if pictures:
            self._picture_before = pictures[-1]
        self.moments = []
        return self._picture_before

    def look(self):
        """Adds what has happened since to `moments`."""
        for line in self.ask("moments"):
            if line.startswith("lost"):
                raise RuntimeError("the compositor had no room for all moments")
            stamp, kind, *words = line.split()
            self.moments.append(Moment(int(stamp), kind, words))

    def wait(self, find, what):
        """The first result of `find(moments)` that is not None."""
        end = now() + PATIENCE * 10**9
        while now() < end:
            self.look()
            found = find(self.moments)
            if found is not None:
                return found
            # Of no fixed length: what is measured must not fall into step with it.
            time.sleep(random.uniform(0.015, 0.03))
        raise RuntimeError(f"in vain: {what}")

    def first_frame(self, since, pid=None):
        """The first content after `since`, of a window of any process or of this one, that changed the display."""
        def find(moments):
            picture, content = self._picture_before, None
            for moment in moments:
                if moment.kind == "frame":
                    if content and moment.words[0] != picture:
                        return content
                    picture = moment.words[0]
                elif moment.kind == "commit" and moment.time >= since and moment.words[1] == "content":
                    if pid in (None, int(moment.words[0])):
                        content = moment
            return None
        return self.wait(find, "the first frame")

    def press(self, key):
        """Returns when the compositor injected it."""
        self.ask(f"press {key}")

        def find(moments):
            keys = [moment.time for moment in moments if moment.kind == "key"]
            return keys[-1] if keys else None
        return self.wait(find, "the key")

    def pictures(self):
        """The hash of each frame since forget()."""
        self.look()
        return [moment.words[0] for moment in self.moments if moment.kind == "frame"]


def path_of(name):
    return "/" + name.replace(".", "/").replace("-", "_")


class Bus:
    """A connection that owns the middleware's name. Answers are stamped when their bytes arrive."""

    def __init__(self):
        self._connection = open_dbus_connection("SESSION")
        self.answers = []
        self._replies = {}
        self.daemon("RequestName", "su", ("org.tizen.veskar-middleware", 4))

    def send(self, name, interface, method, signature=None, body=(), path=None):
        """Returns when it was sent, and the number by which its reply is known."""
        address = DBusAddress(path or path_of(name), name, interface)
        message = new_method_call(address, method, signature, body)
        serial = next(self._connection.outgoing_serial)
        data = message.serialise(serial=serial)
        sent = now()
        self._connection.sock.sendall(data)
        return sent, serial

    def reply(self, serial):
        """Waits for the reply; its body, or None for an error."""
        end = now() + PATIENCE * 10**9
        while serial not in self._replies:
            if not self._receive(1) and now() > end:
                raise RuntimeError("a call has no reply")
        message = self._replies.pop(serial)
        return None if message.header.message_type == MessageType.error else message.body

    def daemon(self, method, signature=None, body=()):
        _, serial = self.send("org.freedesktop.DBus", "org.freedesktop.DBus", method, signature, body,
                              "/org/freedesktop/DBus")
        return self.reply(serial)

    def process_of(self, name):
        """0 when nobody owns the name."""
        owner = self.daemon("GetConnectionUnixProcessID", "s", (name,))
        return owner[0] if owner else 0

    def request(self, name, values):
        """A request of the application. When it was sent, and the number of its reply."""
        return self.send(name, "org.tizen.Application1", "AppControl", "a{sv}", (values,))

    def wait_for_answer(self):
        end = now() + PATIENCE * 10**9
        while not self.answers:
            if not self._receive(1) and now() > end:
                raise RuntimeError("no answer came")
        return self.answers.pop(0)

    def _receive(self, seconds):
        if not select.select([self._connection.sock], [], [], seconds)[0]:
            return False
        stamp = now()
        timeout = seconds
        while True:
            try:
                message = self._connection.receive(timeout=timeout)
            except TimeoutError:
                return True
            self._take(message, stamp)
            timeout = 0

    def _take(self, message, stamp):
        header = message.header
        if header.message_type == MessageType.method_call:
            if header.fields.get(3) == "SendResponse":
                ui_id, _, kind, button, _, _ = message.body
                self.answers.append(Answer(stamp, ui_id, kind, button))
            self._connection.send(new_method_return(message))
        elif header.message_type in (MessageType.method_return, MessageType.error):
            self._replies[header.fields[5]] = message
