#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Kelvo authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Fails on an #include that goes against the arrows between the folders of src/, naming file and line.

usage: layers.py SRC

A source file includes its own header first, so that each header is seen to compile alone.

The logic folders may also include neither Qt nor headers of the operating system: what they ask of it goes
through platform/. A folder that ARROWS does not name is a finding too, so that none slips in unseen.
"""
import pathlib
import re
import sys

ARROWS = {
    "platform": "",
    "archive": "platform",
    "browser": "platform archive",
    "photo": "platform archive browser",
    "score": "platform",
    "sound": "platform score",
    "handset": "platform archive browser photo score sound",
    "app": "platform archive browser photo score sound handset",
    "ui": "platform archive browser photo score sound handset app",
    "cli": "platform archive browser photo score sound handset app",
    "platform_linux": "platform",
    "suite": "platform score",
}
PROGRAMS = {"ui", "cli"}  # their main files choose the implementations
IMPLEMENTATIONS = {"platform_linux", "suite"}
OUTSIDE_LOGIC = PROGRAMS | IMPLEMENTATIONS

# Headers without ".h" are the C++ library's, unless they begin as Qt's do.
SYSTEM_HEADER = re.compile(r"^(Q[A-Z]|Qt|sys/|linux/|asm/|netinet/|arpa/|net/|gio/|glib)"
                           r"|^(unistd|fcntl|dirent|dlfcn|pthread|poll|signal|termios|pwd|grp|ftw|glob|fnmatch"
                           r"|sched|spawn|strings|utime|wordexp|syslog|semaphore|mqueue|netdb|iconv|langinfo"
                           r"|libgen|regex|aio|endian|err|features|getopt|mntent|stdio_ext|windows)\.h$")
INCLUDE = re.compile(r'^\s*#\s*include(?:_next)?\s*([<"])([^>"]+)[>"]')


def complaint(folder, target, folders, is_main):
    """Why a file of `folder` may not include `target`, or None."""
    top = target.split("/")[0]
    if "/" in target and top in folders:
        allowed = {folder, *ARROWS[folder].split()}
        if is_main and folder in PROGRAMS:
            allowed |= IMPLEMENTATIONS
        return None if top in allowed else f"{folder} may not include {top}"
    if folder not in OUTSIDE_LOGIC and SYSTEM_HEADER.search(target):
        return f"{folder} knows neither Qt nor the operating system"
    if "../" in target:
        return "includes are written from src/"
    return None


def findings(src):
    folders = {entry.name for entry in src.iterdir() if entry.is_dir()}
    for folder in sorted(folders - ARROWS.keys()):
        yield f"{src / folder}:1: this folder has no place among the arrows of layers.py"
    for folder in sorted(folders & ARROWS.keys()):
        for file in sorted((src / folder).rglob("*")):
            if file.suffix not in {".h", ".cpp", ".hpp", ".c", ".cc", ".inc"}:
                continue
            own = file.with_suffix(".h")
            first = str(own.relative_to(src)) if file.suffix == ".cpp" and own.exists() else None
            for number, line in enumerate(file.read_text("utf-8", "replace").splitlines(), 1):
                include = INCLUDE.match(line)
                if not include:
                    continue
                why = complaint(folder, include[2], ARROWS.keys(), file.name == "main.cpp")
                if first and include[2] != first:
                    why = f"{first} comes first"
                first = None
                if why:
                    yield f"{file}:{number}: {why}: {line.strip()}"


def main():
    found = list(findings(pathlib.Path(sys.argv[1])))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
