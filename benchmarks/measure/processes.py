"""What processes take, as the kernel counts it."""

import os
import time
from pathlib import Path


def _tasks(pid):
    try:
        return list(Path(f"/proc/{pid}/task").iterdir())
    except OSError:
        return []


def processor_seconds(pids):
    total = 0
    for pid in pids:
        for task in _tasks(pid):
            try:
                total += int((task / "schedstat").read_text().split()[0])
            except OSError:
                pass
    return total / 1e9


def wake_ups(pids):
    """How often a thread of the processes has gone to rest, and so has been woken."""
    total = 0
    for pid in pids:
        for task in _tasks(pid):
            try:
                status = (task / "status").read_text()
            except OSError:
                continue
            total += int(status.split("voluntary_ctxt_switches:")[1].split()[0])
    return total


def memory(pids):
    """Kilobytes: the proportional share of all pages, and what is the processes' alone."""
    pss = private = 0
    for pid in pids:
        fields = {}
        for line in Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()[1:]:
            name, value = line.split(":")
            fields[name] = int(value.split()[0])
        pss += fields["Pss"]
        private += fields["Private_Clean"] + fields["Private_Dirty"]
    return {"pss": pss, "private": private}


def load(pids, seconds):
    """Processor share and wake-ups per second over the next `seconds`."""
    start, used, woken = time.monotonic(), processor_seconds(pids), wake_ups(pids)
    time.sleep(seconds)
    passed = time.monotonic() - start
    return {"cpu": (processor_seconds(pids) - used) / passed,
            "wakeUps": (wake_ups(pids) - woken) / passed}


def children_of_session(environment_mark):
    """The processes whose environment holds `environment_mark`."""
    found = []
    for folder in Path("/proc").iterdir():
        if folder.name.isdigit():
            try:
                environment = (folder / "environ").read_bytes().split(b"\0")
            except OSError:
                continue
            if environment_mark.encode() in environment:
                found.append(int(folder.name))
    return found


def name(pid):
    try:
        words = Path(f"/proc/{pid}/cmdline").read_bytes().split(b"\0")
        return " ".join(os.path.basename(word.decode()) for word in words if word)
    except OSError:
        return ""
