"""The television: started by veskar-tv in a folder of its own, ended with the object."""

import os
import pathlib
import re
import shutil
import subprocess
import time

PATIENCE = 20  # seconds until a wait is given up
_STARTER = pathlib.Path(__file__).parents[2] / "host/tools/veskar-tv"
_COLOUR = re.compile(r"\x1b\[[0-9;]*m")


class NotSeen(AssertionError):
    """What was waited for has not come in time."""


class TvFailed(RuntimeError):
    """The TV does not start, or a tool cannot do its work in it."""


def until(found, what, timeout=PATIENCE):
    """The first true result of `found()`; NotSeen with the text `what()` after `timeout` seconds."""
    __tracebackhide__ = True
    end = time.monotonic() + timeout
    while not (result := found()):
        if time.monotonic() > end:
            raise NotSeen(f"{what()} within {timeout:g} s")
        time.sleep(0.005)
    return result


def read(file):
    """The text of a log, without colours; empty while there is no such file."""
    return _COLOUR.sub("", file.read_text(errors="replace")) if file.exists() else ""


def line_with(pattern, file, what, timeout):
    """Waits for the first line of the file that the regular expression matches somewhere: the line."""
    __tracebackhide__ = True
    line = re.compile(f"^.*(?:{pattern}).*$", re.MULTILINE)
    return until(lambda: line.search(read(file)), what, timeout)[0]


class Program:
    """A program inside the TV that stays. What it prints, on both outputs, is kept in a file."""

    def __init__(self, words, environment, file):
        self._file = file
        with file.open("w") as output:
            self._process = subprocess.Popen(words, env=environment, stdin=subprocess.DEVNULL, stdout=output,
                                             stderr=subprocess.STDOUT)

    def expect(self, pattern, timeout=PATIENCE):
        """Waits until it has printed a line that the regular expression matches somewhere, and returns the line."""
        __tracebackhide__ = True
        return line_with(pattern, self._file, lambda: f"no {pattern!r} in: {read(self._file)!r}", timeout)

    def end(self):
        self._process.terminate()
        self._process.wait(PATIENCE)


class TV:
    """A context manager. Several TVs at once, in one process or in many, do not disturb each other.

    `options` are those of veskar-tv: "--size", "1280x720" for example. `folder` must exist; pictures, the log and what
    the voice guide says are files in it, and stay.
    """

    def __init__(self, folder, *options):
        self.folder = pathlib.Path(folder)
        self.log = self.folder / "tv.log"
        self.voice = self.folder / "voice.txt"
        self._options = options
        self._programs = []

    def __enter__(self):
        starter = _STARTER if _STARTER.exists() else shutil.which("veskar-tv")
        if starter is None:
            raise TvFailed("there is no veskar-tv")
        # The command inside the TV tells its environment and then waits for the end of its input, which also comes when
        # this process dies: no TV stays behind.
        command = [starter, "--log", self.log, *self._options, "--", "sh", "-c", r"env -0; printf '\0'; cat"]
        with (self.folder / "start.log").open("w") as errors:
            self._process = subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=errors,
                                             env={**os.environ, "VESKAR_VOICE_FILE": str(self.voice)})
        variables = b""
        while not variables.endswith(b"\0\0"):
            if not (more := os.read(self._process.stdout.fileno(), 65536)):
                self.__exit__()
                raise TvFailed(read(self.folder / "start.log"))
            variables += more
        self.environment = dict(item.split("=", 1) for item in os.fsdecode(variables).split("\0") if item)
        return self

    def __exit__(self, *_):
        for program in self._programs:
            program.end()
        self._process.stdin.close()
        self._process.wait()
        self._process.stdout.close()

    def popen(self, *words, **how):
        """A subprocess.Popen inside the TV, with its tools on PATH."""
        return subprocess.Popen([str(word) for word in words], env=self.environment, text=True, **how)

    def run(self, *words, **how):
        """The subprocess.CompletedProcess of a command inside the TV, whatever its status; outputs are texts."""
        return subprocess.run([str(word) for word in words], env=self.environment, text=True, capture_output=True,
                              **how)

    def start(self, *words):
        """A Program inside the TV, which ends with the TV at the latest."""
        self._programs.append(Program(words, self.environment, self.folder / f"program-{len(self._programs)}.log"))
        return self._programs[-1]

    def stand_for(self, application):
        """Plays another application of the TV, "org.tizen.wizard" for example; prints what it is asked."""
        program = self.start("veskar-services", "--own", application)
        program.expect("stands ready")
        return program

    def set(self, key, value):
        """Changes a setting or feature flag, as veskar-setting does."""
        done = self.run("veskar-setting", "set", key, str(value))
        if done.returncode != 0:
            raise TvFailed(done.stderr.strip())
