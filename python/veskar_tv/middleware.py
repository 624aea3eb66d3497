"""The middleware: sends requests with veskar-mw and gets the viewer's answers."""

import dataclasses
import itertools
import json
import subprocess

from .tv import PATIENCE, TvFailed, read, until

_REFUSED = 64


class Refused(ValueError):
    """There is no such request, or the application has refused it. The text says why."""


class NoAnswer(AssertionError):
    """No answer has come in time, or the application has gone away without one."""


@dataclasses.dataclass(frozen=True)
class Answer:
    """What the viewer did; docs/requests.md explains the values."""

    result: str
    """answered, back or closed."""
    button: int = 0
    item: int = 0
    data: str = ""
    label: str | None = None
    """The text of the button."""
    row: str | None = None
    """The text of the row."""
    ids: tuple[int, int] = dataclasses.field(default=(0, 0), compare=False)
    """The screen's ui id and source id."""

    @classmethod
    def of(cls, line):
        """From one line of veskar-mw."""
        values = json.loads(line)
        return cls(values["result"], values["button"], values["item"], values["data"], values.get("label"),
                   values.get("row"), (values["uiId"], values["sourceId"]))


class Request:
    """A screen that has been asked for."""

    def __init__(self, process, ui_id):
        self.ui_id = ui_id
        self._process = process
        self._printed = None

    def answer(self, timeout=PATIENCE):
        """Waits for the Answer. Raises NoAnswer or Refused. It may be asked for several times."""
        __tracebackhide__ = True
        if self._printed is None:
            try:
                self._printed = self._process.communicate(timeout=timeout)
            except subprocess.TimeoutExpired:
                raise NoAnswer(f"screen {self.ui_id} is not answered within {timeout:g} s") from None
        lines, complaint = self._printed
        if self._process.returncode == _REFUSED:
            raise Refused(complaint.strip())
        if not lines:
            raise NoAnswer(complaint.strip())
        return Answer.of(lines)

    def write(self, line):
        """One more line for a request that reads its input, such as a progress with `percent_from="-"`."""
        self._process.stdin.write(f"{line}\n")
        self._process.stdin.flush()

    def end_input(self):
        self._process.stdin.close()
        self._process.stdin = None  # communicate() would write to it

    def is_answered(self):
        return self._process.poll() is not None

    def kill(self):
        """Nobody waits for the answer any more."""
        self._process.kill()
        self._process.communicate()


class Middleware:
    """`ask`, `tell` and `menu` take the kinds and options of veskar-mw as they are.

    Keywords are its options: `title="Card"` is `--title=Card`, `header=True` is `--header`, a list repeats its option,
    and `no_close` is `--no-close`. Requests arrive in the order of the calls.
    """

    def __init__(self, tv):
        self._tv = tv
        self._ids = itertools.count(1)
        self._asked = []

    def ask(self, kind, *words, ui_id=None, **options):
        """Asks for a screen and does not wait: a Request. Without `ui_id`, each screen gets the next one, from 1."""
        ui_id = next(self._ids) if ui_id is None else ui_id
        sent = self._sent()
        process = self._tv.popen(*_command(kind, words, {"ui_id": ui_id, **options}),
                                 stdin=subprocess.PIPE if _reads_input(options) else subprocess.DEVNULL,
                                 stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self._asked.append(Request(process, ui_id))
        # So that the next request comes after this one.
        until(lambda: self._asked[-1].is_answered() or self._sent() > sent, lambda: f"{kind} was not sent")
        return self._asked[-1]

    def tell(self, kind, *words, **options):
        """Returns when the application has taken the request; nobody waits for an answer."""
        __tracebackhide__ = True
        self._run(kind, *words, no_wait=True, **options)

    def close(self, ui_id=0):
        """Closes the screen with this id; without one, whichever is shown."""
        self.tell("close", ui_id=ui_id)

    def menu(self, position):
        """Opens a menu: what the application asked for because of that, a dict for each line of veskar-mw."""
        return [json.loads(line) for line in self._run("menu", position).splitlines()]

    def end(self):
        for request in self._asked:
            request.kill()

    def _run(self, kind, *words, **options):
        __tracebackhide__ = True
        done = self._tv.run(*_command(kind, words, options))
        if done.returncode == _REFUSED:
            raise Refused(done.stderr.strip())
        if done.returncode != 0:
            raise TvFailed(done.stderr.strip())
        return done.stdout

    def _sent(self):
        return read(self._tv.log).count("veskar-services: request ")


def _reads_input(options):
    return any(name.endswith("_from") and value == "-" for name, value in options.items())


def _command(kind, words, options):
    return ["veskar-mw", kind, *words, *(word for name, value in options.items() for word in _option(name, value))]


def _option(name, value):
    option = "--" + name.replace("_", "-")
    if value is True:
        return [option]
    values = [] if value is False or value is None else value if isinstance(value, (list, tuple)) else [value]
    return [f"{option}={one}" for one in values]
