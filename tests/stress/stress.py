#!/usr/bin/env python3
"""stress.py load|faults|starts SECONDS [APPLICATION]: what ./tv stress does to TVs of its own, and its figures.

A wait without an end is a failure; the stacks of the TV's programs are printed then.
"""

import collections
import json
import os
import pathlib
import random
import re
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("VESKAR_BUILD_DIR", ROOT / "build/release"))
LONG = 45  # seconds: nothing may take so long; a screen that nobody answers closes after 30
APP, MW, BUS, COMPOSITOR = "veskar-app", "veskar-services", "dbus-daemon", "weston"
ANSWERED, CLOSED, GONE = 0, 2, 69  # exit statuses of veskar-mw


def pids(program):
    """Of this TV."""
    for folder in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            variables = (folder / "environ").read_bytes().split(b"\0")
            name = (folder / "comm").read_text().strip()
        except OSError:
            continue
        if name == program and f"VESKAR_TV_DIR={os.environ['VESKAR_TV_DIR']}".encode() in variables:
            yield int(folder.name)


def send(number, program):
    for pid in pids(program):
        os.kill(pid, number)


def until(what, condition):
    deadline = time.monotonic() + LONG
    while not condition():
        if time.monotonic() > deadline:
            for pid in [*pids(APP), *pids(MW)]:
                subprocess.run(["gdb", "-p", str(pid), "-batch", "-ex", "thread apply all bt"], check=False)
            sys.exit(f"not within {LONG} s: {what}")
        time.sleep(0.002)


def remote(*words):
    return subprocess.run(["veskar-remote", *words], check=False).returncode == 0


def shown(*more):
    if not remote("wait", "--shown", "--timeout", str(LONG), *more):
        sys.exit("nothing is shown")


class Screen:
    """A message of which the answer is waited for."""

    def __init__(self, ui_id):
        self.ids = [ui_id, 255]
        command = ["veskar-mw", "--ui-id", str(ui_id), "message", "--title", "x", "--button", "OK"]
        self.process = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)

    def ended(self):
        return self.process.poll() is not None

    def outcome(self):
        """The status; an answer is one, and has the screen's ids."""
        until("the caller hears of its request", self.ended)
        answers = [json.loads(line) for line in self.process.stdout.read().splitlines()]
        if [[answer["uiId"], answer["sourceId"]] for answer in answers] != [self.ids][:self.process.returncode < 3]:
            sys.exit(f"{self.ids}: answers {answers} with status {self.process.returncode}")
        return self.process.returncode

    def answer(self):
        """Presses Return once it is shown. Without a router nobody knows what is shown: again until it is taken."""
        if "--no-keyrouter" not in sys.argv:
            shown("--ui-id", str(self.ids[0]))
            remote("press", "Return")
        while "--no-keyrouter" in sys.argv and not self.ended():
            remote("press", "Return")
            time.sleep(0.1)
        return self.outcome()


# --- load

def size(pid):
    status = pathlib.Path(f"/proc/{pid}/status").read_text().split()
    memory, threads = (int(status[status.index(key) + 1]) for key in ("VmRSS:", "Threads:"))
    return f"{memory // 1024} MB, {threads} threads, {len(os.listdir(f'/proc/{pid}/fd'))} descriptors"


def request(number):
    """The words of veskar-mw for it."""
    text = "Ελληνικά, עברית, ไทย & <b>" + "x" * (number % 700)
    rows = [word for row in range(number % 40) for word in ("--entry", f"{row}\t{text[:30]}")]
    kinds = [("message", "--text", text, "--button", "OK"), ("list", "--format", "LR", *rows), ("select", *rows),
             ("multi-list", *rows), ("image-list", *rows), ("progress", "--text", text), ("loading", "--text", text),
             ("pin", "--text", text), ("image", "--image", "/nowhere.png")]
    return kinds[number % 9]


def load(end, rate):
    """Each request replaces the screen before it, which is answered as closed: as the daemon's log says."""
    before, expected, start = "-", [], time.monotonic()
    while time.monotonic() < end:
        ids = (len(expected) + 1, (254, 255, 7)[len(expected) % 3])
        subprocess.run(["veskar-mw", "--no-wait", "--ui-id", str(ids[0]), "--source-id", str(ids[1]), *request(ids[0])],
                       check=True)
        expected.append(f"ui {ids[0]}, source {ids[1]}, kind 2")
        if ids[0] == 1000:
            before = size(*pids(APP))
        time.sleep(max(0, start + len(expected) / rate - time.monotonic()))
    for _ in range(1000):
        with socket.socket(socket.AF_UNIX) as client:
            client.connect(os.environ["VESKAR_REMOTE_SOCKET"])
            client.sendall(b"press Ret")
    shown("--ui-id", str(len(expected)))
    print(f"{len(expected)} requests in {time.monotonic() - start:.0f} s; application after 1000: {before}, "
          f"at the end: {size(*pids(APP))}; compositor: {size(*pids(COMPOSITOR))}", flush=True)
    log = pathlib.Path(os.environ["VESKAR_TV_LOG"]).read_text(errors="replace")
    blocks = [int(block) for block in re.findall(r"the main loop worked for (\d+) ms", log)]
    print(f"main loop: {len(blocks)} times blocked for more than 200 ms, at most for {max(blocks, default=0)} ms")
    answers = re.findall(r"SendResponse (ui .*), button", log)
    if answers != expected[:-1]:
        sys.exit(f"answers that are wrong, missing or too many: {set(answers) ^ set(expected[:-1])}")
    if blocks:
        sys.exit("the main loop was blocked")


