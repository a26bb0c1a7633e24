"""What the tests of all command-line tools need: the program that their first argument names, and a folder for its files."""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM = Path(sys.argv[1])


class ToolTest(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = Path(scratch.name)
        self.environment = {}

    def call(self, *arguments):
        return subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, text=True, timeout=120,
                              env=os.environ | self.environment)

    def files(self):
        """What there is, and when it was written."""
        return {path: path.stat().st_mtime_ns for path in self.folder.iterdir()}

    def expect_failure(self, status, message, *arguments):
        """One line says what is wrong, and no file is touched."""
        before = self.files()
        result = self.call(*arguments)
        self.assertEqual((result.returncode, result.stdout), (status, ""), result.stderr)
        self.assertIn(message, result.stderr)
        self.assertTrue(result.stderr.startswith(f"{PROGRAM.name}: ") and result.stderr.count("\n") == 1, result.stderr)
        self.assertEqual(self.files(), before, "files have changed")
