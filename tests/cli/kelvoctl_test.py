# SPDX-FileCopyrightText: The Kelvo authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs kelvoctl as a script would: real files, a fresh home, its output and exit status."""
import json
import os
import signal
import struct
import subprocess
import unittest
import wave
import zlib
from pathlib import Path

from command_case import KELVOCTL, CommandCase

CAMERA = Path(__file__).parents[2] / "fuzz/corpus/exif"
SAMPLES = Path(KELVOCTL).parent.parent / "share/kelvo/My Favorite/Photo/Sample"


class Kelvoctl(CommandCase):
    def photos(self, *names):
        sample = sorted(SAMPLES.glob("*.jpg"))[0].read_bytes()
        for name in names:
            (self.work / name).write_bytes(sample)

    def test_wrong_usage_is_told_apart_from_failure(self):
        for words in ([], ["nonsense"], ["albums", "3"], ["albums", "x"], ["list"], ["settings", "set", "sort", "x"],
                      ["archive", "extract", "a", "b"], ["filelist", "out", "a"], ["archive", "add", "a", "b", "--size", "1"]):
            self.run_it(*words, status=2)
        for words in (["--help"], ["--version"], ["archive", "add", "--help"], ["store", "--help"]):
            self.assertTrue(self.run_it(*words).stdout)
        failed = self.run_it("list", "missing", status=1)
        self.assertTrue(failed.stderr.startswith(b"kelvoctl: missing: "), failed.stderr)

    def watch(self, *words):
        """kelvoctl watch, once the folder is being followed."""
        process = subprocess.Popen([KELVOCTL, *words], env=self.env | {"KELVO_TRACE": "1"}, cwd=self.work,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        self.addCleanup(process.communicate)
        self.addCleanup(process.kill)
        while "for the first time" not in process.stderr.readline():
            self.assertIsNone(process.poll())
        return process

    def test_watch_tells_of_changes_until_it_is_stopped(self):
        (self.work / "photos").mkdir()
        for words, line, stop, status in ((["watch", "photos"], "refresh\n", signal.SIGINT, 130),
                                          (["--json", "watch", "photos"], '{"event": "refresh"}\n', signal.SIGTERM, 143)):
            process = self.watch(*words)
            (self.work / "photos" / words[0]).touch()
            self.assertEqual(process.stdout.readline(), line)
            process.send_signal(stop)
            process.communicate(timeout=60)
            self.assertEqual(process.returncode, status)
        process = self.watch("watch", "photos")
        (self.work / "photos").rename(self.work / "moved")
        out, errors = process.communicate(timeout=60)
        self.assertEqual((out, process.returncode), ("refresh\n", 1))
        self.assertIn("kelvoctl: photos: is no longer there\n", errors)
        self.assertEqual(self.run_it("watch", "moved", "--seconds", "0").stdout, b"")
        (self.work / "file").touch()
        for name in ("none", "file"):
            self.assertTrue(self.run_it("watch", name, status=1).stderr.startswith(f"kelvoctl: {name}: ".encode()))
        self.run_it("watch", "moved", "--seconds", "-1", status=2)

    def test_the_data_tree_is_prepared_with_its_samples(self):
        paths = self.json("paths")
        documents = f"{self.home}/Documents/Halden/Tessa1.0/"
        self.assertEqual(paths["favouriteRoot"], documents + "My Favorite/")
        self.assertEqual(paths["thumbDbFolder"], f"{self.home}/.local/share/Halden/Tessa1.0/ThumbDB")
        self.assertEqual(paths["application"]["dbFolder"], paths["thumbDbFolder"])
        self.assertEqual(sorted(paths["kinds"], key=int), [str(kind) for kind in range(14)])
        self.assertTrue(all(Path(path).is_dir() for path in paths["kinds"].values()))
        self.assertTrue(list(Path(paths["kinds"]["3"]).glob("*.jpg")))
        self.assertTrue(list(Path(paths["kinds"]["5"]).glob("*.mid")))
        self.assertEqual(self.json("albums", "2"), [])
        (Path(paths["kinds"]["2"]) / "Süden").mkdir()
        self.assertEqual(self.json("albums", "2"), ["Süden"])

    def test_a_tree_that_cannot_be_made_is_told_and_touches_nothing(self):
        self.env["HOME"] = self.env["XDG_CONFIG_HOME"] = "/proc/nowhere"
        told = self.run_it("--json", "paths", status=1)
        self.assertEqual(json.loads(told.stdout)["favouriteRoot"], "")
        self.assertIn(b"kelvoctl: data tree: ", told.stderr)
        self.assertFalse(Path("/Photo").exists())

    def test_settings_are_saved_as_at_exit(self):
        program = Path(self.folder.name) / "program"
        program.mkdir()
        self.env["KELVO_PROGRAM_FOLDER"] = str(program)
        (program / "Kelvo.ini").write_bytes(b"; mine\r\n[FILEID]\r\nuseid=1\r\nImgItemID=41\r\n[Setting]\r\nJpegQuality=70\r\n")
        shown = self.json("settings", "show")
        self.assertEqual((shown["imgItemId"], shown["jpegQuality"], shown["itemIdMax"]), (41, 70, 99999))
        self.assertEqual(self.json("settings", "set", "imgItemId", "42"), {"result": True})
        self.assertEqual(self.json("settings", "set", "port", "7"), {"result": True})
        self.json("settings", "set", "jpegQuality", "50", status=1)
        self.json("settings", "set", "port", "256", status=1)
        self.assertEqual(self.json("settings", "show")["port"], 7)
        text = (program / "Kelvo.ini").read_bytes()
        for line in (b"; mine\r\n", b"ImgItemID=42\r\n", b"JpegQuality=70\r\n", b"DelDscPhoto=2\r\n", b"AviRcdID=0\r\n"):
            self.assertIn(line, text)
        self.assertNotIn(b"ItemIDMax", text)

    def test_list_and_list_files_take_odd_names(self):
        odd = b"-\xff\xfe x.jpg"
        (self.work / os.fsdecode(odd)).write_bytes(b"12345")
        (self.work / "c.asr").write_bytes(b"")
        (self.work / "d.txt").write_bytes(b"")
        (self.work / "sub").mkdir()
        os.utime(self.work / "c.asr", (1_000_000_000, 1_000_000_000))
        items = self.json("list", ".", "--include-folder")
        self.assertEqual([(item["name"], item["types"], item["folder"]) for item in items],
                         [("-\ufffd\ufffd x.jpg", 1, False), ("c.asr", 0, False), ("sub", 0, True)])
        self.assertEqual((items[0]["size"], items[0]["needsThumbnail"]), (5, True))
        self.assertEqual(items[1]["modified"], "2001-09-09T01:46:40Z")
        self.assertIn(odd, self.run_it("list", str(self.work)).stdout)
        self.assertEqual(len(self.json("list", ".", "--filter", "0")), 3)
        self.json("filelist", "--print", "out.lst", "--", os.fsdecode(odd), "d.txt")
        self.assertEqual((self.work / "out.lst").read_bytes(),
                         b"[Files]\nFile1=" + os.fsencode(self.work) + b"/" + odd + b"\nCount=1\n")
        self.assertEqual(self.json("filelist", "--selection", "no/out", "d.txt", status=1), {"result": 0})

    def test_thumbnails_are_made_once_and_kept(self):
        self.photos("b.jpg", "a.jpg")
        (self.work / "ring.mid").write_bytes(b"MThd")
        first = self.json("thumbs", ".", "--out", "thumbs")
        self.assertEqual((first["made"], first["reused"], first["none"]), (2, 0, 1))
        item = first["items"][0]
        self.assertEqual((item["name"], item["result"], max(item["width"], item["height"])), ("a.jpg", "made", 180))
        self.assertRegex(item["dateText"], r"^\d{4}/\d\d/\d\d$")
        self.assertTrue((self.work / "thumbs/a.jpg.jpg").read_bytes().startswith(b"\xff\xd8"))
        second = self.json("thumbs", ".")
        self.assertEqual((second["made"], second["reused"]), (0, 2))
        for key in ("width", "sourceWidth", "sourceHeight", "dateText"):
            self.assertEqual(second["items"][0][key], item[key])
        (self.work / "c.jpg").write_bytes(b"broken")
        self.assertEqual(self.json("thumbs", ".", status=1)["reused"], 2)

    def test_the_store_changes_as_the_manager_leaves_it(self):
        (self.work / "x").mkdir()
        self.assertEqual(self.json("store", "add", "x/"), "Tmb0.db")
        self.assertIsNone(self.json("store", "lookup", "y"))
        database = f"{self.home}/.local/share/Halden/Tessa1.0/ThumbDB"
        self.assertEqual(self.json("store", "path", "x/a.jpg"), database + "/Tmb0.db")
        self.assertEqual(self.json("store", "rename", "x", "z"), {"result": 1})
        self.assertEqual(self.json("store", "list"), [{"folderPath": f"{self.work}/x", "dbFileName": "Tmb0.db"}])
        self.assertEqual(self.json("store", "remove", "y", status=1), {"result": 0})
        (self.work / "x").rmdir()
        self.assertEqual(self.json("store", "save"), {"result": 1})
        self.assertEqual(Path(database, "DbMgr.dmf").read_bytes(), bytes(4))

    def test_an_archive_has_the_documented_bytes(self):
        (self.work / "a.txt").write_bytes(b"hello")
        self.assertEqual(self.json("archive", "create", "p.db"), {"result": True})
        self.assertEqual((self.work / "p.db").read_bytes(), b"*QRX" + bytes(12))
        self.json("archive", "add", "p.db", "a.txt", "--created", "1", "--modified", "2", "--size", "9",
                  "--third", "3", "--stamp", "st")
        data = zlib.compress(b"hello", 6)
        record = struct.pack("<5HQI3QH", 5, 0, 0, 2, 0, 9, len(data), 1, 2, 3, 0)
        self.assertEqual((self.work / "p.db").read_bytes(),
                         b"*QRX" + struct.pack("<I", 1) + bytes(8) + record + b"a.txtst" + data)
        self.json("archive", "texts", "p.db", "A.TXT", "--caption", "c\xe4")
        member = self.json("archive", "list", "p.db")["members"][0]
        self.assertEqual((member["caption"], member["timeStamp"], member["third"], member["recordPosition"]),
                         ("cä", "", 3, 16))
        self.assertEqual(self.run_it("archive", "extract", "p.db", "a.txt", "--stdout").stdout, b"hello")
        self.assertEqual(self.json("archive", "remove", "p.db", "a.txt"), {"result": True})
        self.assertEqual(self.json("archive", "extract", "p.db", "a.txt", "--to", ".", status=1), {"result": False})
        self.assertEqual(self.json("archive", "list", "p.db")["count"], 1)
        self.json("archive", "compact", "p.db")
        self.assertEqual((self.work / "p.db").stat().st_size, 16)
        added = self.run_it("--json", "archive", "add", "p.db", "missing", "a.txt", status=1)
        self.assertEqual(self.json("archive", "list", "p.db")["count"], 1)
        self.assertIn(b"kelvoctl: missing: ", added.stderr)

    def test_captions_follow_a_batch_rename_there_and_back(self):
        names = ["-dash.JPG", "b c.jpg", "f\u00fcr.jpg", "link.lnk"]
        self.photos(*names)
        odd = os.fsencode(self.work) + b"/\xff.jpg"
        Path(os.fsdecode(odd)).write_bytes((self.work / "b c.jpg").read_bytes())
        self.json("caption", "set", "--caption", "Beach", "--stamp", "2004/05/17", "--", *names[:2], os.fsdecode(odd))
        self.json("caption", "set", "--second", "two", "b c.jpg")
        self.assertEqual(self.json("caption", "get", "b c.jpg"), [
            {"path": "b c.jpg", "caption": "Beach", "timeStamp": "2004/05/17", "secondText": "two"}])
        self.assertEqual(self.json("caption", "history"), ["Beach"])
        self.run_it("caption", "set", "--stamp", "2004-05-17", "b c.jpg", status=2)

        plan = self.json("rename", "--dry-run", "--", *names)
        self.assertEqual([item["renamed"] for item in plan], [False] * 4)
        done = self.json("rename", "--", *names[:3], "link.lnk", os.fsdecode(odd))
        self.assertEqual([(item["to"], item["renamed"]) for item in done],
                         [("Photo0001.jpg", True), ("Photo0002.jpg", True), ("Photo0003.jpg", True),
                          ("link.lnk", False), (str(self.work / "Photo0004.jpg"), True)])
        texts = self.json("caption", "get", "Photo0001.jpg", "Photo0003.jpg", "Photo0004.jpg")
        self.assertEqual([text["caption"] for text in texts], ["Beach", "", "Beach"])
        self.assertEqual([entry["files"] for entry in self.json("undo", "--list")], [4])
        self.assertEqual(self.json("undo"), {"undone": 4, "failed": 0})
        self.assertEqual(self.json("caption", "get", "--", "-dash.JPG")[0]["caption"], "Beach")
        self.assertEqual(self.json("undo", status=1), {"undone": 0, "failed": 0})

        for prefix, digits, message in (("a:b", "4", b"These characters cann't used in filename:"),
                                        ("n" * 250, "4", b"Can't rename. The file name or file extension"),
                                        ("Photo", "17", b"1 to 16")):
            failed = self.run_it("rename", "--prefix", prefix, "--digits", digits, "b c.jpg", status=2)
            self.assertIn(message, failed.stderr)

    def test_time_stamps_come_from_each_source(self):
        self.photos("a.jpg")
        (self.work / "plain.txt").write_text("no photo")
        self.env["TZ"] = "UTC"
        done = self.json("stamp", "--modified", "--created", "--from", "2004-07-15 10:20:30", "a.jpg", "plain.txt")
        self.assertEqual(done, {"changed": 2, "skipped": 0, "message": None})
        self.assertEqual((self.work / "a.jpg").stat().st_mtime, 1089886830)
        self.assertEqual(self.json("stamp", "--modified", "--from", "exif", "plain.txt")["skipped"], 1)
        failed = self.run_it("--json", "stamp", "--modified", "--from", "now", "gone.jpg", "a.jpg", status=1)
        self.assertEqual(json.loads(failed.stdout),
                         {"changed": 1, "skipped": 0, "message": "The read-only file can not be processed."})
        self.json("undo")
        self.assertEqual((self.work / "a.jpg").stat().st_mtime, 1089886830)
        for words in (["--modified", "--from", "2004-02-30 00:00:00"], ["--from", "now"],
                      ["--created", "--from", "created"]):
            self.run_it("stamp", *words, "a.jpg", status=2)

    def test_an_interruption_stops_between_two_items(self):
        self.photos(*(f"{number}.jpg" for number in range(500)))
        child = subprocess.Popen([KELVOCTL, "thumbs", "."], env=self.env, cwd=self.work, stdout=subprocess.PIPE)
        child.stdout.read(1)
        child.send_signal(signal.SIGTERM)
        child.stdout.read()
        self.assertEqual(child.wait(timeout=30), 143)
        child.stdout.close()
        again = self.json("thumbs", ".")
        self.assertEqual(again["none"], 0)

    def test_two_processes_on_one_store_lose_nothing(self):
        folders = [self.work / f"folder{number}" for number in range(6)]
        for folder in folders:
            folder.mkdir()
            for name in ("a.jpg", "b.jpg", "c.jpg"):
                self.photos(f"{folder.name}/{name}")
        running = [subprocess.Popen([KELVOCTL, "--quiet", "thumbs", str(folder)], env=self.env)
                   for folder in folders for _ in range(2)]
        self.assertEqual([child.wait(timeout=60) for child in running], [0] * len(running))
        records = self.json("store", "list")
        self.assertEqual(len({record["dbFileName"] for record in records}), len(folders))
        for folder in folders:
            self.assertEqual(self.json("thumbs", str(folder))["reused"], 3)

    def test_a_recording_becomes_adpcm_and_a_ring_tone(self):
        with wave.open(str(self.work / "clip.wav"), "wb") as clip:
            clip.setparams((1, 2, 8000, 0, "NONE", ""))
            clip.writeframes(struct.pack("<2001h", *range(-8000, 8008, 8)))
        told = self.json("sound", "adpcm", "clip.wav", "clip.bin", "--a", "1", "--b", "100", "--name", "bell", "--halve")
        self.assertEqual(told, {"result": 1, "recordNumber": 70, "name": "bell", "b": 100, "a": 1, "format": 4,
                                "sampleRate": 4000, "length": 501})
        self.assertEqual((self.work / "clip.bin").stat().st_size, 501)

        self.assertEqual(self.json("sound", "clip", "clip.wav", "clip.mmf", "--title", "A, b")["result"], 1)
        self.json("sound", "clip", "clip.wav", "stream.mmf", "--stream")
        facts = self.json("sound", "info", "clip.mmf", "stream.mmf", "clip.wav")
        self.assertEqual([(fact["kind"], fact["durationMs"]) for fact in facts],
                         [("smaf", 252), ("smaf", 252), ("wav", 250)])
        self.assertEqual((facts[0]["title"], facts[0]["waves"][0]["length"]), ("A, b", 1001))
        self.json("sound", "extract", "clip.mmf", "again.wav")
        with wave.open(str(self.work / "again.wav")) as again:
            self.assertEqual((again.getframerate(), again.getnframes()), (8000, 2002))
            last = struct.unpack("<2002h", again.readframes(2002))[2000]
        self.assertLess(abs(last - 8000), 200)

        before = (self.work / "clip.wav").read_bytes()
        (self.work / "link").symlink_to("clip.wav")
        for words in (["adpcm", "clip.wav", "clip.wav"], ["adpcm", "clip.wav", "link"], ["clip", "link", "clip.wav"],
                      ["adpcm", "clip.mmf", "new"], ["clip", "none", "new"], ["adpcm", "clip.wav", "none/new"],
                      ["extract", "clip.wav", "new"], ["extract", "clip.mmf", "new", "--wave", "2"]):
            self.assertEqual(self.json("sound", *words, status=1)["result"], 0, words)
        self.assertEqual((self.work / "clip.wav").read_bytes(), before)
        self.assertFalse((self.work / "new").exists())
        self.assertFalse(self.json("sound", "info", "clip.bin", status=1)[0]["result"])

    def test_a_tune_becomes_a_ring_tone_and_its_losses_are_told(self):
        events = b"\0\x90\x3c\x64\0\xb0\x5b\x28\x60\x90\x3c\0\0\xff\x2f\0"
        tune = b"MThd" + struct.pack(">IHHH", 6, 0, 1, 96) + b"MTrk" + struct.pack(">I", len(events)) + events
        for name in ("tune.MID", "tune.midi"):
            (self.work / name).write_bytes(tune)
        left_out = "left out: 1 control that the chip does not know"

        for number in ("", "1"):
            told = self.json("sound", "notes", "tune.MID")
            self.assertEqual(told, {"result": 1, "output": f"{self.work}/tune_Nc{number}.MID",
                                    "log": f"{self.work}/tune_Nc{number}.LOG"})
        self.assertEqual(self.run_it("sound", "notes", "tune.MID", "new.mid").stderr.decode(), f"tune.MID: {left_out}\n")
        self.assertIn(left_out, (self.work / "new.LOG").read_text())
        for name in ("tune.MID", "tune.midi"):
            self.assertEqual(self.json("sound", "smaf", name, "tune.mmf"), {"result": 0, "error": "", "leftOut": [left_out]})
        self.assertEqual(self.run_it("--quiet", "sound", "smaf", "tune.MID", "tune.mmf").stderr, b"")
        fact = self.json("sound", "info", "tune.mmf")[0]
        self.assertEqual((fact["notes"], fact["durationMs"]), (1, 500))

        for words in (["notes", "tune.midi"], ["notes", "none.mid"], ["notes", "tune.MID", "tune.MID"],
                      ["notes", "tune.MID", "none/x"]):
            self.assertEqual(self.json("sound", *words, status=1), {"result": 0, "output": None, "log": None}, words)
        for words in (["tune.mmf", "x.mmf"], ["tune.MID", "tune.MID"], ["none", "x.mmf"], ["tune.MID", "none/x.mmf"]):
            told = self.json("sound", "smaf", *words, status=1)
            self.assertTrue(told["result"] != 0 and told["error"], words)
        self.assertFalse((self.work / "x.mmf").exists())
        self.assertEqual((self.work / "tune.MID").read_bytes(), tune)

    def test_a_camera_is_copied_with_its_messages_and_emptied_only_when_told(self):
        card = self.work / "card"
        self.env["KELVO_CAMERA_ROOT"] = str(card)
        gone = self.run_it("--json", "camera", "copy", status=1)
        self.assertEqual(json.loads(gone.stdout)["message"], "Camera is not available. Please try again.")
        (card / "DCIM/100").mkdir(parents=True)
        none = self.run_it("camera", "copy", status=1)
        self.assertIn(b"There no photo in the camera.\nPlease check your camera.\n", none.stderr)
        for name in ("a.JPG", "b.jpg", "c.avi"):
            (card / "DCIM/100" / name).write_text(name)
        self.assertEqual(self.json("camera", "list"), {"photos": 2, "clips": 1})
        program = self.work / "program"
        program.mkdir()
        self.env["KELVO_PROGRAM_FOLDER"] = str(program)
        for setting, left in ((2, 3), (1, 0)):
            (program / "Kelvo.ini").write_text(
                f"[Setting]\nDelDscPhoto={setting}\n[FileId]\nUseID=1\nImgItemID=41\n")
            copy = self.json("camera", "copy", "--to", f"out{setting}")
            folder = Path(copy["folder"])
            self.assertRegex(folder.name, r"^\d\d-\d\d-\d{4} \d\d-\d\d-\d\d$")
            self.assertEqual((copy["copied"], copy["total"]), (3, 3))
            self.assertEqual([Path(file).name for file in copy["files"]],
                             ["DSC00041.JPG", "DSC00042.jpg", "AVI00000.avi"])
            self.assertEqual((folder / "DSC00042.jpg").read_text(), "b.jpg")
            self.assertEqual(self.json("settings", "show")["imgItemId"], 43)
            self.assertEqual(len(list((card / "DCIM/100").iterdir())), left)

    def test_exif_prints_every_field_and_goes_on_past_failures(self):
        photos = self.work / "photos"
        photos.mkdir()
        for name in ("b10.jpg", "b9.JPG", "note.txt"):
            (photos / name).write_bytes((CAMERA / "intel.jpg").read_bytes())
        (self.work / "text").write_bytes(b"no photo")
        (self.work / "cut").write_bytes((CAMERA / "motorola.jpg").read_bytes()[:-100])
        told = self.run_it("--json", "exif", "photos", "text", "cut", "none", status=1)
        by_path = {item.pop("path"): item for item in json.loads(told.stdout)}
        self.assertEqual(list(by_path), ["photos/b9.JPG", "photos/b10.jpg", "text", "cut", "none"])
        record = by_path["photos/b9.JPG"]["record"]
        self.assertEqual([record[name] for name in ("CameraMake", "DateTime", "Orientation", "ExposureTime", "IsExif")],
                         ["Halden", "2004:05:17 10:22:31", 6, struct.unpack("f", struct.pack("f", 1 / 60))[0], True])
        self.assertEqual([item["result"] for item in by_path.values()], [True, True, False, False, False])
        self.assertEqual(by_path["cut"]["error"], "Premature end of file?")
        self.assertEqual(by_path["cut"]["record"]["CameraMake"], "Halden")
        self.assertEqual([line.split(b": ")[1] for line in told.stderr.splitlines()], [b"text", b"cut", b"none"])
        lines = self.run_it("exif", "photos").stdout.splitlines()
        self.assertEqual(len(lines), 2 * len(record))
        self.assertIn(b"photos/b10.jpg\tCameraMake\tHalden", lines)

        self.run_it("exif", "photos/b9.JPG", "--thumbnail", "one.jpg")
        self.run_it("exif", "photos", "--thumbnail", "many")
        section = (photos / "b9.JPG").read_bytes().partition(b"\xff\xe1")[2]
        thumbnail = section[record["ThumbnailPointer"]:][:record["ThumbnailSize"]]
        for name in ("one.jpg", "many/b9.JPG.jpg", "many/b10.jpg.jpg"):
            self.assertEqual((self.work / name).read_bytes(), thumbnail)
        self.run_it("exif", "cut", "--thumbnail", "none.jpg", status=1)
        self.assertFalse((self.work / "none.jpg").exists())
        self.run_it("exif", "--summary", "photos", "--thumbnail", "x", status=2)

    def test_the_exif_summary_comes_byte_for_byte(self):
        for name, source in (("dated.jpg", "motorola.jpg"), ("plain.jpg", "plain.jpg")):
            (self.work / name).write_bytes((CAMERA / source).read_bytes())
        summary = self.run_it("exif", "--summary", "dated.jpg").stdout
        self.assertEqual(summary.splitlines(keepends=True)[:3],
                         [b"Exif Version = 2.20\r\n", b"Date Time Original = 2004:05:17 10:22:31\r\n",
                          b"Exposure Bias = -33/100 (APEX)\r\n"])
        self.assertTrue(summary.endswith(b"Color Space = \r\nPixel X Dimension = 3000\r\n"), summary)
        self.assertEqual(self.run_it("exif", "--summary", "plain.jpg").stdout, b"")
        both = self.run_it("--json", "exif", "--summary", ".", "none", status=1)
        self.assertEqual(json.loads(both.stdout), [{"path": "./dated.jpg", "summary": summary.decode()},
                                                   {"path": "./plain.jpg", "summary": ""},
                                                   {"path": "none", "summary": ""}])


if __name__ == "__main__":
    unittest.main(verbosity=2)