# --- starts

def starts(end):
    number = 0
    owned = ["dbus-send", "--session", "--dest=org.freedesktop.DBus", "--print-reply=literal", "/",
             "org.freedesktop.DBus.NameHasOwner", "string:org.tizen.veskar-app"]
    while time.monotonic() < end:
        subprocess.run(["veskar-mw", "--no-wait", "message", "--button", "OK"], check=True)
        subprocess.run(["dbus-send", "--session", "--dest=org.tizen.veskar-app", "/org/tizen/veskar_app",
                        "org.tizen.Application1.Terminate"], check=True)
        until("it ends", lambda: b"true" not in subprocess.run(owned, capture_output=True, check=True).stdout)
        number += 1
    print(f"{number} starts and ends", flush=True)


# --- faults

def stop(program):
    send(signal.SIGSTOP, program)
    time.sleep(2)
    send(signal.SIGCONT, program)


def silence():
    """The middleware hears nothing while the viewer answers; the screen goes nevertheless."""
    shown()
    send(signal.SIGSTOP, MW)
    if not (remote("press", "Return") and remote("wait", "--gone", "--timeout", "5")):
        sys.exit("the screen stays while the middleware is silent")
    send(signal.SIGCONT, MW)


def spoil_settings(folder_too):
    keys = subprocess.run(["veskar-setting", "list"], capture_output=True, check=True).stdout.decode().split()
    for folder in map(pathlib.Path, (os.environ["VESKAR_SETTINGS_DIR"], os.environ["VESKAR_MEMORY_DIR"])):
        for path in (folder / key for key in keys if key.startswith(("db/", "memory/"))):
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(random.randbytes(random.choice((0, 3, 5000, 100000))))
        if folder_too:
            folder.rename(f"{folder}.old")
            folder.write_text("no folder")


def set_clock_back():
    clock = pathlib.Path(os.environ["XDG_RUNTIME_DIR"], "clock")
    clock.with_suffix(".new").write_text("-3600")
    clock.with_suffix(".new").rename(clock)  # a reader never sees half of it


def fill_disk():
    """Whatever the application's folder has left."""
    other = pathlib.Path(f"/proc/{next(pids(APP))}/root{os.environ['XDG_RUNTIME_DIR']}/small/other")
    with open(other, "wb", buffering=0) as file:
        try:
            while file.write(bytes(1 << 20)):
                pass
        except OSError:
            pass


# What happens; what the caller gets for it (for none of these, the screen stays until the viewer answers it); whether
# the TV goes on; what is written before the application's program; options of the TV.
Fault = collections.namedtuple("Fault", "happens heard survives start options", defaults=[(), True, "exec ", ()])
NAMESPACE = "exec unshare --user --map-current-user --keep-caps --mount sh -c '{} exec \"$@\"' sh "
SMALL = "$XDG_RUNTIME_DIR/small"
FAULTS = {
    "application killed": Fault(lambda: send(signal.SIGKILL, APP), (GONE,)),
    "application stopped": Fault(lambda: stop(APP)),
    "middleware killed": Fault(lambda: send(signal.SIGKILL, MW), (GONE,)),
    "middleware stopped": Fault(lambda: stop(MW)),
    "middleware silent": Fault(silence, (ANSWERED,)),
    "compositor killed": Fault(lambda: send(signal.SIGKILL, COMPOSITOR), (GONE, CLOSED), False),
    "compositor stopped": Fault(lambda: stop(COMPOSITOR)),
    "bus killed": Fault(lambda: send(signal.SIGKILL, BUS), (GONE,), False),
    "settings unreadable": Fault(lambda: spoil_settings(True)),
    "settings garbage": Fault(lambda: spoil_settings(False)),
    "clock set back": Fault(set_clock_back, start="FAKETIME_TIMESTAMP_FILE=$XDG_RUNTIME_DIR/clock FAKETIME_NO_CACHE=1 "
                            "FAKETIME_DONT_FAKE_MONOTONIC=1 "
                            "LD_PRELOAD=$(ls /usr/lib/*/faketime/libfaketime.so.1) exec "),
    "disk full": Fault(fill_disk, start=f"mkdir -p {SMALL}; WAYLAND_DISPLAY=$XDG_RUNTIME_DIR/$WAYLAND_DISPLAY " +
                       NAMESPACE.format(f"mount -t tmpfs -o size=64m tmpfs {SMALL} && XDG_RUNTIME_DIR={SMALL}")),
    "no fonts": Fault(int, start="echo '<fontconfig/>' >$XDG_RUNTIME_DIR/none; "
                                 "FONTCONFIG_FILE=$XDG_RUNTIME_DIR/none exec "),
    # In the toolkit's own look a popup has no place for buttons: its own time-out closes it.
    "no theme": Fault(int, (CLOSED,), start="VESKAR_THEME=/nowhere exec "),
    "no layout": Fault(int, start=NAMESPACE.format(f"mount --bind /dev/null {BUILD}/edje/kavro_layout.edj &&")),
    "no key router": Fault(int, options=("--no-keyrouter",)),
}


