#!/usr/bin/env python3
"""Runs clang-format over all sources without changing them. Usage: check_format.py <root> <clang-format>"""

import pathlib
import subprocess
import sys

root, tool = pathlib.Path(sys.argv[1]), sys.argv[2]
files = [str(p) for folder in ("personMgr", "host", "devices", "tests", "bench", "cmake")
         for p in sorted((root / folder).rglob("*")) if p.suffix in (".h", ".cpp")]
sys.exit(subprocess.run([tool, "--dry-run", "-Werror", *files]).returncode)
