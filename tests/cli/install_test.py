#!/usr/bin/env python3
"""Installs the build into a temporary DESTDIR and runs the installed program from there.

Usage: install_test.py BUILD_DIR EXAMPLES_DIR WINDOW(ON|OFF)
"""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

BUILD, EXAMPLES = (os.path.abspath(p) for p in sys.argv[1:3])
WINDOW = sys.argv[3] in ("ON", "1", "TRUE", "YES")


class Installed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.dest = tempfile.mkdtemp(prefix="zorvik-install-")
        env = dict(os.environ, DESTDIR=cls.dest)
        subprocess.run(["cmake", "--install", BUILD, "--prefix", "/usr"], env=env, check=True,
                       capture_output=True, timeout=300)
        cls.root = os.path.join(cls.dest, "usr")
        cls.exe = os.path.join(cls.root, "bin", "zorvik")

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.dest)

    def test_layout(self):
        files = ["bin/zorvik", "share/zorvik/help/index.html", "share/man/man1/zorvik.1"]
        if WINDOW:
            files += ["share/applications/zorvik.desktop", "share/icons/hicolor/scalable/apps/zorvik.svg"]
        for relative in files:
            with self.subTest(relative):
                self.assertTrue(os.path.isfile(os.path.join(self.root, relative)))

    def test_installed_check_certifies_an_example(self):
        run = subprocess.run([self.exe, "check", os.path.join(EXAMPLES, "example_30.las")],
                             capture_output=True, timeout=120)
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertTrue(run.stdout.startswith(b"PASSED  3.0  "), run.stdout)

    def test_man_page_carries_the_usage_texts(self):
        with open(os.path.join(self.root, "share/man/man1/zorvik.1")) as f:
            page = f.read()
        usage = subprocess.run([self.exe, "help", "check"], capture_output=True, text=True).stdout
        self.assertIn(".SH NAME", page)
        for option in ["--wrap", "--report-dir DIR", "--json", "-j, --jobs N", "-q, --quiet"]:
            self.assertIn(option, usage)
            self.assertIn(".B " + option.replace("-", "\\-"), page)

    def test_command_log_moves_to_the_state_folder_when_the_program_folder_refuses_it(self):
        # A folder of that name cannot be opened for appending, even by root.
        blocker = os.path.join(self.root, "bin", "command.log")
        os.mkdir(blocker)
        try:
            state = os.path.join(self.dest, "state")
            env = dict(os.environ, XDG_STATE_HOME=state, XDG_CONFIG_HOME=os.path.join(self.dest, "cfg"))
            subprocess.run([self.exe, os.path.join(self.dest, "none.las"), "x.log"], env=env,
                           capture_output=True, timeout=120)
            with open(os.path.join(state, "zorvik", "command.log"), "rb") as f:
                self.assertIn(b"Command line :", f.read())
        finally:
            os.rmdir(blocker)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=1)
