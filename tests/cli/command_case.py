# SPDX-FileCopyrightText: The Kelvo authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the tests of kelvoctl, the first argument, have in common: a fresh home and a folder to work in."""
import json
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

KELVOCTL = sys.argv.pop(1)


class CommandCase(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.home = Path(self.folder.name) / "home"
        self.work = Path(self.folder.name) / "work"
        self.home.mkdir()
        self.work.mkdir()
        self.env = {"HOME": str(self.home), "PATH": os.environ["PATH"],
                    "LSAN_OPTIONS": os.environ.get("LSAN_OPTIONS", "")}

    def run_it(self, *words, status=0):
        done = subprocess.run([KELVOCTL, *words], env=self.env, cwd=self.work, capture_output=True, timeout=60)
        self.assertEqual(done.returncode, status, (words, done.stdout, done.stderr))
        return done

    def json(self, *words, status=0):
        return json.loads(self.run_it("--json", *words, status=status).stdout)
