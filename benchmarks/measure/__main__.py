"""Measures everything: python3 -m measure BUILD-FOLDER RESULTS-FOLDER [--quick]"""

import json
import os
import platform
import subprocess
import sys
import time
from pathlib import Path

from . import peers, table
from .program import Bench, best

PARSERS = ["lrc-kit@1.2.1", "clrc@3.1.4"]


def machine():
    cpu = [line.split(":")[1].strip() for line in Path("/proc/cpuinfo").read_text().splitlines()
           if line.startswith("model name")]
    memory = Path("/proc/meminfo").read_text().split()[1]
    return {"processor": cpu[0] if cpu else platform.machine(), "cores": os.cpu_count(),
            "memoryKB": int(memory), "kernel": platform.release(),
            "system": platform.freedesktop_os_release().get("PRETTY_NAME"),
            "loadBefore": os.getloadavg()[0], "date": time.strftime("%Y-%m-%d")}


class Lyrics:
    """The parser and the search for the active line."""

    def __init__(self, build):
        self.program = f"{build}/benchmarks/lyrics/lyrics_benchmark"
        self.looks = []

    def run(self, *arguments):
        return json.loads(subprocess.run([self.program, *arguments], check=True,
                                         stdout=subprocess.PIPE).stdout)

    def growth(self):
        """The best of this look and those before: how much memory gives changes in minutes with
        what the machine's host does beside, so there is one now and then in the run."""
        self.looks.append(self.run("--growth"))
        return [{"name": family[0]["name"]} | best([
            {key: seconds for key, seconds in look.items() if key != "name"} for look in family])
            for family in zip(*self.looks)]


def npm(build, folder):
    """The parsers from the npm registry, if there is a node to run them."""
    texts = folder / "texts"
    texts.mkdir(parents=True, exist_ok=True)
    try:
        (folder / "package.json").write_text('{"private": true}')
        subprocess.run(["npm", "install", "--silent", "--no-audit", "--no-fund", *PARSERS],
                       cwd=folder, check=True, stderr=subprocess.DEVNULL)
        subprocess.run([f"{build}/benchmarks/lyrics/lyrics_benchmark", "--texts", texts], check=True)
        answer = subprocess.run(
            ["node", Path(__file__).parent.parent / "lyrics/npm.js", folder,
             *sorted(texts.glob("*.lrc"))], check=True, capture_output=True, text=True)
        return json.loads(answer.stdout)
    except (OSError, subprocess.CalledProcessError) as problem:
        print(f"bench: the npm parsers are not measured: {problem}", file=sys.stderr)
        return None


def main(build, folder, quick):
    folder = Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    bench = Bench(build, quick)
    results = {"machine": machine(), "quick": quick}
    lyrics = Lyrics(build)
    steps = [
        ("lyrics", lyrics.run),
        ("growth", lyrics.growth),
        ("npm", lambda: npm(build, folder / "npm")),
        ("start", bench.start),
        ("sideBySide", bench.side_by_side),
        ("growth", lyrics.growth),
        ("osdlyrics", lambda: peers.osdlyrics(bench.programs, bench.seconds, folder)),
        ("memory", bench.memory),
        ("frames", bench.frames),
        ("instructions", bench.instructions),
        ("lateness", bench.lateness),
        ("growth", lyrics.growth),
    ]
    for name, step in steps:
        print(f"bench: {name}…", file=sys.stderr, flush=True)
        results[name] = step()
    if results["osdlyrics"] and not results["osdlyrics"]["showsLines"]:
        print("bench: osdlyrics did not show the lines; its figures do not count", file=sys.stderr)
        results["osdlyrics"] = None
    rows = table.rows(results)
    results["table"] = [dict(zip(("what", "measured", "toReach", "holds"), row)) for row in rows]
    (folder / "results.json").write_text(json.dumps(results, indent=2, ensure_ascii=False))
    (folder / "table.md").write_text(table.markdown(rows) + "\n")
    print(table.markdown(rows))


main(sys.argv[1], sys.argv[2], "--quick" in sys.argv[3:])
