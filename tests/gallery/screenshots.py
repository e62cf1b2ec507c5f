#!/usr/bin/env python3
"""Takes a screenshot of every page of the widget gallery on a display of its own.

Usage: screenshots.py <Xvfb> <widget-gallery> <scale factor> <directory for the screenshots>
"""

import os
import pathlib
import subprocess
import sys

xvfb, gallery, scale, directory = sys.argv[1], sys.argv[2], int(sys.argv[3]), pathlib.Path(sys.argv[4])
directory.mkdir(parents=True, exist_ok=True)
for old in directory.glob("*.png"):
    old.unlink()

reader, writer = os.pipe()
server = subprocess.Popen([xvfb, "-displayfd", str(writer), "-screen", "0", f"{1280 * scale}x{720 * scale}x24",
                           "-nolisten", "tcp"], pass_fds=[writer], stderr=subprocess.DEVNULL)
os.close(writer)
try:
    display = os.fdopen(reader).readline().strip()
    if not display:
        sys.exit("Xvfb did not start")
    environment = dict(os.environ, DISPLAY=f":{display}", QT_QPA_PLATFORM="xcb", QT_SCALE_FACTOR=str(scale))
    result = subprocess.run([gallery, "--screenshots", str(directory)], env=environment, timeout=100)
finally:
    server.terminate()
    server.wait()
taken = sorted(path.name for path in directory.glob("*.png"))
print(f"{len(taken)} screenshots in {directory}: {', '.join(taken)}")
sys.exit(result.returncode)
