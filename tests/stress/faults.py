#!/usr/bin/env python3
"""Faults at random moments: what a waiting caller and the viewer get, as a table.

faults.py [--minutes N] [FAULT...]: each round is a TV of its own, in which one screen is asked for, the fault happens
up to half a second later, and after its end another screen must be shown and answered. A wait without an end is a
failure; the stacks of the TV's programs are printed then.
"""

import collections
import os
import pathlib
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("VESKAR_BUILD_DIR", ROOT / "build/release"))
LONG = 45  # seconds: nothing may take so long
APP, MW, BUS, COMPOSITOR = "veskar-app", "veskar-services", "dbus-daemon", "weston"


def pids(program=None):
    """Of this TV."""
    found = []
    for folder in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            variables = (folder / "environ").read_bytes().split(b"\0")
            name = (folder / "comm").read_text().strip()
        except OSError:
            continue
        if f"VESKAR_TV_DIR={os.environ['VESKAR_TV_DIR']}".encode() in variables and name in (program, program[:15]):
            found.append(int(folder.name))
    return found


def until(what, condition):
    deadline = time.monotonic() + LONG
    while not condition():
        if time.monotonic() > deadline:
            for program in (APP, MW):
                for pid in pids(program):
                    subprocess.run(["gdb", "-p", str(pid), "-batch", "-ex", "thread apply all bt"], check=False)
            sys.exit(f"not within {LONG} s: {what}")
        time.sleep(0.02)


def send(number, *programs):
    for program in programs:
        for pid in pids(program):
            os.kill(pid, number)


class Screen:
    """A message of which the answer is waited for."""

    def __init__(self, ui_id):
        self.ui_id = str(ui_id)
        self.process = subprocess.Popen(["veskar-mw", "--ui-id", self.ui_id, "message", "--title", "x", "--button", "OK"],
                                        stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)

    def ended(self):
        return self.process.poll() is not None

    def outcome(self):
        until("the caller hears of its request", self.ended)
        answers = self.process.stdout.read().splitlines()
        if len(answers) > 1 or (self.process.returncode in (0, 1, 2)) != (len(answers) == 1):
            sys.exit(f"answers {answers} with status {self.process.returncode}")
        return self.process.returncode

    def answer(self):
        """Presses Return once it is shown, and returns what the caller gets."""
        if FAULTS[sys.argv[2]].options:  # without a router nobody knows what is shown: until it is
            while not self.ended():
                run("press", "Return")
                time.sleep(0.1)
        else:
            shown("--ui-id", self.ui_id)
            run("press", "Return")
        return self.outcome()


def run(*words):
    return subprocess.run(["veskar-remote", *words], check=False).returncode == 0


def shown(*more):
    if not run("wait", "--shown", "--timeout", str(LONG), *more):
        sys.exit("nothing is shown")


def stop(program):
    """For two seconds."""
    send(signal.SIGSTOP, program)
    time.sleep(2)
    send(signal.SIGCONT, program)


def silent_middleware():
    """It hears nothing while the viewer answers; the screen goes nevertheless."""
    shown()
    send(signal.SIGSTOP, MW)
    if not (run("press", "Return") and run("wait", "--gone", "--timeout", "5")):
        sys.exit("the screen stays while the middleware is silent")
    send(signal.SIGCONT, MW)


def settings(change):
    for folder in ("VESKAR_SETTINGS_DIR", "VESKAR_MEMORY_DIR"):
        change(pathlib.Path(os.environ[folder]))


def garbage(folder):
    listed = subprocess.run(["veskar-setting", "list"], capture_output=True, check=True).stdout.decode(errors="replace")
    for key in (line.split()[0] for line in listed.splitlines() if "/" in line.split(" ")[0]):
        path = folder / key
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(random.randbytes(random.choice((0, 3, 5000, 100000))))


def unreadable(folder):
    shutil.rmtree(folder, ignore_errors=True)
    folder.write_text("no folder")


def set_clock_back():
    pathlib.Path(os.environ["XDG_RUNTIME_DIR"], "clock").write_text("-3600")


def fill_disk():
    """Whatever the application's folder has left while a screen is shown; and it is free again later."""
    shown()
    for pid in pids(APP):
        other = pathlib.Path(f"/proc/{pid}/root{os.environ['XDG_RUNTIME_DIR']}/small/other")
        with open(other, "wb", buffering=0) as file:
            try:
                while file.write(bytes(1 << 20)):
                    pass
            except OSError:
                pass
        refused = Screen(9).outcome()
        other.unlink()
        if refused not in (64, 69):
            sys.exit(f"a request was not refused on a full disk: {refused}")


IN_NAMESPACE = "exec unshare --user --map-current-user --keep-caps --mount sh -c '{} exec \"$@\"' sh "
FAKE_CLOCK = ("LD_PRELOAD=$(ls /usr/lib/*/faketime/libfaketime.so.1) FAKETIME_TIMESTAMP_FILE=$XDG_RUNTIME_DIR/clock "
              "FAKETIME_NO_CACHE=1 FAKETIME_DONT_FAKE_MONOTONIC=1 exec env ")

