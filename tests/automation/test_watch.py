"""A TV is seen and used through a browser's connection: websocket, token, the viewer's protocol (RFB 3.8)."""

import pathlib
import socket
import struct
import subprocess
import urllib.parse
import urllib.request

import pytest

ROOT = pathlib.Path(__file__).parents[2]


class WebSocket:
    """The client's side, as far as a viewer needs it: binary frames."""

    def __init__(self, url):
        address = urllib.parse.urlsplit(url)
        self._socket = socket.create_connection((address.hostname, address.port), timeout=20)
        self._stream = self._socket.makefile("rb")
        self._socket.sendall((f"GET {address.path}?{address.query} HTTP/1.1\r\nHost: {address.netloc}\r\n"
                              "Upgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
                              "Sec-WebSocket-Protocol: binary\r\n"
                              "Sec-WebSocket-Key: SGVsbG8sIHdvcmxkIQ==\r\n\r\n").encode())
        if b" 101 " not in self._stream.readline():
            raise ConnectionRefusedError
        while self._stream.readline().strip():
            pass

    def send(self, data):
        self._socket.sendall(bytes([0x82, 0x80 | len(data)]) + bytes(4) + data)  # masked with zeros

    def receive(self):
        """The content of the next frame; none when the connection has been closed."""
        head = self._stream.read(2)
        if len(head) < 2 or head[0] & 15 == 8:
            return b""
        length = {126: ">H", 127: ">Q"}.get(head[1])
        size = struct.unpack(length, self._stream.read(struct.calcsize(length)))[0] if length else head[1]
        return self._stream.read(size)


class Viewer:
    """What a VNC viewer does."""

    def __init__(self, url):
        self._socket = WebSocket(url)
        self._received = b""
        assert self._read(12) == b"RFB 003.008\n"
        self._socket.send(b"RFB 003.008\n")
        assert 1 in self._read(self._read(1)[0])
        self._socket.send(b"\x01")  # no password: the token is one
        assert self._read(4) == bytes(4)
        self._socket.send(b"\x01")
        self.width, self.height, name = struct.unpack(">HH16xI", self._read(24))
        self._read(name)
        self._socket.send(struct.pack(">BxHi", 2, 1, 0))  # pictures without compression

    def _read(self, count):
        while len(self._received) < count:
            more = self._socket.receive()
            assert more, "the connection was closed"
            self._received += more
        data, self._received = self._received[:count], self._received[count:]
        return data

    def press(self, *keys):
        for key in keys:
            for down in (1, 0):
                self._socket.send(struct.pack(">BBxxI", 4, down, key))

    def click(self, x, y):
        for buttons in (0, 1, 0):
            self._socket.send(struct.pack(">BBHH", 5, buttons, x, y))

    def colours(self):
        """How many different pixels the picture has."""
        self._socket.send(struct.pack(">BBHHHH", 3, 0, 0, 0, self.width, self.height))
        kind, rectangles = struct.unpack(">BxH", self._read(4))
        assert kind == 0
        seen = set()
        for _ in range(rectangles):
            width, height, encoding = struct.unpack(">4xHHi", self._read(12))
            assert encoding == 0
            seen.update(struct.unpack(f"{width * height}I", self._read(width * height * 4)))
        return len(seen)


@pytest.fixture
def watched(request):
    """A TV that shows one screen, of the test's parameter: the process, and the address when the screen is there."""
    script = f"veskar-mw {request.param} & veskar-remote wait --shown --still && echo $VESKAR_WATCH_URL && wait"
    command = [ROOT / "host/tools/veskar-watch", "--port", "0", "--size=1280x720", "--", "sh", "-c", script]
    with subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True) as process:
        yield process, process.stdout.readline().strip()
        process.terminate()


def socket_of(url, token=None):
    address, path = url.removeprefix("http").split("/vnc.html", 1)
    return f"http{address}/websockify?token={token or path.rpartition('token%3D')[2]}"


@pytest.mark.parametrize("watched", ["pin"], indirect=True)
def test_a_pin_is_entered_in_a_viewer(watched):
    process, url = watched
    assert b"noVNC" in urllib.request.urlopen(url).read()
    with pytest.raises(ConnectionRefusedError):
        WebSocket(socket_of(url, "0" * 32))
    viewer = Viewer(socket_of(url))
    assert (viewer.width, viewer.height) == (1280, 720)
    assert viewer.colours() > 100
    viewer.press(*map(ord, "1234"))
    assert '"data":"1234"' in process.stdout.readline()


@pytest.mark.parametrize("watched", ["message --button=One --button=Two"], indirect=True)
def test_a_click_does_what_a_key_does(watched):
    process, url = watched
    viewer = Viewer(socket_of(url))
    viewer.click(840, 630)
    assert '"button":2' in process.stdout.readline()
