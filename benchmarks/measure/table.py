"""The results as rows: what, measured, to reach, whether it holds."""


def milli(seconds):
    return f"{seconds * 1e3:.3g} ms" if seconds >= 1e-3 else f"{seconds * 1e6:.3g} µs"


def share(value):
    return f"{100 * value:.2f} %"


def megabytes(memory):
    return f"{memory['pss'] / 1024:.1f} / {memory['private'] / 1024:.1f} MB"


def parser_rows(results):
    rows = []
    for name in ("typical", "large"):
        ours = results["lyrics"][name]
        size = f"{ours['bytes'] / 1000:.3g} KB, {ours['lines']} lines"
        time = ours["parse"]
        icu = ours["icu"] / time
        rows.append((f"parse {size}: beside ICU's engine", f"{icu:.1f} times as fast "
                     f"({milli(time)})", "20 times", icu >= 20))
        if results.get("npm"):
            best, seconds = min(((parser, found["seconds"]) for parser, found in
                                 results["npm"][name].items()), key=lambda pair: pair[1])
            rows.append((f"parse {size}: beside the best npm parser ({best})",
                         f"{seconds / time:.1f} times as fast", "5 times", seconds / time >= 5))
        passes = (time - ours["allocations"]) / ours["memchr"]
        rows.append((f"parse {size}: beside one memchr pass", f"{passes:.1f} passes and the "
                     f"allocations ({milli(ours['allocations'])})", "6 passes and they",
                     passes <= 6))
    for family in results["growth"]:
        ratio = family["large"] / family["small"]
        memchr = family["memchrLarge"] / family["memchrSmall"]
        # Without a bracket there is nothing to do but that pass.
        target, limit = (("as the pass", 1.1 * memchr) if family["name"] == "blank lines" else
                         ("1.5", 1.5))
        rows.append((f"growth, {family['name']}: time per byte at 16 MB by that at 64 KB",
                     f"{ratio:.2f} (of a memchr pass alone: {memchr:.2f})", target,
                     ratio <= limit))
    for search in results["lyrics"]["search"]:
        ratio = search["activeIndex"] / search["upperBound"]
        rows.append((f"activeIndex of {search['lines']} lines by upper_bound",
                     f"{ratio:.2f}, {search['allocations']} allocations", "1.1, none",
                     ratio <= 1.1 and search["allocations"] == 0))
    return rows


def program_rows(results):
    side = results["sideBySide"]
    floor, playing, paused, still = (side[key] for key in ("window", "playing", "paused", "still"))
    tick, late = results["lyrics"]["tick"], results["lateness"]
    peer = results.get("osdlyrics")
    beside = f"; osdlyrics {share(peer['playing']['cpu'])}" if peer else ""
    limit = playing["floor"]["cpu"] + 0.005
    rows = [
        ("a tick without a change of the line", f"{tick['allocations']} allocations, "
         f"{still['frames']} frames", "none", not tick["allocations"] + still["frames"]),
        ("processor while playing, a line every 3 s", share(playing["cpu"]) + beside,
         share(limit), playing["cpu"] <= limit),
        ("processor while paused", share(paused["cpu"]), share(paused["floor"]["cpu"]),
         paused["cpu"] <= paused["floor"]["cpu"]),
        ("wake-ups per second, playing, a line every 3 s", f"{playing['wakeUps']:.1f}", "30",
         playing["wakeUps"] <= 30),
        ("wake-ups per second, playing, between lines", f"{side['betweenLines']['wakeUps']:.1f}",
         "30", side["betweenLines"]["wakeUps"] <= 30),
        ("wake-ups per second, paused", f"{paused['wakeUps']:.1f}", "22", paused["wakeUps"] <= 22),
        ("requests to the player per second", f"{late['requestsPerSecond']:.2f}", "1",
         0.97 <= late["requestsPerSecond"] <= 1.03),
    ]
    memory = results["memory"]
    beside = playing["memory"]
    for kind, name in (("pss", "PSS"), ("private", "private")):
        ratio = beside[kind] / floor["memory"][kind]
        rows.append((f"memory while playing, {name}", f"{beside[kind] / 1024:.1f} MB: {ratio:.2f} "
                     f"times the empty window's {floor['memory'][kind] / 1024:.1f} MB",
                     "1.25 times", ratio <= 1.25))
    if peer:
        part = memory["playing"]["pss"] / peer["memory"]["pss"]
        rows.append(("memory while playing, PSS, beside osdlyrics with "
                     f"{peer['memory']['pss'] / 1024:.1f} MB",
                     f"{part:.2f} of it", "0.25", part <= 0.25))
    rows += [("memory with the artwork panel open, PSS / private", megabytes(memory["panel"]), "", None),
             ("memory with the settings open", megabytes(memory["settingsOpen"]), "", None),
             ("memory after the settings were closed", megabytes(memory["settingsClosed"]), "", None)]
    growth = memory["tracks"]["anonymous"] - memory["warm"]["anonymous"]
    rows.append((f"memory after {memory['trackCount']} more tracks with covers",
                 f"{megabytes(memory['tracks'])}: {growth:+d} KB not from files", "no growth beyond 1 MB",
                 growth <= 1024))
    start = results["start"]["program"] / results["start"]["window"]
    rows.append(("start, exec to the first frame", f"{milli(results['start']['program'])}: "
                 f"{start:.2f} times the empty window", "1.3 times", start <= 1.3))
    rows.append((f"lateness of {late['lines']} lines", f"median {late['median']:.1f} ms, 99th "
                 f"{late['p99']:.1f} ms, {late['early']} early, {late['missed']} missed",
                 "40 ms, 75 ms, none early",
                 late["median"] <= 40 and late["p99"] <= 75
                 and not late["early"] + late["missed"]))
    frames = results["frames"]
    rows.append(("own work in a frame at scale 2 (processor time, all threads)",
                 f"99th {frames['p99']:.1f} ms of {frames['frames']} frames", "16.7 ms",
                 frames["p99"] <= 16.7))
    counted = results["instructions"]
    rows.append(("instructions of a frame at scale 2, counted by callgrind",
                 f"{counted['perFrame'] / 1e6:.1f} million, the mean of {counted['frames']} frames", "", None))
    return rows


def rows(results):
    return parser_rows(results) + program_rows(results)


def markdown(all_rows):
    lines = ["| what | measured | to reach | |", "|---|---|---|---|"]
    for what, measured, reach, holds in all_rows:
        mark = "" if holds is None else "holds" if holds else "**falls short**"
        lines.append(f"| {what} | {measured} | {reach} | {mark} |")
    return "\n".join(lines)
