# SPDX-License-Identifier: MIT
"""The whole program: CPU, wake-ups, memory, start, lateness and frames."""

import contextlib
import json
import os
import random
import signal
import statistics
import subprocess
import time

import dbus

from . import processes
from .session import LyricsService, Player, Program, Session, tag


def percentile(values, share):
    ordered = sorted(values)
    return ordered[min(len(ordered) - 1, int(share * len(ordered)))]


def every(seconds, length=3600):
    """Lyrics with one line per interval."""
    lines = (f"{tag(i * seconds)}Line {i} of the song, which goes on" for i in
             range(int(length / seconds)))
    return "\n".join(lines)


class Bench:
    def __init__(self, build, quick):
        self.programs = {"player": f"{build}/showcase/player/brellowind-demo-player",
                         "measured": f"{build}/bin/brellowind-measured",
                         "window": f"{build}/benchmarks/window/empty-window",
                         "layer": f"{build}/benchmarks/layer/empty-layer",
                         "eye": f"{build}/benchmarks/eye/eye"}
        self.seconds = 6 if quick else 12  # as many changes of the line in each turn
        self.tracks = 100 if quick else 1000
        self.lines = 20 if quick else 200
        self.starts = 3 if quick else 15
        self.rounds = 1 if quick else 3

    @contextlib.contextmanager
    def stage(self, lyrics="", screen="1440x900x24"):
        """A session, a service with `lyrics`, and a player."""
        with contextlib.ExitStack() as ends:
            session = Session(screen)
            ends.callback(session.close)
            service = LyricsService()
            ends.callback(service.close)
            service.lyrics = lyrics
            player = Player(self.programs["player"], session)
            ends.callback(player.close)
            yield session, service, player

    def measured(self, session, service, wrapper=(), **environment):
        return Program([*wrapper, self.programs["measured"], service.origin], session,
                       **environment)

    def window(self, session):
        return Program([self.programs["window"]], session)

    def side_by_side(self):
        """The program, the floor and the player's share in the same session."""
        result = {}
        with self.stage(every(3)) as (session, service, player):
            program = self.measured(session, service)
            player.play("Song", "Singer", 3600, service.origin + "/cover/1")
            floor = self.window(session)
            time.sleep(4)
            # At the same time: the shared part depends on other programs.
            result["playing"] = {"memory": processes.memory([program.pid])}
            result["window"] = {"memory": processes.memory([floor.pid])}
            result["playing"] |= self.turns(program, floor)
            service.lyrics = "[00:01.00]one"
            player.play("Between lines", "Singer", 3600, service.origin + "/cover/1")
            time.sleep(4)
            result["betweenLines"] = self.alone(program, floor)
            player.pause()
            time.sleep(3)
            result["paused"] = self.turns(program, floor)
            program.ask("hide waveform")
            player.play("Still", "Singer", 3600)
            player.call("SetPosition", dbus.Int64(100_000_000))
            time.sleep(4)
            before = json.loads(program.ask("counts"))
            time.sleep(5)
            after = json.loads(program.ask("counts"))
            result["still"] = {key: after[key] - before[key] for key in after} | {"seconds": 5}
            program.close()
            floor.close()
        return result

    def turns(self, program, floor):
        """What each takes while the other is stopped, in turns. At once, each would find the
        libraries of both in the caches or not, as it wakes up before or after the other."""
        rounds = [(self.alone(program, floor), self.alone(floor, program))
                  for _ in range(self.rounds)]
        return best([r[0] for r in rounds]) | {"floor": best([r[1] for r in rounds])}

    def alone(self, who, other):
        os.kill(other.pid, signal.SIGSTOP)
        time.sleep(1)  # it may have been stopped itself, and catches up
        load = processes.load([who.pid], self.seconds)
        os.kill(other.pid, signal.SIGCONT)
        return load

    def start(self):
        """Seconds from exec to the first frame, alternating."""
        times = {"program": [], "window": []}
        with self.stage() as (session, service, _):
            for _ in range(self.starts):
                for name, start in (("window", lambda: self.window(session)),
                                    ("program", lambda: self.measured(session, service))):
                    time.sleep(0.5)  # the X server still clears up after the one before
                    program = start()
                    times[name].append(program.seconds_to_first_frame)
                    program.close()
        return {name: statistics.median(values) for name, values in times.items()}

    def memory(self):
        """Memory after using the panel, the settings and many tracks."""
        result = {}
        with self.stage(every(3)) as (session, service, player):
            program = self.measured(session, service)
            look = lambda: processes.memory([program.pid])  # noqa: E731
            player.play("Song", "Singer", 3600, service.origin + "/cover/1")
            time.sleep(4)
            result["playing"] = look()
            program.ask("panel")
            time.sleep(2)
            result["panel"] = look()
            program.ask("close panel")
            time.sleep(1)
            program.ask("settings")
            time.sleep(2)
            result["settingsOpen"] = look()
            program.ask("close settings")
            time.sleep(2)
            result["settingsClosed"] = look()

            def tracks(first, count):
                # Each play/pause makes the program poll the player at once.
                for i in range(first, first + count):
                    player.play(f"Song {i}", "Singer", 3600, f"{service.origin}/cover/{i}")
                    program.ask("toggle")
                    time.sleep(0.06)
                time.sleep(3)
                return look()

            result["warm"] = tracks(0, self.tracks // 5)
            result["tracks"] = tracks(self.tracks // 5, self.tracks)
            result["trackCount"] = self.tracks
            program.close()
        return result

    def lateness(self):
        """Milliseconds from the time of a line, by the player's position, to its pixels."""
        chance = random.Random(5)
        moments, text, at = [], [], 5.0
        for i in range(self.lines):
            # The animation of a line ends before the next line.
            at = round(at + 1.05 + 0.1 * chance.random(), 2)
            moments.append(at)
            text.append(f"{tag(at)}{'WHM'[i % 3] * 9} {'nuo'[i % 3] * 9} {i:03}")
        with self.stage("\n".join(text)) as (session, service, player):
            program = self.measured(session, service)
            time.sleep(1)
            x, y, width, height = json.loads(program.ask("line"))
            area = [str(int(value)) for value in (x + width / 2 - 60, y + 2, 120, height - 4)]
            eye = subprocess.Popen([self.programs["eye"], "watch", *area], text=True,
                                   env=session.environment, stdout=subprocess.PIPE)
            eye.stdout.readline()
            player.play("Late", "Singer", 3600)
            start = player.start_of_song()
            asked, since = player.requests(), time.monotonic()
            time.sleep(moments[-1] + 1.5)
            requests = (player.requests() - asked) / (time.monotonic() - since)
            eye.terminate()
            seen = [(int(line) - start) / 1e9 for line in eye.stdout.read().split()]
            eye.wait()
            program.close()
        late, early, missed = [], 0, 0
        for moment in moments:
            changes = [when for when in seen if moment - 0.1 <= when < moment + 0.5]
            if not changes:
                missed += 1
            elif changes[0] < moment:
                early += 1
            else:
                late.append((changes[0] - moment) * 1e3)
        return {"lines": len(moments), "missed": missed, "early": early,
                "requestsPerSecond": requests,
                "median": statistics.median(late) if late else None,
                "p99": percentile(late, 0.99) if late else None,
                "longest": max(late, default=None)}

    def frames(self):
        """CPU milliseconds of a frame at scale 2 during morphs and changes of the line."""
        durations = []
        with self.stage(every(1.5), "2880x1800x24") as (session, service, player):
            program = self.measured(session, service, QT_SCALE_FACTOR="2")
            player.play("Song", "Singer", 3600, service.origin + "/cover/2")
            time.sleep(4)
            for _ in range(3 if self.lines < 100 else 10):
                for command in MORPHS:
                    # The first one includes work since the last frame before the command.
                    durations += frames_of(program, command, 0.75)[1:]
            program.close()
        milliseconds = [1e3 * value for value in durations]
        return {"frames": len(milliseconds), "median": statistics.median(milliseconds),
                "p99": percentile(milliseconds, 0.99), "longest": max(milliseconds)}

    def instructions(self):
        """Instructions of a frame at scale 2, counted by callgrind; independent of other load."""
        frames = 0
        with self.stage(every(1.5), "2880x1800x24") as (session, service, player):
            output = f"{session.home}/callgrind.out"
            program = self.measured(
                session, service, QT_SCALE_FACTOR="2",
                wrapper=["valgrind", "-q", "--tool=callgrind", "--instr-atstart=no",
                         f"--callgrind-out-file={output}"])
            player.play("Song", "Singer", 3600, service.origin + "/cover/2")
            time.sleep(8)
            subprocess.run(["callgrind_control", "-i", "on", str(program.pid)], check=True,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            for command in MORPHS:
                frames += len(frames_of(program, command, 4))
            program.close()
            with open(output, encoding="utf-8") as profile:
                total = next(int(line.split()[1]) for line in profile
                             if line.startswith(("totals:", "summary:")))
        return {"frames": frames, "perFrame": total / frames}


MORPHS = ("panel", "close panel", "background", "background")


def frames_of(program, command, seconds):
    """The CPU seconds of each frame in the `seconds` after a command."""
    program.ask("start frames")
    program.ask(command)
    time.sleep(seconds)
    return json.loads(program.ask("frames"))


def best(loads):
    """The minimum: other load only adds."""
    return {key: min(load[key] for load in loads) for key in loads[0]}
