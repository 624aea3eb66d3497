"""From measured numbers to the table and the plot of docs/performance.md."""

import os
import platform
import re
import statistics
import subprocess
import time
from pathlib import Path

BEGIN, END = "<!-- measured: written by ./tv bench -->", "<!-- end of what ./tv bench writes -->"

MIB = 1024 * 1024


def median(values):
    return statistics.median(values)


def p95(values):
    """The value that 95 of 100 do not exceed: the next larger one of those that were measured."""
    ordered = sorted(values)
    return ordered[-(-len(ordered) * 95 // 100) - 1]


def both(values, unit="ms"):
    return f"{median(values):.1f} / {p95(values):.1f} {unit}"


def row(*cells):
    return "| " + " | ".join(cells) + " |\n"


def reached(yes):
    return "yes" if yes else "**no**"


def programs_table(times, memory):
    text = row("Program", "start → first frame, median / 95th percentile", "memory") + row("---", "---:", "---:")
    for name, values in times.items():
        text += row(name, both(values), f"{median(memory[name]) / MIB:.1f} MiB")
    return text


def goals_table(results):
    text = row("Figure", "to reach", "measured", "reached") + row("---", "---", "---:", "---")
    for figure, goal, measured, yes in goals(results):
        text += row(figure, goal, measured, reached(yes))
    return text


def goals(results):
    yield from start_goals(results)
    yield from running_goals(results)
    yield from list_goals(results["lists"])
    yield from micro_goals(results["micro"])


def start_goals(results):
    times, memory = results["times"], results["memory"]
    ours = times["this application"]
    zenity = times["zenity"]
    yield ("cold start beside zenity", "at most a third, median and 95th percentile",
           f"{median(ours) / median(zenity):.2f} and {p95(ours) / p95(zenity):.2f} of it",
           median(ours) <= median(zenity) / 3 and p95(ours) <= p95(zenity) / 3)
    for other in ("yad", "pinentry-qt"):
        yield (f"cold start beside {other}", "ahead, median and 95th percentile",
               f"{median(ours) - median(times[other]):+.1f} and {p95(ours) - p95(times[other]):+.1f} ms",
               median(ours) < median(times[other]) and p95(ours) < p95(times[other]))
    distance = median(ours) - median(times["floor"])
    yield "cold start above the floor", "at most 10 ms", f"{distance:.1f} ms", distance <= 10
    if results["first"]:
        first, later = (median(values) for values in zip(*results["first"]))
        yield ("first start in a fresh TV, beside later ones", "within 1.5 times", f"{first:.0f} ms, {later:.0f} ms",
               first <= 1.5 * later)
    yield ("processes that a start adds", "the application alone", ", ".join(results["left behind"]),
           results["left behind"] == ["veskar-app"])
    mine, yads = median(memory["this application"]) / MIB, median(memory["yad"]) / MIB
    yield "memory with a message shown", "below yad's", f"{mine:.1f} MiB, yad {yads:.1f} MiB", mine < yads


def running_goals(results):
    requests, answers, pictures = results["warm"], results["answers"], results["pictures"]
    replaced, bare, frames = results["replacements"]
    yield ("request → first frame, process running", "16.7 ms, 95th percentile 33.3 ms", both(requests),
           median(requests) <= 16.7 and p95(requests) <= 33.3)
    yield "key → answer at the middleware", "median under 1 ms", both(answers), median(answers) < 1
    yield "key → the window's new content", "median under 16.7 ms", both(pictures), median(pictures) <= 16.7
    yield "bare frames while screens are replaced", "0", f"{bare} of {frames}", bare == 0
    yield "replacing a screen → first frame of the next", "", both(replaced), True
    for screen, count in zip(("message", "list"), results["idle"]):
        yield f"wake-ups in 10 s with a {screen} shown", "0", str(count), count == 0


def list_goals(lists):
    def middle(size, what):
        return median([each[what] for each in lists[size]])

    shortest = min(lists)
    for size in sorted(lists):
        first = middle(size, "first frame")
        goal = f"at most {2 * middle(shortest, 'first frame'):.1f} ms" if size == 2000 else ""
        yield (f"list of {size:,} rows: first frame", goal, f"{first:.1f} ms",
               not goal or first <= 2 * middle(shortest, "first frame"))
        longest = max(each["longest wait"] for each in lists[size])
        # The longest list only has to stay alive.
        most = 50 if size <= 2000 else 1000
        yield f"list of {size:,} rows: longest time a key waits", f"{most} ms", f"{longest:.1f} ms", longest <= most
        a_row = (middle(size, "memory") - middle(shortest, "memory")) / max(size - shortest, 1) / 1024
        if size > shortest:
            yield f"list of {size:,} rows: memory of each further row", "2 KiB", f"{a_row:.2f} KiB", a_row <= 2
        kept = middle(size, "kept") / MIB
        yield f"list of {size:,} rows: memory kept after it was replaced", "under 1 MiB", f"{kept:.1f} MiB", kept < 1
        yield f"list of {size:,} rows: time to replace it", "", f"{middle(size, 'replaced'):.1f} ms", True


def micro_goals(micro):
    request, line, timer = micro["RequestToItsScreen"], micro["LogLineLeftOut"], micro["ArmedTimerRestarted"]
    yield ("reading a request of 30 keys", "50 µs, keeps nothing",
           f"{request['cpu_time'] / 1000:.1f} µs, keeps {request['kept_bytes']:.0f} bytes",
           request["cpu_time"] < 50_000 and request["kept_bytes"] <= 0)
    yield "a log line that is left out", "50 ns", f"{line['cpu_time']:.1f} ns", line["cpu_time"] < 50
    yield "an armed timer restarted", "100 µs", f"{timer['real_time'] / 1000:.1f} µs", timer["real_time"] < 100_000


def conditions(results, rounds):
    model = re.search(r"model name\s*: (.*)", Path("/proc/cpuinfo").read_text())
    versions = subprocess.run(["dpkg-query", "-W", "-f", "${Package} ${Version}, ", "zenity", "yad", "pinentry-qt",
                               "libelementary1", "weston"], stdout=subprocess.PIPE, text=True, check=False).stdout
    before, after = results["load"]
    return (f"{time.strftime('%Y-%m-%d')}, {os.cpu_count()} cores ({model[1] if model else platform.machine()}), "
            f"Linux {platform.release()}, {versions.rstrip(', ')}. {rounds} rounds. Load of the machine in the minute "
            f"before the run {before:.1f}, at its end {after:.1f}; the run itself is part of the latter.\n")


def text(results, rounds, plot):
    return (f"{conditions(results, rounds)}\n{programs_table(results['times'], results['memory'])}\n"
            f"![Starts of all programs]({plot})\n\n{goals_table(results)}")


def write(document, measured):
    """Replaces what stands between the markers."""
    page = document.read_text()
    before, rest = page.split(BEGIN)
    after = rest.split(END)[1]
    document.write_text(f"{before}{BEGIN}\n\n{measured}\n{END}{after}")


# --- the plot: a dot for each start, a line at each median

WIDTH, LEFT, RIGHT, ROW, TOP = 900, 150, 30, 46, 30


def plot(times):
    longest = max(max(values) for values in times.values())
    step = next(step for step in (10, 20, 50, 100, 200, 500, 1000, 5000) if longest / step <= 10)
    end = (longest // step + 1) * step

    def x(value):
        return f"{LEFT + value / end * (WIDTH - LEFT - RIGHT):.1f}"

    bottom = TOP + ROW * len(times)
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {bottom + 50}" '
             'font-family="sans-serif" font-size="14">',
             f'<rect width="{WIDTH}" height="{bottom + 50}" fill="#ffffff"/>']
    for tick in range(0, int(end) + 1, step):
        lines.append(f'<path d="M{x(tick)} {TOP}V{bottom}" stroke="#dddddd"/>')
        lines.append(f'<text x="{x(tick)}" y="{bottom + 18}" text-anchor="middle">{tick}</text>')
    lines.append(f'<text x="{WIDTH / 2}" y="{bottom + 40}" text-anchor="middle">'
                 'milliseconds from the start to the first frame; the line is the median</text>')
    for i, (name, values) in enumerate(times.items()):
        middle = TOP + ROW * i + ROW // 2
        lines.append(f'<text x="{LEFT - 12}" y="{middle + 5}" text-anchor="end">{name}</text>')
        for n, value in enumerate(values):
            lines.append(f'<circle cx="{x(value)}" cy="{middle - 8 + n % 5 * 4}" r="3" fill="#1f5fa8" '
                         'fill-opacity="0.5"/>')
        lines.append(f'<path d="M{x(median(values))} {middle - 16}v32" stroke="#c03020" stroke-width="2"/>')
    return "\n".join([*lines, "</svg>", ""])
