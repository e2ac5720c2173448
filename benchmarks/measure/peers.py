# SPDX-License-Identifier: MIT
"""osdlyrics, with the same lyrics from a file and the same player on the same bus."""

import shutil
import subprocess
import time
import zlib
import struct
from pathlib import Path

from . import processes
from .program import every
from .session import Player, Session, end


def picture(eye, session, path):
    """Saves the screen as a PNG image; returns its pixels."""
    raw = Path(session.home) / "screen.ppm"
    subprocess.run([eye, "save", raw], env=session.environment, check=True)
    head, pixels = raw.read_bytes().split(b"255\n", 1)
    width, height = (int(word) for word in head.split()[1:3])
    if path:
        rows = b"".join(b"\0" + pixels[y * width * 3:(y + 1) * width * 3] for y in range(height))

        def chunk(kind, data):
            body = kind + data
            return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))
        Path(path).write_bytes(
            b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b""))
    return pixels


def osdlyrics(programs, seconds, results):
    if not shutil.which("osdlyrics"):
        return None
    session = Session()
    player = Player(programs["player"], session)
    lyrics = Path(session.home) / ".lyrics"
    lyrics.mkdir()
    for name in ("Singer-Song.lrc", "Song.lrc"):
        (lyrics / name).write_text(every(3))
    player.play("Song", "Singer", 3600)
    process = subprocess.Popen(["osdlyrics"], env=session.environment, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    try:
        time.sleep(15)
        # The figures count only if its picture changes with the lines.
        pictures = [picture(programs["eye"], session, results / "osdlyrics.png")]
        for _ in range(3):
            time.sleep(3)
            pictures.append(picture(programs["eye"], session, results / "osdlyrics.png"))
        shows = all(a != b for a, b in zip(pictures, pictures[1:]))
        own = {session.x_server.pid, session.bus.pid, player.process.pid}
        members = [pid for pid in processes.children_of_session("DISPLAY=" +
                   session.environment["DISPLAY"]) if pid not in own]
        load = processes.load(members, seconds)
        result = {"showsLines": shows, "processes": sorted(processes.name(pid) for pid in members),
                  "memory": processes.memory(members), "playing": load}
        player.pause()
        time.sleep(2)
        result["paused"] = processes.load(members, seconds)
        return result
    finally:
        own = {session.x_server.pid, session.bus.pid, player.process.pid}
        end(process)
        player.close()
        session.close()
