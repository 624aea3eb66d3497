"""Records a scenario: python3 -m veskar_tv.record FILE.py COMMAND..., inside a TV. ./tv record starts both.

While the command runs (a shell, usually), the requests that pass the bus and the keys that the application takes are
written down. What comes out is a pytest test that sends the same requests, presses the same keys when somebody takes
them, and expects the same answers. Needs Debian's python3-jeepney.
"""

import json
import os
import pathlib
import socket
import subprocess
import sys
import threading
import time
from collections import namedtuple

from jeepney import DBusAddress, HeaderFields, MessageType, new_signal
from jeepney.bus_messages import Monitoring
from jeepney.io.blocking import open_dbus_connection
from jeepney.wrappers import unwrap_msg

from .scenario import Scenario

Event = namedtuple("Event", "time what values")

_DESK = "org.tizen.VesKarDesk1"
_SCREEN = "org.tizen.Screen1"
_END = "org.tizen.VesKarRecorder1"
_MONITORED = [f"interface='{_DESK}'", "type='method_return',sender='org.tizen.veskar-middleware'",
              "type='error',sender='org.tizen.veskar-middleware'", f"interface='{_SCREEN}'",
              f"interface='org.freedesktop.DBus.Properties',member='PropertiesChanged',arg0='{_SCREEN}'",
              f"interface='{_END}'"]
_PAD = "veskar-numpad"  # presses the digits that the viewer chooses: those are recorded, not the way to them


def _plain(value):
    """A value of the bus without its signature."""
    return value[1] if isinstance(value, tuple) else value


class _Bus(threading.Thread):
    """Listens to the bus until it hears the end."""

    def __init__(self, events):
        super().__init__(daemon=True)
        self._events = events
        self._connection = open_dbus_connection("SESSION")
        unwrap_msg(self._connection.send_and_get_reply(Monitoring().BecomeMonitor(_MONITORED)))

    def run(self):
        while True:
            message = self._connection.receive()
            fields = message.header.fields
            if fields.get(HeaderFields.interface) == _END:
                return
            what, values = self._read(message.header, fields, message.body)
            if what:
                self._events.append(Event(time.monotonic_ns(), what, values))

    def end(self):
        with open_dbus_connection("SESSION") as connection:
            connection.send(new_signal(DBusAddress("/", interface=_END), "End"))
            self.join()

    @staticmethod
    def _read(header, fields, body):
        member = fields.get(HeaderFields.member)
        if header.message_type == MessageType.method_call:
            request = {key: _plain(value) for key, value in body[-1].items()}
            return member.lower(), ((fields[HeaderFields.sender], header.serial), request)
        if header.message_type == MessageType.method_return:
            return "reply", ((fields[HeaderFields.destination], fields[HeaderFields.reply_serial]), body)
        if header.message_type == MessageType.error:
            return "refusal", ((fields[HeaderFields.destination], fields[HeaderFields.reply_serial]), body)
        if member == "Shown":
            return "shown", body
        if member == "PropertiesChanged" and "Text" in body[1]:
            return "text", _plain(body[1]["Text"])
        return None, None


class _Keys(threading.Thread):
    """Asks the compositor for each key that a program takes."""

    def __init__(self, events):
        super().__init__(daemon=True)
        self._events = events
        self._socket = self._connect()

    def run(self):
        with self._socket.makefile("rw") as lines:
            self._ask(lines)
            for line in lines:
                if line.startswith("ok"):
                    self._ask(lines)
                elif line.startswith(" "):
                    stamp, key, program = line.split()
                    if not program.endswith("/" + _PAD):
                        self._events.append(Event(int(stamp), "key", key.removeprefix("XF86")))

    def end(self):
        # When the compositor has answered this, it has sent all keys before.
        with self._connect() as other, other.makefile("rw") as lines:
            print("keys", file=lines, flush=True)
            while not lines.readline().startswith("ok"):
                pass
        self._socket.shutdown(socket.SHUT_RD)
        self.join()

    @staticmethod
    def _ask(lines):
        print("taken", file=lines, flush=True)

    @staticmethod
    def _connect():
        connection = socket.socket(socket.AF_UNIX)
        connection.connect(os.environ["VESKAR_REMOTE_SOCKET"])
        return connection


def record(command):
    """Runs the command and returns what has happened meanwhile, in order."""
    events = []
    listeners = [_Bus(events), _Keys(events)]
    for listener in listeners:
        listener.start()
    try:
        subprocess.run(command, check=False)
    except KeyboardInterrupt:
        pass  # it is the command's, which has ended
    for listener in listeners:
        listener.end()
    return sorted(events, key=lambda event: event.time)


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    file = pathlib.Path(sys.argv[1])
    kinds = json.loads(subprocess.run(["veskar-mw", "--kinds"], check=True, capture_output=True).stdout)
    scenario = Scenario(file.stem, kinds)
    last = None
    for event in record(sys.argv[2:]):
        scenario.pause = (event.time - (last or event).time) / 1e9
        getattr(scenario, event.what)(event.values)
        last = event
    file.write_text(scenario.program())
    print(f"{file}: {scenario.counts()}; pytest-3 -p veskar_tv.plugin {file} plays it back", file=sys.stderr)


if __name__ == "__main__":
    main()
