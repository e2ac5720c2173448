# SPDX-License-Identifier: MIT
"""The results as rows: quantity, measured value, target, whether it is met."""


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
        icu = ours["icu"] / ours["parse"]
        rows.append((f"parse {ours['bytes'] / 1000:.3g} KB, {ours['lines']} lines: beside ICU's engine",
                     f"{icu:.1f} times as fast ({milli(ours['parse'])})", "10 times", icu >= 10))
    ratio, name = max((family["large"] / family["small"], family["name"])
                      for family in results["lyrics"]["growth"])
    rows.append(("parse: time per byte at 1 MiB by that at 16 KB, the worst kind of text",
                 f"{ratio:.2f} ({name})", "1.5", ratio <= 1.5))
    return rows


def program_rows(results):
    side = results["sideBySide"]
    floor, playing, paused, still = (side[key] for key in ("window", "playing", "paused", "still"))
    late = results["lateness"]
    peer = results.get("osdlyrics")
    beside = f"; osdlyrics {share(peer['playing']['cpu'])}" if peer else ""
    limit = playing["floor"]["cpu"] + 0.005
    rows = [
        ("a tick without a change of the line", f"{still['frames']} frames", "none",
         not still["frames"]),
        ("processor while playing, a line every 3 s", share(playing["cpu"]) + beside,
         share(limit), playing["cpu"] <= limit),
        ("processor while paused", share(paused["cpu"]), share(paused["floor"]["cpu"]),
         paused["cpu"] <= paused["floor"]["cpu"]),
        ("wake-ups per second, playing, a line every 3 s", f"{playing['wakeUps']:.1f}", "36",
         playing["wakeUps"] <= 36),
        ("wake-ups per second, playing, between lines", f"{side['betweenLines']['wakeUps']:.1f}",
         "36", side["betweenLines"]["wakeUps"] <= 36),
        ("wake-ups per second, paused", f"{paused['wakeUps']:.1f}", "8", paused["wakeUps"] <= 8),
        ("requests to the player per second", f"{late['requestsPerSecond']:.2f}", "1",
         0.97 <= late["requestsPerSecond"] <= 1.03),
    ]
    memory = results["memory"]
    beside = playing["memory"]
    for kind, name in (("pss", "PSS"), ("private", "private")):
        ratio = beside[kind] / floor["memory"][kind]
        rows.append((f"memory while playing, {name}", f"{beside[kind] / 1024:.1f} MB: {ratio:.2f} "
                     f"times the empty window's {floor['memory'][kind] / 1024:.1f} MB",
                     "1.0 times", ratio <= 1))
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


def wayland_rows(results):
    native, through, floor = (results["wayland"][key] for key in ("native", "xWayland", "window"))
    # Each is alone there; beside the empty window the program would share its libraries with it.
    ratio = native["memory"]["pss"] / through["memory"]["pss"]
    return [
        ("Wayland (sway): processor while playing; to reach: through XWayland, both processes",
         f"{share(native['cpu'])}; an empty layer surface {share(floor['cpu'])}",
         share(through["cpu"]), native["cpu"] <= through["cpu"]),
        ("Wayland (sway): wake-ups per second, playing",
         f"{native['wakeUps']:.1f}; through XWayland {through['wakeUps']:.1f}, "
         f"an empty layer surface {floor['wakeUps']:.1f}", "", None),
        ("Wayland (sway): memory while playing, PSS",
         f"{native['memory']['pss'] / 1024:.1f} MB: {ratio:.2f} times that through XWayland; "
         f"an empty layer surface {floor['memory']['pss'] / 1024:.1f} MB", "1.0 times", ratio <= 1),
        ("Wayland (sway): a graphics driver in the process", "yes" if native["driver"] else "no",
         "no", not native["driver"]),
    ]


def rows(results):
    return parser_rows(results) + program_rows(results) + wayland_rows(results)


def markdown(all_rows):
    lines = ["| what | measured | to reach | |", "|---|---|---|---|"]
    for what, measured, reach, holds in all_rows:
        mark = "" if holds is None else "holds" if holds else "**falls short**"
        lines.append(f"| {what} | {measured} | {reach} | {mark} |")
    return "\n".join(lines)
