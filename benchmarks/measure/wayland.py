# SPDX-License-Identifier: MIT
"""The program on a Wayland compositor, natively and through XWayland."""

import contextlib
import os
import subprocess
import time
from pathlib import Path

from . import processes
from .session import LyricsService, Player, Program, Session, end, wait_until

NOBODY = 65534  # sway does not run as root

CONFIGURATION = """output * resolution 1440x900
xwayland force
exec env > environment
"""


class SwaySession(Session):
    """A session on a headless sway with XWayland, of an ordinary user."""

    def start(self, command, environment=None, **options):
        if os.getuid() == 0:
            options |= {"user": NOBODY, "group": NOBODY, "extra_groups": []}
        return super().start(command, environment, cwd=self.home, **options)

    def connect(self):
        if os.getuid() != 0:
            return super().connect()
        os.seteuid(NOBODY)
        try:
            return super().connect()
        finally:
            os.seteuid(0)

    def start_display(self, _):
        if os.getuid() == 0:
            os.chown(self.home, NOBODY, NOBODY)
        configuration = Path(self.home, "sway.conf")
        configuration.write_text(CONFIGURATION)
        self.x_server = self.start(
            ["sway", "-c", configuration],
            self.environment | {"LIBSEAT_BACKEND": "noop", "WLR_BACKENDS": "headless",
                                "WLR_RENDERER": "pixman", "WLR_LIBINPUT_NO_DEVICES": "1"},
            stderr=subprocess.DEVNULL)
        environment = Path(self.home, "environment")
        wait_until(lambda: environment.exists() and "DISPLAY=" in environment.read_text())
        time.sleep(0.5)
        variables = dict(line.split("=", 1) for line in environment.read_text().splitlines()
                         if "=" in line)
        self.environment |= {name: variables[name] for name in ("DISPLAY", "WAYLAND_DISPLAY")}

    def x_servers(self):
        """The processes of XWayland."""
        return [pid for pid in processes.children_of_session(f"HOME={self.home}")
                if processes.name(pid).startswith("Xwayland")]


def playing(programs, seconds, lyrics):
    """The program natively, through XWayland, and an empty layer surface, one after the other."""
    result = {}
    with contextlib.ExitStack() as ends:
        session = SwaySession()
        ends.callback(session.close)
        service = LyricsService()
        ends.callback(service.close)
        service.lyrics = lyrics
        player = Player(programs["player"], session)
        ends.callback(player.close)
        player.play("Song", "Singer", 3600, service.origin + "/cover/1")
        measured = [programs["measured"], service.origin]
        for name, command, variables, also in (
                ("native", measured, {}, lambda: []),
                ("xWayland", measured, {"WAYLAND_DISPLAY": ""}, session.x_servers),
                ("window", [programs["layer"]], {}, lambda: [])):
            program = Program(command, session, **variables)
            time.sleep(4)
            pids = [program.pid, *also()]
            result[name] = processes.load(pids, seconds)
            result[name]["memory"] = processes.memory([program.pid])
            maps = Path(f"/proc/{program.pid}/maps").read_text()
            result[name]["driver"] = "libLLVM" in maps or "_dri.so" in maps
            program.close()
    return result
