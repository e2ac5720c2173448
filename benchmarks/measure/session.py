# SPDX-License-Identifier: MIT
"""A private session: X server, session bus, home folder, player and lyrics service."""

import http.server
import json
import os
import re
import struct
import subprocess
import tempfile
import threading
import time
import urllib.parse
import zlib

import dbus

PLAYER = "org.mpris.MediaPlayer2.spotify"
CONTROL = "org.brellowind.DemoPlayer"


def cover(hue, side=640):
    """A square PNG image of a smooth pattern."""
    def row(y):
        return bytes([0]) + bytes(
            channel for x in range(side)
            for channel in ((x * 255 // side + hue) & 255, (y * 255 // side) & 255, (hue * 3) & 255))
    pixels = zlib.compress(b"".join(row(y) for y in range(side)), 1)

    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))
    head = struct.pack(">IIBBBBB", side, side, 8, 2, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", pixels)
            + chunk(b"IEND", b""))


def tag(seconds):
    """The time tag of a line."""
    hundredths = round(seconds * 100)
    return f"[{hundredths // 6000:02}:{hundredths // 100 % 60:02}.{hundredths % 100:02}]"


class LyricsService:
    """A service that returns `lyrics` for every song, one of a few images for every cover, and an old
    release as the latest."""

    def __init__(self):
        self.lyrics = ""
        covers = [cover(hue) for hue in (20, 90, 160, 230)]
        service = self

        class Handler(http.server.BaseHTTPRequestHandler):
            protocol_version = "HTTP/1.1"

            def do_GET(self):
                path = urllib.parse.urlparse(self.path).path
                if path.startswith("/cover/"):
                    body, kind = covers[int(path.rsplit("/", 1)[1]) % len(covers)], "image/png"
                else:
                    feed = {"version": "0", "url": service.origin}
                    lyrics = {"syncedLyrics": service.lyrics}
                    body = json.dumps(feed if path == "/latest.json" else lyrics).encode()
                    kind = "application/json"
                self.send_response(200)
                self.send_header("Content-Type", kind)
                self.send_header("Content-Length", str(len(body)))
                self.end_headers()
                self.wfile.write(body)

            def log_message(self, *_):
                pass

        class Server(http.server.ThreadingHTTPServer):
            def handle_error(self, request, client_address):
                pass  # a program that ends leaves its connections as they are

        self.server = Server(("127.0.0.1", 0), Handler)
        self.origin = f"http://127.0.0.1:{self.server.server_address[1]}"
        threading.Thread(target=self.server.serve_forever, daemon=True).start()

    def close(self):
        self.server.shutdown()
        self.server.server_close()


class Player:
    """The demo player in a separate process, controlled over the bus."""

    def __init__(self, program, session):
        self.process = session.start([program])
        self.bus = session.connect()
        wait_until(lambda: self.bus.name_has_owner(PLAYER))
        self.object = self.bus.get_object(PLAYER, "/org/mpris/MediaPlayer2")

    def call(self, method, *arguments):
        return self.object.get_dbus_method(method, CONTROL)(*arguments)

    def play(self, title, artist, seconds, artwork=""):
        self.call("SetTrack", dbus.Dictionary({
            "mpris:trackid": dbus.ObjectPath("/com/spotify/track/bench"),
            "mpris:length": dbus.UInt64(int(seconds * 1e6)),
            "mpris:artUrl": artwork,
            "xesam:title": title,
            "xesam:artist": dbus.Array([artist], signature="s"),
            "xesam:album": "Measured",
        }, signature="sv"))
        self.call("SetStatus", "Playing")

    def pause(self):
        self.call("SetStatus", "Paused")

    def start_of_song(self):
        """The monotonic time of position 0, from the fastest of many answers."""
        properties = "org.freedesktop.DBus.Properties"
        best = None
        for _ in range(50):
            before = time.monotonic_ns()
            position = int(self.object.Get("org.mpris.MediaPlayer2.Player", "Position",
                                           dbus_interface=properties))
            after = time.monotonic_ns()
            if best is None or after - before < best[0]:
                best = (after - before, (before + after) // 2 - position * 1000)
        return best[1]

    def requests(self):
        return int(self.call("Requests"))

    def close(self):
        end(self.process)


class Session:
    """One on an X server."""

    def __init__(self, screen="1440x900x24"):
        self.folder = tempfile.TemporaryDirectory(prefix="brellowind-bench-")
        self.home = self.folder.name
        self.environment = {"PATH": os.environ["PATH"], "LANG": "C.UTF-8", "HOME": self.home,
                            "XDG_RUNTIME_DIR": self.home}
        self.start_display(screen)
        self.bus = self.start(
            ["dbus-daemon", "--session", "--nofork", "--nosyslog", "--print-address=1"],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.address = self.bus.stdout.readline().decode().strip()
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.address

    def start(self, command, environment=None, **options):
        """A process in the session."""
        return subprocess.Popen(command, env=environment or self.environment, **options)

    def connect(self):
        """A connection to the bus."""
        return dbus.bus.BusConnection(self.address)

    def start_display(self, screen):
        reading, writing = os.pipe()
        self.x_server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", screen, "-dpi", "96",
             "-nolisten", "tcp"], pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as pipe:
            display = pipe.readline().strip()
        if not display:
            raise RuntimeError("the virtual X server did not start")
        self.environment["DISPLAY"] = ":" + display

    def close(self):
        end(self.bus)
        end(self.x_server)
        self.folder.cleanup()


def end(process):
    process.terminate()
    try:
        process.wait(10)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


def wait_until(condition, seconds=10):
    limit = time.monotonic() + seconds
    while not condition():
        if time.monotonic() > limit:
            raise RuntimeError("waited in vain")
        time.sleep(0.02)


class Program:
    """A measured program that reports its first frame and executes commands."""

    def __init__(self, command, session, **environment):
        started = time.monotonic_ns()
        self.process = session.start(command, {**session.environment, **environment},
                                     stdin=subprocess.PIPE, stdout=subprocess.PIPE, bufsize=0)
        self.pid = self.process.pid
        line = self.readline()
        self.seconds_to_first_frame = (int(re.fullmatch(r"frame (\d+)", line)[1]) - started) / 1e9

    def readline(self):
        return self.process.stdout.readline().decode().strip()

    def ask(self, command):
        self.process.stdin.write(command.encode() + b"\n")
        return self.readline()

    def close(self):
        self.process.stdin.close()
        end(self.process)
