"""Measures one figure after the other. Every function returns plain lists of numbers: milliseconds, bytes, counts."""

import json
import os
import random
import subprocess
import time
from pathlib import Path

import processes
import programs
from tv import now

MS = 1_000_000

LIST_SIZES = (10, 255, 2000, 20000)


class Bench:
    def __init__(self, remote, bus, rounds):
        self.remote, self.bus, self.rounds = remote, bus, rounds
        self.application = programs.Application(bus)
        self.compositor = next(pid for pid in processes.of_this_tv() if processes.name_of(pid) == "weston")
        self._ui_id = 1

    # --- what several figures need

    def _next_id(self):
        self._ui_id += 1
        return self._ui_id

    def _start(self, program):
        """Milliseconds from the start to the first frame."""
        self.remote.forget()
        since = program.start()
        frame = self.remote.first_frame(since)
        program.shown(int(frame.words[0]))
        return (frame.time - since) / MS

    def _stop(self, program):
        program.stop()
        time.sleep(0.3)  # the compositor takes its window off the display

    def _show(self, values):
        """Milliseconds from a request to the running application to the first frame."""
        self.remote.forget()
        sent, serial = self.bus.request(self.application.name, values)
        frame = self.remote.first_frame(sent, self.application.pid)
        self.bus.reply(serial)
        return (frame.time - sent) / MS

    def _memory(self, pid):
        return processes.memory_of(pid, self.compositor)

    # --- starts

    def starts(self, report):
        """For each program, in alternation: milliseconds of cold starts, and bytes with the dialogue shown."""
        everybody = [self.application, programs.Floor(self.bus), *programs.others()]
        times = {program.label: [] for program in everybody}
        memory = {program.label: [] for program in everybody}
        for each in everybody:  # once, unmeasured: files come into the page cache
            self._start(each)
            self._stop(each)
        for i in range(self.rounds):
            report(f"starts: round {i + 1} of {self.rounds}")
            for program in random.sample(everybody, len(everybody)):
                times[program.label].append(self._start(program))
                time.sleep(1)
                memory[program.label].append(self._memory(program.pid))
                self._stop(program)
        return times, memory

    def first_starts(self, tvs):
        """(the first, the median of later ones) for each of some fresh TVs."""
        veskar_tv = Path(__file__).parent.parent / "host/tools/veskar-tv"
        pairs = []
        for _ in range(tvs):
            output = subprocess.run([veskar_tv, "--", Path(__file__).parent / "bench", "--few-starts"], check=True,
                                    stdout=subprocess.PIPE).stdout
            first, *later = json.loads(output)
            pairs.append((first, sorted(later)[len(later) // 2]))
        return pairs

    def few_starts(self, count=4):
        times = []
        for _ in range(count):
            times.append(self._start(self.application))
            self._stop(self.application)
        return times

    def left_behind(self):
        """The names of the processes that a start adds to the TV, while the message is shown."""
        before = processes.of_this_tv()
        self._start(self.application)
        time.sleep(1)
        added = sorted(processes.name_of(pid) for pid in processes.of_this_tv() - before)
        self._stop(self.application)
        return added

    # --- a process that runs

    def warm(self):
        """Milliseconds: requests to a process that shows nothing; keys to their answers."""
        self._start(self.application)
        requests, answers = [], []
        for _ in range(self.rounds + 1):
            time.sleep(random.uniform(0.8, 1.0))  # the key guard lets the key through, and all is quiet
            self.remote.forget()
            key = self.remote.press("Return")
            answers.append((self.bus.wait_for_answer().time - key) / MS)
            time.sleep(random.uniform(0.3, 0.5))
            requests.append(self._show(programs.message(self._next_id())))
        self._stop(self.application)
        return requests[1:], answers[1:]

    def key_to_picture(self):
        """Milliseconds from a Down in a list to the window's next content."""
        self._start(self.application)
        self._show(programs.rows(self._next_id(), 10))
        time.sleep(1.5)
        times = []
        for i in range(2 * self.rounds):
            self.remote.forget()
            key = self.remote.press("Up" if i // 5 % 2 else "Down")
            times.append((self.remote.first_frame(key, self.application.pid).time - key) / MS)
            time.sleep(random.uniform(0.4, 0.6))
        self._stop(self.application)
        return times

    def replacements(self):
        """Milliseconds to the next screen's first frame, and (bare frames, all frames) between the screens."""
        self._start(self.application)
        times, bare_frames, frames = [], 0, 0
        for i in range(self.rounds):
            time.sleep(random.uniform(0.8, 1.0))
            screen = programs.rows(self._next_id(), 10) if i % 2 == 0 else programs.message(self._next_id())
            times.append(self._show(screen))
            time.sleep(0.5)
            drawn = self.remote.pictures()
            frames += len(drawn)
            bare_frames += drawn.count(self.remote.bare)
            self.bus.wait_for_answer()
        self._stop(self.application)
        return times, bare_frames, frames

    def idle(self, seconds=10):
        """How often the process's threads woke up while a message is shown, and while a list is."""
        self._start(self.application)
        counts = [self._wake_ups(seconds)]
        self._show(programs.rows(self._next_id(), 10))
        counts.append(self._wake_ups(seconds))
        self._stop(self.application)
        return counts

    def _wake_ups(self, seconds):
        time.sleep(5)  # what the toolkit and the framework do once after a start or a request is done
        before = processes.wake_ups(self.application.pid)
        time.sleep(seconds)
        return processes.wake_ups(self.application.pid) - before

    # --- lists

    def lists(self, rounds, sizes, report):
        """For each size, in alternation, a list of what _list measured."""
        found = {size: [] for size in sizes}
        for i in range(rounds):
            for size in random.sample(sizes, len(sizes)):
                report(f"lists: round {i + 1} of {rounds}, {size} rows")
                found[size].append(self._list(size))
        return found

    def _list(self, size):
        self._start(self.application)
        time.sleep(2)
        pid = self.application.pid
        before = self._memory(pid)
        first = self._show(programs.rows(self._next_id(), size))
        waits = self._keys()
        time.sleep(2)
        shown = self._memory(pid)
        replaced = self._show(programs.message(self._next_id()))
        time.sleep(3)
        after = self._memory(pid)
        self._stop(self.application)
        return {"first frame": first, "longest wait": max(waits), "memory": shown - before, "replaced": replaced,
                "kept": after - before}

    def _keys(self, seconds=2):
        """How long each of many keys, one after the other, waits for the application to look at it: milliseconds."""
        waits = []
        end = now() + seconds * 10**9
        while now() < end:
            pressed = now()
            self.remote.ask("offer Down")
            waits.append((now() - pressed) / MS)
            time.sleep(0.03)
        return waits


def micro_benchmarks():
    """What Google Benchmark says of each micro-benchmark."""
    program = Path(os.environ["VESKAR_BUILD_DIR"]) / "bench/veskar-bench-micro"
    output = subprocess.run([program, "--benchmark_format=json"], check=True, stdout=subprocess.PIPE,
                            stderr=subprocess.DEVNULL).stdout
    return {each["name"].split("/")[0]: each for each in json.loads(output)["benchmarks"]}