GONE, ANSWERED, CLOSED = 69, 0, 2

# Each fault: what happens; the status of the waiting caller; how the application is started; options of the TV; whether
# the TV goes on after it.
Fault = collections.namedtuple("Fault", "happens status start options survives", defaults=[ANSWERED, "exec ", [], True])
FAULTS = {
    "application killed": Fault(lambda: send(signal.SIGKILL, APP), GONE),
    "application stopped": Fault(lambda: stop(APP)),
    "middleware killed": Fault(lambda: send(signal.SIGKILL, MW), GONE),
    "middleware stopped": Fault(lambda: stop(MW)),
    "middleware silent": Fault(silent_middleware),
    "compositor killed": Fault(lambda: send(signal.SIGKILL, COMPOSITOR), GONE, survives=False),
    "compositor stopped": Fault(lambda: stop(COMPOSITOR)),
    "bus killed": Fault(lambda: send(signal.SIGKILL, BUS), GONE, survives=False),
    "settings unreadable": Fault(lambda: settings(unreadable)),
    "settings garbage": Fault(lambda: settings(garbage)),
    "clock set back": Fault(set_clock_back, ANSWERED, FAKE_CLOCK),
    "disk full": Fault(fill_disk, ANSWERED, "mkdir -p $XDG_RUNTIME_DIR/small; WAYLAND_DISPLAY=$XDG_RUNTIME_DIR/$WAYLAND_DISPLAY; "
                       + IN_NAMESPACE.format("mount -t tmpfs -o size=64m tmpfs $XDG_RUNTIME_DIR/small && "
                                             "XDG_RUNTIME_DIR=$XDG_RUNTIME_DIR/small")),
    "no fonts": Fault(lambda: None, ANSWERED, "echo '<fontconfig/>' >$XDG_RUNTIME_DIR/none; "
                      "exec env FONTCONFIG_FILE=$XDG_RUNTIME_DIR/none "),
    # In the toolkit's own look a popup has no place for buttons: the screen's own time-out closes it.
    "no theme": Fault(lambda: None, CLOSED, "exec env VESKAR_THEME=/nowhere "),
    "no layout": Fault(lambda: None, ANSWERED, IN_NAMESPACE.format(f"mount --bind /dev/null {BUILD}/edje/kavro_layout.edj &&")),
    "no key router": Fault(lambda: None, options=["--no-keyrouter"]),
}


def round_inside(name):
    """In a TV: prints after how many seconds the caller heard of a fault that it does hear of."""
    fault = FAULTS[name]
    screen = Screen(7)
    until("the programs start", lambda: pids(APP) and pids(MW))
    time.sleep(random.uniform(0, 0.5))
    start = time.monotonic()
    fault.happens()
    status = screen.answer() if fault.status in (ANSWERED, CLOSED) and not screen.ended() else screen.outcome()
    print(time.monotonic() - start if fault.status == GONE else 0)
    if status != fault.status:
        sys.exit(f"the caller got {status}")
    if not fault.survives:
        until("the application ends", lambda: not pids(APP))
    elif fault.status != CLOSED and Screen(8).answer() != ANSWERED:
        sys.exit("the next screen was not answered")


def run_round(name, log):
    fault = FAULTS[name]
    with tempfile.TemporaryDirectory() as folder:
        application = pathlib.Path(folder, "app")
        application.write_text(f"#!/bin/sh\n{fault.start}{BUILD}/main/veskar-app \"$@\"\n")
        application.chmod(0o755)
        environment = dict(os.environ, VESKAR_APPLICATION=str(application), VESKAR_BUILD_DIR=str(BUILD))
        return subprocess.run([ROOT / "host/tools/veskar-tv", "--log", log, *fault.options, "--",
                               __file__, "--inside", name], env=environment, capture_output=True, text=True,
                              timeout=10 * LONG, check=False)


def main(arguments):
    if arguments[:1] == ["--inside"]:
        return round_inside(arguments[1])
    minutes = float(arguments[1]) if arguments[:1] == ["--minutes"] else 1
    names = arguments[2 if arguments[:1] == ["--minutes"] else 0:] or list(FAULTS)
    log = BUILD / "stress.log"
    print("| Fault | Rounds | The waiting caller | At the latest after |\n|---|---|---|---|")
    failed = 0
    for name in names:
        end = time.monotonic() + 60 * minutes / len(names)
        rounds, longest = 0, 0.0
        while rounds == 0 or time.monotonic() < end:
            rounds += 1
            result = run_round(name, log)
            if result.returncode != 0:
                failed += 1
                print(f"{name}: {result.stdout}{result.stderr}", file=sys.stderr, flush=True)
                shutil.copy(log, f"{log}.{name.replace(' ', '-')}")
            else:
                longest = max(longest, float(result.stdout))
        heard = f"{longest:.1f} s" if longest else "-"
        print(f"| {name} | {rounds} | exit status {FAULTS[name].status} | {heard} |", flush=True)
    print(f"{failed} rounds failed" + (f"; their logs are {log}.*" if failed else ""))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
