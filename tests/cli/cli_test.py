#!/usr/bin/env python3
"""Runs the real zorvik executable as a user would: zorvik check, help, usage errors.

Usage: cli_test.py ZORVIK_EXE EXAMPLES_DIR TEST_DATA_DIR
"""
import json
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

EXE, EXAMPLES, DATA = (os.path.abspath(p) for p in sys.argv[1:4])
PASSING = os.path.join(EXAMPLES, "example_20.las")
FAILING = os.path.join(DATA, "cert2", "g4_header_tab.las")


def zorvik(*args, cwd=None, exe=EXE):
    return subprocess.run([exe, *args], cwd=cwd, capture_output=True, timeout=120)


def without_time(stdout):
    """The summary's time is the one thing that may differ between two runs."""
    lines = stdout.decode().splitlines()
    return lines[:-1] + [lines[-1].rsplit(" (", 1)[0]]


def lines_of(path):
    """The file's lines as the certifier counts them: ended by CR LF or a lone CR."""
    with open(path, "rb") as f:
        return f.read().replace(b"\r\n", b"\r").split(b"\r")


class Scratch(unittest.TestCase):
    def setUp(self):
        self.dir = tempfile.mkdtemp(prefix="zorvik-cli-")

    def tearDown(self):
        shutil.rmtree(self.dir)

    def put(self, relative, source=PASSING, transform=None):
        path = os.path.join(self.dir, relative)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(source, "rb") as f:
            data = f.read()
        with open(path, "wb") as f:
            f.write(transform(data) if transform else data)
        return path


class ExitStatus(Scratch):
    def test_statuses(self):
        cases = [
            ("pass", ["check", PASSING], 0),
            ("fail", ["check", FAILING], 1),
            ("pass and fail", ["check", PASSING, FAILING], 1),
            ("missing file", ["check", PASSING, os.path.join(self.dir, "none.las")], 2),
            ("unreadable beats fail", ["check", FAILING, "/dev/null"], 2),
            ("no path", ["check"], 2),
            ("bad -j", ["check", "-j", "0", PASSING], 2),
            ("unknown option", ["check", "--jsn", PASSING], 2),
            ("unknown top option", ["--frobnicate"], 2),
            ("help of unknown command", ["help", "frob"], 2),
            ("repair without file", ["repair", "--in-place"], 2),
            ("convert bad delimiter", ["convert", "--delimiter", "semicolon", PASSING], 2),
            ("help", ["--help"], 0),
            ("help of check", ["help", "check"], 0),
            ("version", ["--version"], 0),
        ]
        for name, args, status in cases:
            with self.subTest(name):
                self.assertEqual(zorvik(*args).returncode, status)

    def test_usage_errors_go_to_stderr_only(self):
        run = zorvik("check", "-j", "many", PASSING)
        self.assertEqual(run.stdout, b"")
        self.assertIn(b"-j takes a whole number", run.stderr)


class Paths(Scratch):
    def test_blanks_and_relative_paths(self):
        self.put("my wells/well one.las")
        run = zorvik("check", "well one.las", "../my wells/well one.las",
                     cwd=os.path.join(self.dir, "my wells"))
        self.assertEqual(run.returncode, 0, run.stderr)
        out = run.stdout.decode().splitlines()
        self.assertEqual(out[0], "PASSED  2.0  well one.las")
        self.assertEqual(out[1], "PASSED  2.0  ../my wells/well one.las")

    def test_folder_walk(self):
        self.put("a/one.las")
        self.put("a/b/two.LAS")
        self.put("a/b/c/three.Las", FAILING)
        self.put("a/notes.txt")
        self.put("a/.hidden/four.las")
        self.put("a/.five.las")
        run = zorvik("check", "a", cwd=self.dir)
        self.assertEqual(run.returncode, 1)
        verdicts = [l for l in run.stdout.decode().splitlines() if not l.startswith(" ")]
        self.assertEqual(verdicts[:-1], ["FAILED  2.0  a/b/c/three.Las",
                                         "PASSED  2.0  a/b/two.LAS",
                                         "PASSED  2.0  a/one.las"])
        self.assertTrue(verdicts[-1].startswith("3 files: 2 passed, 1 failed, 0 unreadable ("))

    def test_jobs_do_not_change_the_output(self):
        for i in range(24):
            self.put(f"many/w{i:02}.las", FAILING if i % 3 == 0 else PASSING)
        self.put("many/lf.las", transform=lambda d: d.replace(b"\r\n", b"\n"))
        one = zorvik("check", "-j", "1", "many", cwd=self.dir)
        four = zorvik("check", "-j4", "many", cwd=self.dir)
        self.assertEqual(one.returncode, 1)
        self.assertEqual(without_time(one.stdout), without_time(four.stdout))
        self.assertEqual(json.loads(zorvik("check", "--json", "-j", "1", "many", cwd=self.dir).stdout)["files"],
                         json.loads(zorvik("check", "--json", "-j", "4", "many", cwd=self.dir).stdout)["files"])