def fault_inside(name):
    """Prints the caller's status, and the seconds after which it heard of the fault if that is how it did."""
    fault, screen = FAULTS[name], Screen(7)
    until("the programs start", lambda: any(pids(APP)) and any(pids(MW)))
    time.sleep(random.uniform(0, 0.5))
    start = time.monotonic()
    fault.happens()
    status = screen.outcome() if fault.heard else screen.answer()
    print(status, time.monotonic() - start if fault.heard else 0)
    if status not in (fault.heard or (ANSWERED,)):
        sys.exit(f"the caller got {status}")
    if not fault.survives:
        until("the application ends", lambda: not any(pids(APP)))
    elif CLOSED not in fault.heard and Screen(8).answer() != ANSWERED:
        sys.exit("the next screen was not answered")


def faults(seconds):
    print("| Fault | Rounds | The caller's exit status | At the latest after |\n|---|---|---|---|")
    bad = 0
    for name, fault in FAULTS.items():
        end, longest, seen = time.monotonic() + seconds / len(FAULTS), 0, collections.Counter()
        while not seen or time.monotonic() < end:
            result = in_tv(["inside", name], fault.start, fault.options)
            status, after = (result.stdout.split() + ["-", "0"])[:2]
            seen[status] += 1
            longest = max(longest, float(after))
            if result.returncode != 0:
                bad += 1
                print(f"{name}:", result.stderr.partition("veskar-tv:")[0][-2000:], file=sys.stderr, flush=True)
        what = ", ".join(f"{status} ({count} times)" for status, count in seen.items())
        print(f"| {name} | {sum(seen.values())} | {what} | {f'{longest:.1f} s' if longest else '-'} |", flush=True)
    sys.exit(f"{bad} rounds failed, with their logs in {BUILD}/stress-*.log" if bad else 0)


# --- TVs

def in_tv(words, start="exec ", options=(), application=BUILD / "main/veskar-app"):
    """Runs this program in a TV; the application is started with `start` before it. Keeps the log of a failure."""
    with tempfile.TemporaryDirectory() as folder:
        script = pathlib.Path(folder, "application")
        script.write_text(f"#!/bin/sh\n{start}{application} \"$@\"\n")
        script.chmod(0o755)
        environment = dict(os.environ, VESKAR_APPLICATION=str(script), VESKAR_BUILD_DIR=str(BUILD))
        log = pathlib.Path(folder, "log")
        command = [ROOT / "host/tools/veskar-tv", "--log", log, *options, "--", __file__, *words, *options]
        result = subprocess.run(command, env=environment, capture_output=words[0] == "inside", text=True, check=False)
        if result.returncode != 0:
            shutil.copy(log, BUILD / f"stress-{words[words[0] == 'inside']}.log")
        return result


def main(what, *more):
    end = time.monotonic() + float(more[0]) if what != "inside" else 0
    if what == "inside":
        fault_inside(more[0])
    elif "VESKAR_TV_DIR" in os.environ:
        starts(end) if what == "starts" else load(end, float(more[1]))
    elif what == "faults":
        faults(float(more[0]))
    elif what == "load":
        watched = f"VESKAR_LOG=warn LD_PRELOAD={BUILD}/host/tools/veskar-watchdog.so exec "
        sys.exit(in_tv(["load", *more], watched).returncode)
    else:
        bad = BUILD / "stress-bad-ends"
        bad.unlink(missing_ok=True)
        tell = f"trap 's=$?; [ $s = 0 ] || echo $s >>{bad}' EXIT; "
        status = in_tv(["starts", more[0]], tell, (), *more[1:]).returncode
        sys.exit(f"ended badly: {bad.read_text().split()}" if bad.exists() else status)


if __name__ == "__main__":
    main(*sys.argv[1:])
