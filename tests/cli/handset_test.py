# SPDX-FileCopyrightText: The Kelvo authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""kelvoctl's handset command, with the simulated handset at port 3."""
import json
import signal
import subprocess
import sys
import unittest
from pathlib import Path

from command_case import KELVOCTL, CommandCase

SHIM = sys.argv.pop(1)
TOP = Path(__file__).parents[2]
NO_HANDSET = "Fail to Communicate with Mobile Handset."
UNDELETED = 'Can not delete default "Photo" or "Ring".'


class Handset(CommandCase):
    def setUp(self):
        super().setUp()
        self.root = Path(self.folder.name) / "handset"
        for name in ("Animation", "My Album", "Ring", "Frame", "Java"):
            (self.root / name).mkdir(parents=True)
        port = Path(self.folder.name) / "port"
        self.env["KELVO_PORT_3"] = str(port)
        self.simulator = subprocess.Popen(
            [TOP / "tools/handset-simulator", "--root", self.root, "--port", port, "--shim", SHIM],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.addCleanup(self.simulator.communicate)
        self.assertTrue(self.simulator.stdout.readline().startswith("ready"))

    def set_faults(self, *faults):
        self.simulator.stdin.write(f"faults {' '.join(faults)}\n")
        self.simulator.stdin.flush()
        self.simulator.stdout.readline()

    def handset(self, *words, status=0):
        done = self.run_it("--json", "handset", "--port", "3", *words, status=status)
        return json.loads(done.stdout), done.stderr.decode()

    def test_the_handset_is_found_by_port_or_device_and_wrong_usage_told_apart(self):
        tessa = {"result": True, "manufacturer": "Halden", "model": "Tessa 1"}
        self.assertEqual(self.handset("identify")[0], tessa)
        self.assertEqual(self.json("handset", "--device", "../port", "identify"), tessa)
        stand_in = self.work / "stand-in"
        stand_in.write_text(f'#!/bin/sh\nexec "{TOP}/tools/handset-simulator" --shim "{SHIM}" "$@"\n')
        stand_in.chmod(0o755)
        self.assertEqual(self.json("handset", "--device", "stand-in", "identify"), tessa)
        self.run_it("settings", "set", "port", "3", status=0)
        self.assertEqual(self.run_it("handset", "identify").stdout, b"Halden\tTessa 1\n")
        (self.root / "Frame/x.jpg").touch()
        for word, count in (("frame", 1), ("9", 1), ("ring", 0), ("sub", 0)):
            self.assertEqual(self.handset("count", word)[0], count)
        for words in ([], ["count"], ["count", "x"], ["count", "4"], ["--device", "x", "identify"], ["send"], ["delete"],
                      ["fetch", "--to", "x"], ["fetch", "--main"]):
            self.run_it("handset", "--port", "3", *words, status=2)
        nobody = {"result": False, "manufacturer": "", "model": ""}
        for words, answer in ((["identify"], nobody), (["count", "main"], -1), (["fetch", "--ring", "--to", "."],
                              {"files": [], "message": NO_HANDSET}), (["send", KELVOCTL], {"files": [], "message": NO_HANDSET})):
            done = self.run_it("--json", "handset", "--device", "none", *words, status=1)
            self.assertEqual(json.loads(done.stdout), answer)
            self.assertEqual(done.stderr.decode(), f"kelvoctl: handset: {NO_HANDSET}\n"
                             f"kelvoctl: handset: {self.work}/none: No such file or directory\n")

    def test_files_go_there_come_back_and_are_deleted(self):
        files = {"big.png": (6, "big.jpg"), "small.jpg": (6, "small.jpg"), "tune.mid": (7, "tune.mmf"),
                 "play.jad": (8, "play.jad"), "move.sss": (1, "move.sss")}
        program = Path(KELVOCTL).parent.parent / "share/kelvo"
        (self.work / "tune.mid").write_bytes(sorted((program / "My Favorite").glob("Ring/Sample/*.mid"))[0].read_bytes())
        for name, size in (("big.png", "300x200"), ("small.jpg", "100x50")):
            subprocess.run(["convert", "-size", size, "xc:red", self.work / name], check=True)
        (self.work / "play.jad").write_text("MIDlet-Name: Play\n")
        (self.work / "play.jar").write_text("archive")
        (self.work / "move.sss").touch()
        (self.work / "long.mmf").write_bytes(bytes(65537))
        sent, told = self.handset("send", "long.mmf", *files, "play.jar", "gone.jpg", status=1)
        self.assertEqual([(Path(file["path"]).name, file["type"], file["sentAs"], file["result"]) for file in sent["files"]],
                         [("long.mmf", 7, "long.mmf", 0), ("gone.jpg", 6, "gone.jpg", 0)] +
                         [(name, *facts, 1) for name, facts in files.items()])
        self.assertEqual(sent["message"], "Transfer Successfully.")
        self.assertIn("Transfer Successfully.\n", told)
        self.assertIn(f"kelvoctl: {self.work}/gone.jpg: is not there\n", told)
        self.assertEqual((self.root / "Java/play.jar").read_text(), "archive")

        fetched, _ = self.handset("fetch", "--main", "--album", "--frame", "--ring", "--to", "new/place")
        self.assertEqual([Path(file["path"]).relative_to(self.work / "new/place").as_posix() for file in fetched["files"]],
                         ["My Album/big.jpg", "My Album/small.jpg", "Ring/tune.mmf"])
        self.assertEqual((self.work / "new/place/Ring/tune.mmf").read_bytes(), (self.root / "Ring/tune.mmf").read_bytes())
        self.assertFalse((self.work / "new/place/Frame/mobilefile.dbs").exists())
        none, told = self.handset("fetch", "--frame", "--to", "new", status=1)
        self.assertEqual(none, {"files": [], "message": "There is no item in Mobile handset."})

        paths = [file["path"] for file in fetched["files"]]
        self.assertEqual(self.handset("delete", paths[0], paths[2])[0], {"failed": False, "message": None})
        again, told = self.handset("delete", paths[1], paths[2], "big.png", status=1)
        self.assertEqual(again, {"failed": True, "message": UNDELETED})
        self.assertEqual([line.split(": ")[1] for line in told.splitlines()], [f"{self.work}/big.png", paths[2], "handset"])
        self.assertEqual(list((self.root / "My Album").iterdir()) + list((self.root / "Ring").iterdir()), [])
        self.assertTrue(all(Path(path).exists() for path in paths))

    def test_failures_end_a_run_with_the_message_of_their_kind(self):
        for name in ("a.mmf", "b.mmf", "c.mmf"):
            (self.work / name).write_bytes(bytes(200))
        (self.work / "bad.jad").write_text("MIDlet-Name: x\n")
        for words, fault, results, message in (
                (["a.mmf"], "put:10:0x60", [-2], "The storge space in not enough."),
                (["a.mmf", "b.mmf"], "put:10:0x43", [0], "Upload failed ."),
                (["a.mmf", "bad.jad", "b.mmf"], "none", [1, 0], "JAD file format is incorrect, cannot upload.")):
            self.set_faults(fault)
            sent, told = self.handset("send", *words, status=1)
            self.assertEqual(([file["result"] for file in sent["files"]], sent["message"]), (results, message))
            self.assertIn(f"kelvoctl: handset: {message}\n", told)

    def test_an_interruption_ends_the_transfer_in_the_middle_of_a_file(self):
        (self.work / "a.mmf").write_bytes(bytes(100))
        (self.work / "b.mmf").write_bytes(bytes(60_000))
        self.set_faults("put:20000:stall")
        process = subprocess.Popen([KELVOCTL, "handset", "--port", "3", "send", "a.mmf", "b.mmf"], env=self.env,
                                   cwd=self.work, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        self.assertEqual(process.stdout.readline(), f"{self.work}/a.mmf\ta.mmf\t7\t1\n")
        process.send_signal(signal.SIGINT)
        _, told = process.communicate(timeout=10)
        self.assertEqual(process.returncode, 130, told)
        self.assertIn("Transfer Cancel.\n", told)
        self.set_faults()
        self.assertEqual(self.handset("send", "b.mmf")[0]["message"], "Transfer Successfully.")
        self.assertEqual((self.root / "Ring/b.mmf").stat().st_size, 60_000)


if __name__ == "__main__":
    unittest.main(verbosity=2)
