# SPDX-License-Identifier: MIT
"""Resource usage of processes, from the kernel."""

import os
import time
from pathlib import Path


def _tasks(pid):
    try:
        return list(Path(f"/proc/{pid}/task").iterdir())
    except OSError:
        return []


def _usage(pids):
    """For each thread, CPU time in nanoseconds and the number of voluntary context switches."""
    usage = {}
    for pid in pids:
        for task in _tasks(pid):
            try:
                used = int((task / "schedstat").read_text().split()[0])
                status = (task / "status").read_text()
            except OSError:
                continue  # a thread that has just ended
            usage[task] = used, int(status.split("voluntary_ctxt_switches:")[1].split()[0])
    return usage


def load(pids, seconds):
    """The CPU share of processes and their wake-ups per second during the next `seconds`."""
    start, before = time.monotonic(), _usage(pids)
    time.sleep(seconds)
    passed, after = time.monotonic() - start, _usage(pids)
    used, woken = (sum(now[i] - before.get(task, (0, 0))[i] for task, now in after.items())
                   for i in (0, 1))
    return {"cpu": used / 1e9 / passed, "wakeUps": woken / passed}


def memory(pids):
    """Kilobytes: the proportional share of all pages, what is the processes' alone, and what of
    it comes from no file: only that does not change when others that share libraries come and go.
    """
    pss = private = anonymous = 0
    for pid in pids:
        fields = {}
        for line in Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()[1:]:
            name, value = line.split(":")
            fields[name] = int(value.split()[0])
        pss += fields["Pss"]
        private += fields["Private_Clean"] + fields["Private_Dirty"]
        anonymous += fields["Anonymous"]
    return {"pss": pss, "private": private, "anonymous": anonymous}


def children_of_session(environment_mark):
    """The processes with `environment_mark` in their environment."""
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
