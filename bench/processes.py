"""What the kernel tells of processes."""

import os
import re
from pathlib import Path


def lives(pid):
    try:
        return "Z" not in Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()[0]
    except OSError:
        return False


def name_of(pid):
    try:
        return Path(f"/proc/{pid}/comm").read_text().strip()
    except OSError:
        return "?"


def of_this_tv():
    """The process ids of all that runs in this TV."""
    mark = f"VESKAR_TV_DIR={os.environ['VESKAR_TV_DIR']}".encode()
    found = set()
    for folder in Path("/proc").glob("[0-9]*"):
        try:
            if mark in (folder / "environ").read_bytes().split(b"\0"):
                found.add(int(folder.name))
        except OSError:
            pass
    return found


def _mappings(pid):
    """(permissions, file, bytes of PSS) of each mapping; the file by device and inode."""
    permissions = file = None
    for line in Path(f"/proc/{pid}/smaps").read_text().splitlines():
        head = re.match(r"[0-9a-f]+-[0-9a-f]+ (\S+) \S+ (\S+) (\d+)", line)
        if head:
            permissions, file = head[1], (head[2], head[3])
        elif line.startswith("Pss:"):
            yield permissions, file, int(line.split()[1]) * 1024


def memory_of(pid, compositor):
    """Bytes of PSS without the pictures that the process shares with the compositor."""
    shared = {file for permissions, file, _ in _mappings(compositor) if permissions.endswith("s")}
    return sum(pss for permissions, file, pss in _mappings(pid)
               if not (permissions.endswith("s") and file[1] != "0" and file in shared))


def wake_ups(pid):
    """How often its threads have gone to sleep up to now."""
    total = 0
    for status in Path(f"/proc/{pid}/task").glob("*/status"):
        total += int(re.search(r"^voluntary_ctxt_switches:\s*(\d+)", status.read_text(), re.M)[1])
    return total
