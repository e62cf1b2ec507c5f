"""What the end-to-end tests share: where the programs are, and a case with a desktop and a home."""

import os
import pathlib
import shutil
import sqlite3
import tempfile
import unittest

from driver import SCREENSHOTS, Client, Desktop

CLIENT = pathlib.Path(os.environ["QARN_CLIENT"])
SIMULATOR = pathlib.Path(os.environ["QARN_SIMULATOR"])
PLUGINS = pathlib.Path(os.environ["QARN_PROBE_PLUGINS"])
ROOT = pathlib.Path(__file__).resolve().parents[2]
SAMPLES = ROOT / "samples"
PORTRAITS = sorted((SAMPLES / "portraits").glob("*.jpg"))


class EndToEnd(unittest.TestCase):
    size = (1280, 800)

    def setUp(self):
        self.desktop = Desktop(*self.size)
        self.addCleanup(self.desktop.close)
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="qarn-e2e-"))
        self.addCleanup(shutil.rmtree, self.home, ignore_errors=True)
        SCREENSHOTS.mkdir(parents=True, exist_ok=True)

    def start(self, *arguments, scale=1):
        client = Client(self.desktop, CLIENT, PLUGINS, self.home, *arguments, scale=scale)
        self.addCleanup(client.close)
        client.widget("addPersonBt")
        return client

    @property
    def store(self):
        return self.home / "data" / "qarn-client" / "persons.db"

    def query(self, sql, *values):
        with sqlite3.connect(f"file:{self.store}?mode=ro", uri=True) as connection:
            return connection.execute(sql, values).fetchall()

    def picture(self, client, name):
        client.screenshot(SCREENSHOTS / f"{name}.png")
