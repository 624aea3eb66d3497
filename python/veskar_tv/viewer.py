"""The viewer: sees and hears the TV, and has its remote control."""

import pathlib

from .tv import PATIENCE, NotSeen, TvFailed, line_with, read, until

_IN_VAIN = 3


class Viewer:
    def __init__(self, tv):
        self._tv = tv

    def press(self, *keys, timeout=PATIENCE):
        """Each key when somebody takes it: "Return", "Back", "Down", "7". NotSeen when nobody does in time."""
        __tracebackhide__ = True
        self._remote("press", "--timeout", timeout, *keys)

    def wait(self, what, ui_id=None, timeout=PATIENCE):
        """Until a screen is "shown", all are "gone", or the display is "still". With an id, only that screen counts."""
        __tracebackhide__ = True
        self._remote("wait", f"--{what}", "--timeout", timeout, *_only(ui_id))

    def expect(self, pattern, ui_id=None, timeout=PATIENCE):
        """Until a screen is shown that says this (a regular expression); with an id, only that screen counts."""
        __tracebackhide__ = True
        self._remote("wait", "--text", pattern, "--timeout", timeout, *_only(ui_id))

    def hear(self, pattern, timeout=PATIENCE):
        """Until the voice guide has said a sentence that the regular expression matches somewhere: the sentence."""
        __tracebackhide__ = True
        return line_with(pattern, self._tv.voice, lambda: f"{pattern!r} was not said, but {self.heard()}", timeout)

    def heard(self):
        """All sentences of the voice guide since the TV was started."""
        return read(self._tv.voice).splitlines()

    def shot(self, name="screen.png"):
        """Saves exactly what is on the screen: the file's path, in the TV's folder where the name is relative."""
        file = pathlib.Path(self._tv.folder, name)
        self._remote("shot", file)
        return file

    def changed(self, picture, name="screen.png", timeout=PATIENCE):
        """Waits until the screen looks different from the picture and nothing moves, and saves it: the file's path."""
        __tracebackhide__ = True
        old = picture.read_bytes()
        until(lambda: self.shot(name).read_bytes() != old, lambda: f"the screen still looks as in {picture}", timeout)
        self.wait("still", timeout=timeout)
        return self.shot(name)

    def _remote(self, *words):
        __tracebackhide__ = True
        done = self._tv.run("veskar-remote", *words)
        if done.returncode == _IN_VAIN:
            raise NotSeen(done.stderr.strip().removeprefix("veskar-remote: "))
        if done.returncode != 0:
            raise TvFailed(done.stderr.strip())


def _only(ui_id):
    return [] if ui_id is None else ["--ui-id", ui_id]
