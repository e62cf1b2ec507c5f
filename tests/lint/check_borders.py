#!/usr/bin/env python3
"""Rejects includes that cross a border of the layers. Usage: check_borders.py <source root>"""

import pathlib
import re
import sys

LIBRARIES = ["qarn_contact", "XCOMMON", "qarn_data", "qarn_worker", "dvx_client_sdk", "qarn_base"]

# What each library may include besides itself and Qt.
BELOW = {
    "qarn_contact": set(),
    "XCOMMON": set(),
    "qarn_data": set(),
    "qarn_worker": {"qarn_contact", "XCOMMON", "qarn_data"},
    "dvx_client_sdk": {"qarn_contact", "XCOMMON", "qarn_data", "qarn_worker"},
    "qarn_base": {"qarn_contact", "XCOMMON", "qarn_data", "qarn_worker"},
}
WITHOUT_WIDGETS = {"qarn_data", "qarn_contact", "dvx_client_sdk"}
WIDGET_HEADER = re.compile(
    r"^Q(?!Widget$).*(Widget|Dialog|Button|Label|LineEdit|ComboBox|CheckBox|Application|Menu|Layout|MessageBox"
    r"|ScrollArea|ToolTip|SpinBox|View|Delegate)$|^QWidget$")
NOT_A_WIDGET = {"QCoreApplication", "QGuiApplication"}
QT_MODULE = re.compile(r"^Qt[A-Z]\w*/")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
CLASS_FOLDERS = ["entry", "shared", "query", "form", "tree", "table", "editor", "transfer", "sync"]


def host_only_headers(root):
    """Names like qarn_data/DataService.h that only the host may include."""
    found = set()
    for library in LIBRARIES:
        public = root / "host" / library / "public"
        found.update(str(p.relative_to(public)) for p in public.rglob("*.h"))
    return found


def owner(path):
    """The library that a file belongs to, 'module', 'client', 'simulator' or None (free)."""
    parts = path.parts
    if parts[0] == "personMgr":
        return parts[2] if parts[1] == "contracts" and len(parts) > 3 else "module"
    if parts[0] == "host" and len(parts) > 2:
        return "client" if parts[1] == "client" else parts[1]
    if parts[0] == "devices":
        return "simulator"
    return None


def problem(path, header, quoted, host_only):
    """Why a file may not include a header; None when it may."""
    name = header.split("/")[-1]
    target = header.split("/")[0]
    who = owner(path)
    if QT_MODULE.match(header) and not (path.parts[0] in ("tests", "bench") and header.startswith("QtTest")):
        return "names a Qt module; include the class"
    if who is None:
        return None
    widgets_free = who in WITHOUT_WIDGETS or who == "simulator"
    if widgets_free and WIDGET_HEADER.match(name) and name not in NOT_A_WIDGET:
        return "has no widgets"
    if who == "simulator" and target in LIBRARIES:
        return "uses no host library"
    if who in LIBRARIES:
        if target in LIBRARIES and target != who and target not in BELOW[who]:
            return f"stands below {target}"
        if path.parts[0] == "personMgr" and header in host_only:
            return "is a contract; this header is for the host only"
        if quoted and target in CLASS_FOLDERS:
            return "does not know the module"
    if who == "module" and header in host_only:
        return "does not see host-only headers"
    if who == "client" and quoted and target in CLASS_FOLDERS and header != "entry/PersonMgrInit.h":
        return "enters the module by entry/PersonMgrInit.h only"
    return None


def check(root):
    host_only = host_only_headers(root)
    problems = []
    for folder in ("personMgr", "host", "devices", "tests", "bench"):
        for path in sorted((root / folder).rglob("*")):
            if path.suffix not in (".h", ".cpp"):
                continue
            relative = path.relative_to(root)
            for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
                match = INCLUDE.match(line)
                why = match and problem(relative, match.group(2), match.group(1) == '"', host_only)
                if why:
                    problems.append(f"{relative}:{number}: <{match.group(2)}>: {owner(relative) or folder} {why}")
    return problems


if __name__ == "__main__":
    failures = check(pathlib.Path(sys.argv[1]))
    print("\n".join(failures))
    sys.exit(1 if failures else 0)
