"""Drives the real client under an X server of its own, the way a person does: the probe tells where things
are, xdotool moves the mouse and types."""

import json
import os
import pathlib
import re
import signal
import socket
import subprocess
import tempfile
import time

SCREENSHOTS = pathlib.Path(os.environ.get("QARN_SCREENSHOTS", "screenshots"))
PATIENCE = float(os.environ.get("QARN_PATIENCE", 30))  # seconds until something that should happen must have happened


class Desktop:
    """An X server with a window manager, for one test program."""

    def __init__(self, width=1280, height=800):
        read_end, write_end = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", f"{width}x{height}x24", "-dpi", "96", "-nolisten", "tcp"],
            pass_fds=[write_end], stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            self.display = ":" + pipe.readline().strip()
        self.environment = dict(os.environ, DISPLAY=self.display)
        self.environment.pop("QT_QPA_PLATFORM", None)
        self.manager = subprocess.Popen(["openbox", "--sm-disable"], env=self.environment,
                                        stderr=subprocess.DEVNULL)

    def close(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()


class Client:
    """One run of qarn-client on a desktop."""

    def __init__(self, desktop, program, plugins, home, *arguments, scale=1):
        self.desktop = desktop
        self.home = pathlib.Path(home)
        self.socket_path = tempfile.mktemp(prefix="qarn-probe-")
        environment = dict(
            desktop.environment, HOME=str(home), XDG_CONFIG_HOME=f"{home}/config", XDG_DATA_HOME=f"{home}/data",
            XDG_CACHE_HOME=f"{home}/cache", QT_PLUGIN_PATH=str(plugins), LANG="C.UTF-8", LC_ALL="C.UTF-8",
            QT_QPA_GENERIC_PLUGINS=f"qarn_e2e_probe:{self.socket_path}", QT_QPA_PLATFORM="xcb",
            QT_SCALE_FACTOR=str(scale))
        self.process = subprocess.Popen([str(program), *arguments], env=environment)
        self.connection = self._connect()

    def _connect(self):
        deadline = time.monotonic() + PATIENCE
        while time.monotonic() < deadline:
            if self.process.poll() is not None:
                raise AssertionError(f"the client ended with {self.process.returncode} while starting")
            probe = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
            try:
                probe.connect(self.socket_path)
                return probe.makefile("rw", encoding="utf-8")
            except OSError:
                probe.close()
                time.sleep(0.05)
        raise AssertionError("the client's probe does not answer")

    # ---- questions

    def ask(self, **question):
        self.connection.write(json.dumps(question) + "\n")
        self.connection.flush()
        return json.loads(self.connection.readline())

    def _on_screen(self, areas):
        """Adds the places of their windows, which only the X server knows for sure."""
        origins = {}
        for area in areas:
            window = area["windowId"]
            if window not in origins:
                report = subprocess.run(["xwininfo", "-id", str(window)], env=self.desktop.environment,
                                        capture_output=True, text=True).stdout
                corner = re.findall(r"Absolute upper-left [XY]:\s+(-?\d+)", report)
                origins[window] = tuple(map(int, corner)) if len(corner) == 2 else (0, 0)
            area["x"] += origins[window][0]
            area["y"] += origins[window][1]
        return areas

    def widgets(self, name):
        return self._on_screen([w for w in self.ask(command="widgets", name=name)["widgets"] if w["seen"]])

    def windows(self):
        return self._on_screen(self.ask(command="windows")["windows"])

    def items(self, view):
        return self._on_screen(self.ask(command="items", name=view)["items"])

    def texts(self, name):
        return [w["text"] for w in self.widgets(name)]

    def rows(self):
        """Serial numbers of the persons on the page, also of rows that are scrolled away."""
        return [w["text"] for w in sorted(self.ask(command="widgets", name="serialNum")["widgets"], key=lambda w: w["y"])
                if "LineEdit" not in w["class"]]

    def until(self, condition, what):
        """Waits until condition() gives something true, and returns it."""
        deadline = time.monotonic() + PATIENCE
        while True:
            result = condition()
            if result:
                return result
            if time.monotonic() > deadline:
                self.screenshot(SCREENSHOTS / "failed.png")
                raise AssertionError(f"waited {PATIENCE:.0f} s for: {what}; see {SCREENSHOTS}/failed.png")
            time.sleep(0.03)

    def _resting(self, find, what):
        """What find() gives as soon as it stays where it is: a window manager moves new windows."""
        last = None

        def resting():
            nonlocal last
            before, last = last, find()
            if last is None or last != before:
                time.sleep(0.06)
                return None
            return last
        return self.until(resting, what)

    def widget(self, name, kind="", **wanted):
        """The one visible widget with this name, kind (end of its class) and these properties, as soon as
        there is one."""
        def one():
            found = [w for w in self.widgets(name) if all(w[key] == value for key, value in wanted.items())
                     and w["class"].endswith(kind)]
            return found[0] if len(found) == 1 else None
        return self._resting(one, f"{kind or 'widget'} {name} {wanted or ''}")

    def item(self, view, text):
        def one():
            found = [i for i in self.items(view) if i["text"] == text]
            return found[0] if found else None
        return self._resting(one, f"item {text!r} in {view}")

    # ---- actions

    def _xdotool(self, *words):
        subprocess.run(["xdotool", *map(str, words)], env=self.desktop.environment, check=True)

    def click_at(self, area, offset=None, button=1, repeat=1):
        x = area["x"] + (offset[0] if offset else area["width"] / 2)
        y = area["y"] + (offset[1] if offset else area["height"] / 2)
        self._xdotool("mousemove", "--sync", int(x), int(y))
        self._xdotool("click", "--repeat", repeat, "--delay", 60, button)

    def click(self, name, **wanted):
        self.click_at(self.widget(name, enabled=True, **wanted))

    def click_item(self, view, text, offset=None):
        self.click_at(self.item(view, text), offset)

    def key(self, *keys):
        self._xdotool("key", "--delay", 20, *keys)

    def write(self, text):
        """Types plain text; everything else comes from the clipboard, as a person would paste it."""
        if text.isascii():
            self._xdotool("type", "--delay", 8, text)
        else:
            self.ask(command="clipboard", text=text)
            self.key("ctrl+v")

    def fill(self, name, text, **wanted):
        self.click_at(self.widget(name, kind="Edit", **wanted))
        self.key("ctrl+a")
        self.write(text)
        self.until(lambda: text in self.texts(name), f"{name} shows {text!r}")

    def choose_file(self, path):
        """Answers the open file dialog."""
        self.widget("XFileDialog")
        self.fill("fileNameEdit", str(path))
        self.key("Return")
        self.until(lambda: not self.widgets("XFileDialog"), "the file dialog closes")

    def screenshot(self, path):
        subprocess.run(["import", "-window", "root", str(path)], env=self.desktop.environment, check=True)

    # ---- the end

    def quit(self):
        self.click("closeBt", window="MainWindow")
        code = self.process.wait(PATIENCE)
        assert code == 0, f"the client ended with {code}"

    def kill(self):
        self.process.send_signal(signal.SIGKILL)
        self.process.wait()

    def close(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()
        pathlib.Path(self.socket_path).unlink(missing_ok=True)
