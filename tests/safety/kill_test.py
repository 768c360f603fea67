# SPDX-FileCopyrightText: The Kelvo authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Kills kelvoctl at random instants of its work on the store and the settings, on a real file system, and looks
at what is left: the old state or the new one, and nothing lost that was there before."""
import json
import os
import random
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

KELVOCTL = sys.argv.pop(1)
SAMPLES = Path(KELVOCTL).parent.parent / "share/kelvo/My Favorite/Photo/Sample"
KILLS = 40


class Kill(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.work = Path(self.folder.name)
        self.env = {"HOME": str(self.work / "home"), "PATH": os.environ["PATH"],
                    "KELVO_PROGRAM_FOLDER": str(self.work / "program")}
        (self.work / "home").mkdir()
        (self.work / "program").mkdir()
        before = time.monotonic()
        self.json("paths")
        # Where a start takes long, as under a sanitizer, the work to interrupt comes later as well.
        self.start = time.monotonic() - before
        self.random = random.Random(7)

    def json(self, *words):
        done = subprocess.run([KELVOCTL, "--json", *words], env=self.env, capture_output=True, timeout=60)
        self.assertEqual(done.returncode, 0, (words, done.stderr))
        return json.loads(done.stdout)

    def killed(self, longest, *words):
        child = subprocess.Popen([KELVOCTL, "--quiet", *words], env=self.env)
        time.sleep(self.random.uniform(0, self.start + longest))
        child.kill()
        child.wait()

    def test_thumbnails_and_their_manager(self):
        photos = self.work / "photos"
        photos.mkdir()
        sample = min(SAMPLES.glob("*.jpg"), key=lambda path: path.stat().st_size).read_bytes()
        for number in range(60):
            (photos / f"{number}.jpg").write_bytes(sample)
        kept, folders = 0, 0
        for number in range(KILLS):
            other = self.work / f"other{number}"
            other.mkdir()
            self.killed(0.03, "thumbs", str(photos))
            self.killed(0.008, "store", "add", str(other))
            self.killed(0.008, "store", "save")
            records = self.json("store", "list")
            self.assertGreaterEqual(len(records), folders, "a record was lost")
            self.assertEqual(len({record["dbFileName"] for record in records}), len(records))
            folders = len(records)
            archive = self.json("store", "path", str(photos / "0.jpg"))
            if archive and Path(archive).exists():
                members = [member["name"] for member in self.json("archive", "list", archive)["members"]]
                self.assertEqual(len(set(members)), len(members))
                self.assertGreaterEqual(len(members), kept, "a thumbnail was lost")
                kept = len(members)
        self.assertGreater(kept, 0)
        result = self.json("thumbs", str(photos))
        self.assertEqual((result["reused"], result["made"]), (kept, 60 - kept))

    def test_captions_renames_and_the_way_back(self):
        self.captions_and_renames(40, KILLS)

    def test_renames_of_many(self):
        self.captions_and_renames(600, KILLS // 4)

    def captions_and_renames(self, count, kills):
        photos = self.work / "photos"
        photos.mkdir()
        sample = min(SAMPLES.glob("*.jpg"), key=lambda path: path.stat().st_size).read_bytes()
        for number in range(count):
            (photos / f"{number}.jpg").write_bytes(sample + b"%d" % number)

        def photo_list():
            return sorted(str(path) for path in photos.iterdir())

        def captions():
            given = self.json("caption", "get", *photo_list())
            return {Path(item["path"]).read_bytes(): item["caption"] for item in given}

        for number, path in enumerate(photo_list()[:40]):
            self.json("caption", "set", "--caption", f"of {number}", path)
        whole = captions()
        for number in range(kills):
            self.killed(0.03, "rename", "--prefix", f"N{number}-", *photo_list())
            self.assertEqual(captions(), whole, "a caption did not follow its photo")
            self.killed(0.03, "undo")
            self.assertEqual(captions(), whole, "a caption did not follow its photo back")
        for number in range(kills):
            before = captions()
            self.killed(0.03, "caption", "set", "--caption", f"all {number}", *photo_list())
            self.assertIn(set(captions().items()),
                          [set(before.items()), {(key, f"all {number}") for key in before}])

    def test_settings(self):
        ini = self.work / "program/Kelvo.ini"
        before = "; a comment that stays\n[Other]\nkey=value\n[Setting]\nSort=0\n"
        ini.write_text(before)
        for number in range(1, KILLS):
            self.killed(0.006, "settings", "set", "sort", str(number))
            self.assertTrue(ini.read_text().startswith("; a comment that stays\n[Other]\nkey=value\n[Setting]\nSort="))
            self.assertIn(self.json("settings", "show")["sort"], range(number + 1))


if __name__ == "__main__":
    unittest.main(verbosity=2)
