# SPDX-License-Identifier: MIT
"""Measures everything, or some steps again:
python3 -m measure BUILD-FOLDER RESULTS-FOLDER [--quick | --again STEP...]"""

import json
import os
import platform
import subprocess
import sys
import time
from pathlib import Path

from . import peers, table, wayland
from .program import Bench, every


def machine():
    cpu = [line.split(":")[1].strip() for line in Path("/proc/cpuinfo").read_text().splitlines()
           if line.startswith("model name")]
    memory = Path("/proc/meminfo").read_text().split()[1]
    return {"processor": cpu[0] if cpu else platform.machine(), "cores": os.cpu_count(),
            "memoryKB": int(memory), "kernel": platform.release(),
            "system": platform.freedesktop_os_release().get("PRETTY_NAME"),
            "loadBefore": os.getloadavg()[0], "date": time.strftime("%Y-%m-%d")}


def cpu_ticks():
    """All ticks of all processors so far, and those that a host gave to other machines."""
    fields = [int(field) for field in Path("/proc/stat").read_text().split("\n", 1)[0].split()[1:9]]
    return sum(fields), fields[7]


def lyrics(build):
    """The parser of lyrics."""
    return json.loads(subprocess.run([f"{build}/benchmarks/lyrics/lyrics_benchmark"], check=True,
                                     stdout=subprocess.PIPE).stdout)


def earlier(folder):
    """The results of the last whole run."""
    try:
        results = json.loads((folder / "results.json").read_text())
    except FileNotFoundError:
        sys.exit("bench: there is no earlier run")
    if results["quick"]:
        sys.exit("bench: the earlier run was a quick one")
    return results


def main(build, folder, quick=False, again=()):
    folder = Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    bench = Bench(build, quick)
    steps = [
        ("lyrics", lambda: lyrics(build)),
        ("start", bench.start),
        ("sideBySide", bench.side_by_side),
        ("osdlyrics", lambda: peers.osdlyrics(bench.programs, bench.seconds, folder)),
        ("memory", bench.memory),
        ("frames", bench.frames),
        ("instructions", bench.instructions),
        ("lateness", bench.lateness),
        ("wayland", lambda: wayland.playing(bench.programs, bench.seconds, every(3))),
    ]
    if unknown := set(again) - {name for name, _ in steps}:
        sys.exit(f"bench: no such step: {', '.join(sorted(unknown))}")
    results = earlier(folder) if again else {"machine": machine(), "quick": quick}
    for name, step in steps:
        if again and name not in again:
            continue
        print(f"bench: {name}…", file=sys.stderr, flush=True)
        before = cpu_ticks()
        results[name] = step()
        total, stolen = (after - early for after, early in zip(cpu_ticks(), before))
        results["machine"].setdefault("stolen", {})[name] = stolen / total
        if stolen > 0.05 * total:
            print(f"bench: the host took {100 * stolen / total:.0f} % of the processors meanwhile",
                  file=sys.stderr, flush=True)
    if results["osdlyrics"] and not results["osdlyrics"]["showsLines"]:
        print("bench: osdlyrics did not show the lines; its figures do not count", file=sys.stderr)
        results["osdlyrics"] = None
    rows = table.rows(results)
    results["table"] = [dict(zip(("what", "measured", "toReach", "holds"), row)) for row in rows]
    (folder / "results.json").write_text(json.dumps(results, indent=2, ensure_ascii=False))
    (folder / "table.md").write_text(table.markdown(rows) + "\n")
    print(table.markdown(rows))


main(sys.argv[1], sys.argv[2], quick=sys.argv[3:] == ["--quick"], again=sys.argv[4:])
