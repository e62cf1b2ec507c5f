#!/usr/bin/env python3
"""Shows that check_borders.py rejects what it should, on small trees made for it."""

import pathlib
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).parent))
import check_borders  # noqa: E402

CASES = [  # file, include line, rejected
    ("host/qarn_data/Store.cpp", "#include <QWidget>", True),
    ("host/qarn_data/Store.cpp", "#include <QSqlQuery>", False),
    ("host/qarn_data/Store.cpp", "#include <qarn_base/BaseForm.h>", True),
    ("host/dvx_client_sdk/Link.cpp", "#include <QLabel>", True),
    ("host/dvx_client_sdk/Link.cpp", "#include <qarn_data/DataService.h>", False),
    ("host/qarn_base/PersonTree.cpp", "#include <dvx_client_sdk/FaceRecords.h>", True),
    ("host/qarn_base/PersonTree.cpp", "#include <qarn_data/DataService.h>", False),
    ("personMgr/form/PersonMgrForm.cpp", "#include <qarn_data/DataService.h>", True),
    ("personMgr/form/PersonMgrForm.cpp", "#include <qarn_data/PersonData.h>", False),
    ("personMgr/contracts/qarn_base/BaseForm.h", "#include <qarn_data/DataService.h>", True),
    ("host/client/main.cpp", '#include "entry/PersonMgrInit.h"', False),
    ("host/client/main.cpp", '#include "form/PersonMgrForm.h"', True),
    ("host/client/main.cpp", "#include <QtWidgets/QLabel>", True),
    ("devices/simulator/main.cpp", "#include <qarn_data/PersonInfo.h>", True),
]

failed = 0
for file, line, rejected in CASES:
    with tempfile.TemporaryDirectory() as directory:
        root = pathlib.Path(directory)
        header = root / "host/qarn_data/public/qarn_data/DataService.h"
        header.parent.mkdir(parents=True)
        header.write_text("#pragma once\n")
        path = root / file
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(line + "\n")
        if bool(check_borders.check(root)) != rejected:
            print(f"{file}: {line}: should be {'rejected' if rejected else 'accepted'}")
            failed += 1
print(f"{len(CASES) - failed} passed, {failed} failed")
sys.exit(1 if failed else 0)