class Output(Scratch):
    def test_json_parses_and_lines_point_at_quotes(self):
        tabbed = self.put("tabbed.las", transform=lambda d: d.replace(b"STRT.M", b"STRT.M\t", 1))
        run = zorvik("check", "--json", FAILING, tabbed, PASSING, "nothing.las", cwd=self.dir)
        self.assertEqual(run.returncode, 2)
        doc = json.loads(run.stdout)
        self.assertEqual([f["verdict"] for f in doc["files"]], ["failed", "failed", "passed", "unreadable"])
        self.assertEqual(doc["summary"]["files"], 4)
        findings = 0
        for entry in doc["files"][:2]:
            lines = lines_of(os.path.join(self.dir, entry["path"]))
            for check in entry["checks"]:
                for f in check["findings"]:
                    if f["quoted"]:
                        findings += 1
                        self.assertGreater(f["line"], 0, f)
                        quoted = f["quoted"].encode("latin-1")
                        self.assertEqual(lines[f["line"] - 1], quoted)
        self.assertGreaterEqual(findings, 2)
        self.assertEqual({c["outcome"] for c in doc["files"][2]["checks"]}, {"passed"})

    def test_lf_hint_names_the_repair(self):
        path = self.put("unix well.las", transform=lambda d: d.replace(b"\r\n", b"\n"))
        run = zorvik("check", path)
        self.assertEqual(run.returncode, 1)
        self.assertIn(f"`zorvik repair --in-place '{path}'`", run.stdout.decode())
        self.assertNotIn(b"hint", zorvik("check", FAILING).stdout)

    def test_nul_byte_fails_the_content_row(self):
        path = self.put("nul.las", transform=lambda d: d.replace(b"~W", b"\0~W", 1))
        run = zorvik("check", path)
        self.assertEqual(run.returncode, 1)
        self.assertIn("1.e  File has pure ASCII structure: 1 finding", run.stdout.decode())

    def test_repair_and_convert_write_files_that_pass(self):
        lf = self.put("lf.las", transform=lambda d: d.replace(b"\r\n", b"\n"))
        original = open(lf, "rb").read()
        run = zorvik("repair", "-o", "fixed.las", "lf.las", cwd=self.dir)
        self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
        self.assertIn(b"PASSED  2.0  fixed.las", run.stdout)
        self.assertEqual(open(lf, "rb").read(), original)
        run = zorvik("repair", "--in-place", "lf.las", cwd=self.dir)
        self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
        self.assertEqual(zorvik("check", lf).returncode, 0)
        for titles, delimiter in [("plain", "comma"), ("log", "tab")]:
            with self.subTest(titles=titles, delimiter=delimiter):
                run = zorvik("convert", "--titles", titles, "--delimiter", delimiter, "lf.las",
                             cwd=self.dir)
                self.assertEqual(run.returncode, 0, run.stdout + run.stderr)
                self.assertIn(b"PASSED  3.0  ", run.stdout)
                self.assertTrue(os.path.isfile(os.path.join(self.dir, "lf_ver3.las")))

    def test_quiet_and_report_dir(self):
        run = zorvik("check", "-q", "--report-dir", "reports", PASSING, FAILING, cwd=self.dir)
        self.assertEqual(len(run.stdout.decode().splitlines()), 1)
        reports = sorted(os.listdir(os.path.join(self.dir, "reports")))
        self.assertEqual(reports, ["example_20.log", "g4_header_tab.log"])
        with open(os.path.join(self.dir, "reports", "g4_header_tab.log"), "rb") as f:
            text = f.read()
        self.assertIn(b"Result: LAS file FAILS Ver 2 Certification\r\n", text)

    def test_tool_leaves_command_log_and_settings_alone(self):
        exe = os.path.join(self.dir, "bin", "zorvik")
        os.makedirs(os.path.dirname(exe))
        shutil.copy2(EXE, exe)
        env_home = os.path.join(self.dir, "home")
        env = dict(os.environ, HOME=env_home, XDG_CONFIG_HOME=os.path.join(env_home, "config"),
                   XDG_STATE_HOME=os.path.join(env_home, "state"))
        for args in (["check", PASSING, FAILING], ["--help"], ["check", "--bad"]):
            subprocess.run([exe, *args], capture_output=True, env=env, timeout=120)
        self.assertEqual(os.listdir(os.path.dirname(exe)), ["zorvik"])
        self.assertFalse(os.path.exists(env_home))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=1)
