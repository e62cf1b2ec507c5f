#!/usr/bin/env python3
"""Compiles every public header alone. Usage: check_headers.py <root> <compiler> <include directories...>"""

import concurrent.futures
import os
import pathlib
import subprocess
import sys

root, compiler, directories = pathlib.Path(sys.argv[1]), sys.argv[2], sys.argv[3:]
flags = ["-std=c++17", "-fPIC", "-fsyntax-only", "-x", "c++", "-"]
flags += [f"-isystem{d}" for d in directories if "/qt5" in d or d.startswith("/usr")]
flags += [f"-I{d}" for d in directories if not ("/qt5" in d or d.startswith("/usr"))]
headers = sorted(root.glob("personMgr/contracts/*/*.h")) + sorted(root.glob("host/*/public/*/*.h"))


def compile_alone(header):
    source = f'#include "{header}"\n'
    return header, subprocess.run([compiler, *flags], input=source, text=True, capture_output=True)


with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
    failed = [(h, r.stderr) for h, r in pool.map(compile_alone, headers) if r.returncode != 0]
for header, output in failed:
    print(f"{header.relative_to(root)} does not compile alone:\n{output}")
print(f"{len(headers) - len(failed)} passed, {len(failed)} failed")
sys.exit(1 if failed or not headers else 0)
