#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Kelvo authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Plants includes in a small tree and sees which of them layers.py finds."""
import pathlib
import sys
import tempfile

import layers

CASES = [  # file, include line, whether it is forbidden
    ("archive/a.cpp", '#include "platform/types.h"', False),
    ("archive/b.cpp", '#include "browser/list.h"', True),
    ("browser/a.h", '#include "archive/package.h"', False),
    ("browser/b.h", "#  include <QString>", True),
    ("browser/c.h", "#include <QtCore/qstring.h>", True),
    ("browser/d.cpp", "#include <sys/stat.h>", True),
    ("browser/e.cpp", "#include <unistd.h>", True),
    ("browser/f.cpp", "#include <filesystem>", False),
    ("browser/g.cpp", '#include "../archive/package.h"', True),
    ("browser/sub/h.cpp", '#include "ui/frame.h"', True),
    ("platform/a.h", '#include "archive/package.h"', True),
    ("sound/a.cpp", '#include "archive/package.h"', True),
    ("app/a.cpp", '#include "suite/image.h"', True),
    ("ui/main.cpp", '#include "suite/image.h"', False),
    ("ui/frame.cpp", '#include "suite/image.h"', True),
    ("ui/frame.cpp", "#include <QString>", False),
    ("suite/a.cpp", '#include "app/start.h"', True),
    ("suite/b.cpp", "#include <dlfcn.h>", False),
    ("extra/a.cpp", "", True),
    ("app/own.cpp", '#include "app/own.h"', False),
    ("app/own.cpp", '#include "app/other.h"', True),
]


def main():
    wrong = 0
    for file, line, forbidden in CASES:
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder, file)
            path.parent.mkdir(parents=True)
            path.write_text(f"// first line\n{line}\n")
            if path.name == "own.cpp":
                path.with_suffix(".h").touch()

            found = list(layers.findings(pathlib.Path(folder)))

            where = f"{path}:2: " if line else f"{path.parent}:1: "
            if [text.startswith(where) for text in found] != [True] * forbidden:
                print(f"{file} with {line!r}: found {found}")
                wrong = 1
    return wrong


if __name__ == "__main__":
    sys.exit(main())
