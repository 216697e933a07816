"""Where Python 2.7 cannot be had, the tool says so, answers 3 and leaves nothing behind."""

import subprocess
import tempfile
import unittest
from pathlib import Path

TOOL = Path(__file__).resolve().parents[2] / "Tools" / "install-python27"

# An apt-get that knows a mirror and gets nothing from it.
APT_GET = """#!/bin/bash
for argument; do [[ $argument == --print-uris ]] && { %s; exit; }; done
echo "E: Could not connect to the mirror" >&2
exit 100
"""


class InstallPython27Test(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)

    def install(self, folder, mirror="echo \"'http://mirror.invalid/debian/dists/$(. /etc/os-release;"
                                     " echo $VERSION_CODENAME)/InRelease' x 0\""):
        programs = self.root / "programs"
        programs.mkdir(exist_ok=True)
        (programs / "apt-get").write_text(APT_GET % mirror)
        (programs / "apt-get").chmod(0o755)
        done = subprocess.run([TOOL, folder], capture_output=True, text=True,
                              env={"PATH": f"{programs}:/usr/bin:/bin"})
        return done.returncode, done.stderr

    def left(self):
        return sorted(path.name for path in self.root.iterdir() if path.name != "programs")

    def test_a_mirror_that_does_not_answer(self):
        code, said = self.install(self.root / "python")
        self.assertEqual(code, 3)
        self.assertEqual(said.count("\n"), 1, said)
        self.assertIn("http://mirror.invalid/debian does not answer or does not have bullseye", said)
        self.assertIn("Could not connect to the mirror", said)
        self.assertEqual(self.left(), [])

    def test_a_system_without_a_mirror(self):
        code, said = self.install(self.root / "python", "true")
        self.assertEqual((code, said.count("\n")), (3, 1), said)
        self.assertEqual(self.left(), [])

    def test_a_folder_of_somebody_else_is_left_alone(self):
        (self.root / "mine").mkdir()
        code, said = self.install(self.root / "mine")
        self.assertEqual(code, 1)
        self.assertIn("something else", said)
        self.assertEqual(self.left(), ["mine"])

    def test_an_older_one_stays_when_there_is_no_newer(self):
        (self.root / "python").mkdir()
        (self.root / "python" / "made-by-install-python27").write_text("an older one\n")
        self.assertEqual(self.install(self.root / "python")[0], 3)
        self.assertEqual(self.left(), ["python"])


if __name__ == "__main__":
    unittest.main()
