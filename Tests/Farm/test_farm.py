"""Jobs of Tools/farm on the demo: by a real Slurm of four nodes, by GNU parallel, and what is refused.

QX_WORKBENCH, QX_DEMO and QX_FAULTS name the program, the demo scene and the library of Tests/Faults.
"""

import json
import os
import re
import shlex
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
import slurm  # noqa: E402

FARM = Path(__file__).resolve().parents[2] / "Tools/farm"
# What is left where a blank or a quote is not treated as a letter of a name.
ODD = "a demo's \"best\" $HOME;&"

# Runs the program as a test wants it. fault/SHARD says how the task of that shard goes, the first time or "always":
# "kill" ends the program with -9 before its second picture has its name; "hang" then never ends; "wait" does nothing.
WRAP = """#!/bin/bash
plan=$1; shift
[[ " $* " =~ \\ ([0-9]+)/8\\  ]] || exec "$@"
read -r fault times 2>/dev/null <"$plan/${BASH_REMATCH[1]}" || exec "$@"
[[ $times == always ]] || rm "$plan/${BASH_REMATCH[1]}"
half=(env LD_PRELOAD="$QX_FAULTS" QX_FAULT="rename 2 0" "$@")
case $fault in
    kill) exec "${half[@]}" ;;
    hang) "${half[@]}" ;;
esac
echo "$SLURMD_NODENAME" >"$plan/hangs"
while :; do sleep 0.1; done
"""


class FarmTest(unittest.TestCase):
    environment = os.environ
    alone = {}  # what one process has made of scenes

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="qxfarm.")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.scene = self.folder / f"{ODD}.gltf"
        self.job = self.folder / f"{ODD} job"
        self.faults = self.folder / "faults"
        self.faults.mkdir()
        for file in Path(os.environ["QX_DEMO"]).parent.iterdir():
            shutil.copy(file, self.scene if file.name == "roadster.gltf" else self.folder / file.name)
        self.wrapper = self.folder / "wrap"
        self.wrapper.write_text(WRAP)
        self.wrapper.chmod(0o755)

    def workbench(self, *arguments):
        subprocess.run([os.environ["QX_WORKBENCH"], *arguments], check=True, capture_output=True)

    def command(self, *arguments):
        return [sys.executable, FARM, *map(str, arguments)]

    def farm(self, *arguments, code=0, environment=None):
        """What it prints, with what it complains of."""
        done = subprocess.run(self.command(*arguments), env=environment or self.environment, cwd=self.folder, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        self.assertEqual(done.returncode, code, done.stdout)
        return done.stdout

    def submission(self, *options):
        wrap = shlex.join([str(self.wrapper), str(self.faults)])
        return ["submit", self.scene.name, "--previews", "--quality", "quick", "--shards", 8, "--out", self.job.name,
                "--workbench", os.environ["QX_WORKBENCH"], "--wrap", wrap, *options]

    def fault(self, shard, what):
        (self.faults / str(shard)).write_text(f"{what}\n")

    def hanging(self):
        """The node where a task hangs, once one does."""
        file = self.faults / "hangs"
        return slurm.wait_until(lambda: file.exists() and file.read_text().strip(), "a task hangs")

    def status(self):
        done = subprocess.run(self.command("status", self.job, "--json"), env=self.environment, capture_output=True, text=True)
        self.assertEqual(done.stderr, "")
        return json.loads(done.stdout)

    def wait_for_end(self):
        def end():
            self.while_waiting()
            status = self.status()
            return status["state"] != "running" and not status["jobs"] and status
        return slurm.wait_until(end, "the job ends")

    def while_waiting(self):
        """A chance to do what an administrator or the time would do."""

    def assert_like_one_process(self):
        """The result is that of one process, byte for byte."""
        scene = self.scene.read_bytes()
        if scene not in self.alone:
            result = self.folder / "alone.gltf"
            self.workbench("previews", self.scene, "--all", "--quality", "quick", "--save", result)
            self.alone[scene] = result.read_bytes()
        self.assertEqual((self.job / "result.gltf").read_bytes(), self.alone[scene])

    def products(self):
        return {path.name for path in (self.job / "products").glob("*/*")}

    def rounds(self):
        return [each["shards"] for each in json.loads((self.job / "farm.json").read_text())["rounds"]]

    def edit(self, pattern, text, count):
        """Replaces what the pattern finds in the scene's document of variants."""
        document = self.folder / "document.xml"
        self.workbench("document", self.scene, "--out", document)
        edited, found = re.subn(pattern, text, document.read_text(), count, re.DOTALL)
        self.assertTrue(found)
        document.write_text(edited)
        self.workbench("document", self.scene, "--in", document, "--save", self.scene, "--force")

    def assert_left_alone(self):
        """No process works in the test's folder."""
        marker = str(self.folder).encode()
        left = []
        for path in Path("/proc").glob("[0-9]*/cmdline"):
            try:
                left += [path] if marker in path.read_bytes() else []
            except OSError:
                continue
        self.assertEqual(left, [])


class SlurmTest(FarmTest):
    @classmethod
    def setUpClass(cls):
        cls.slurm = slurm.Slurm()
        cls.slurm.__enter__()
        cls.environment = cls.slurm.environment

    @classmethod
    def tearDownClass(cls):
        cls.slurm.__exit__()
        assert not cls.slurm.folder.exists() and not cls.slurm.processes(), "Slurm has left traces"

    def while_waiting(self):
        """A task that lost its node would be held for two minutes."""
        for job in self.slurm.run("squeue", "--noheader", "--array", "--states=PENDING", "--format=%i %r").splitlines():
            if job.endswith("BeginTime"):
                self.slurm.run("scontrol", "update", f"JobId={job.split()[0]}", "StartTime=now")

    def test_a_killed_task_and_a_lost_node_lose_nothing(self):
        self.fault(2, "kill once")
        self.fault(3, "hang once")
        said = self.farm(*self.submission())
        self.assertRegex(said, r"(?s)in 8 shards; .* min, \d+ MB and 1 CPU.*array job \d+, gather job \d+")
        node = self.hanging()
        slurm.wait_until(lambda: not (self.faults / "2").exists(), "the other task began")
        self.slurm.lose_node(node)
        end = self.wait_for_end()
        self.slurm.start_node(node)
        self.assertEqual((end["state"], end["done"], end["code"]), ("done", 36, 0), end)
        self.assertEqual(self.rounds()[1:], [[2]], "a killed task is submitted again, alone")
        self.assertIn("Killed", (self.job / "logs/2.txt").read_text())
        self.assert_like_one_process()

    def test_what_fails_always_is_named_and_resumed_and_so_is_what_is_stale(self):
        self.fault(2, "kill always")
        self.farm(*self.submission("--retries", 1))
        end = self.wait_for_end()
        self.assertEqual((end["state"], self.rounds()[1:]), ("failed", [[2]]))
        failed = end["shards"][1]
        self.assertEqual((failed["state"], len(end["missing"])), ("failed", failed["items"] - failed["done"]))
        self.assertLess(0, failed["done"], "each round adds what it had made")
        self.assertIn(end["missing"][0], self.farm("status", self.job, code=1))

        (self.faults / "2").unlink()
        self.farm("resume", self.job)
        self.assertLessEqual(len(self.rounds()[0]), len(end["missing"]), "there are no tasks without work")
        self.assertEqual(self.wait_for_end()["state"], "done")
        self.assert_like_one_process()

        self.edit("Paint Azure", "Paint Racing Green", 1)
        before = self.products()
        self.assertIn("1 missing", self.farm("resume", self.job))
        self.assertEqual(self.wait_for_end()["state"], "done")
        self.assertEqual((len(self.products() - before), before - self.products()), (1, set()))
        self.assert_like_one_process()

    def test_cancel_leaves_nothing_running(self):
        self.fault(3, "wait once")
        self.farm(*self.submission())
        self.hanging()
        self.assertIn("its jobs are still there", self.farm("resume", self.job, code=1))
        self.farm("cancel", self.job)
        self.assertEqual(self.slurm.run("squeue", "--noheader"), "")
        self.assert_left_alone()
        self.assertEqual(self.status()["state"], "cancelled")
        self.assertIn("nothing was left", self.farm("cancel", self.job))

    def test_what_slurm_refuses_is_told(self):
        said = self.farm(*self.submission("--partition", "none such"), code=1)
        self.assertIn("invalid partition", said)
        self.assertIn("there is no job", self.farm("status", self.job, code=1))
        self.job = self.job.with_name("100%")
        self.assertIn("place holders", self.farm(*self.submission(), code=1))


class LocalTest(FarmTest):
    def test_a_killed_task_is_tried_again_or_named(self):
        self.fault(2, "kill always")
        said = self.farm(*self.submission("--local", 2, "--retries", 0), code=1)
        names = self.status()["missing"]
        self.assertIn(f"failed: {len(names)} missing", said)
        self.assertTrue(names and names[0] in said, said)
        for shard in range(1, 9):
            self.fault(shard, "kill once")
        damaged = sorted((self.job / "products").glob("*/*"))[0]
        damaged.write_bytes(damaged.read_bytes()[:-20])
        self.assertIn("done: ", self.farm("resume", self.job, "--retries", 1))
        self.assertEqual(self.status()["state"], "done")
        self.assert_like_one_process()
        log = (self.job / "joblog").read_text().splitlines()
        self.assertEqual({line.split("\t")[6] for line in log[1:]}, {"0"}, log)

    def test_what_ends_early_goes_on_later(self):
        self.edit("<VariantSet .*?</VariantSet>", "", 24)  # a dozen will do
        for how, end in (("Ctrl-C", lambda process: os.killpg(process.pid, signal.SIGINT)),
                         ("cancel", lambda _: self.farm("cancel", self.job))):
            with self.subTest(how=how):
                self.fault(3, "wait once")
                words = self.submission("--local", 2) if how == "Ctrl-C" else ["resume", self.job]
                process = subprocess.Popen(self.command(*words), cwd=self.folder, start_new_session=True,
                                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
                slurm.wait_until((self.faults / "hangs").exists, "a task waits")
                self.assertIn("works on it", self.farm("resume", self.job, code=1))
                end(process)
                self.assertEqual(process.wait(), 130)
                self.assert_left_alone()
                self.assertEqual(self.status()["state"], "cancelled")
                (self.faults / "hangs").unlink()
        self.assertIn("done: ", self.farm("resume", self.job))
        self.assert_like_one_process()


class RefusedTest(FarmTest):
    """Without an engine."""

    def setUp(self):
        super().setUp()
        programs = self.folder / "programs"
        programs.mkdir()
        for name in ("bash", "rm"):
            (programs / name).symlink_to(shutil.which(name))
        self.environment = {**os.environ, "PATH": str(programs)}

    def test_wrong_use_leaves_nothing(self):
        submission = self.submission()
        for reason, words in (
            ("no sbatch", submission),
            ("needs GNU parallel", [*submission, "--local", 1]),
            ("needs apptainer", [*submission, "--container", "image.sif"]),
            ("no such file", ["submit", "no.gltf", *submission[2:]]),
            ("no such folder", [*submission, "--save", "no/out.gltf"]),
            ("no program", [*submission, "--workbench", "no"]),
            ("there is no job", ["resume", self.folder]),
        ):
            with self.subTest(reason=reason):
                self.assertIn(reason, self.farm(*words, code=1))
                self.assertFalse(self.job.exists())

    def test_a_folder_is_of_one_job(self):
        self.job.mkdir()
        (self.job / "notes").write_text("of somebody else")
        sbatch = self.folder / "programs/sbatch"
        sbatch.write_text("#!/bin/bash\necho 1\n")
        sbatch.chmod(0o755)
        self.assertIn("not empty", self.farm(*self.submission(), code=1))
        (self.job / "notes").unlink()
        self.assertIn("exit code 2", self.farm(*self.submission("--", "--ground", "maybe"), code=2))
        # What gathering would refuse when all is made.
        self.assertIn("end in .gltf or .glb", self.farm(*self.submission("--save", "out.png"), code=2))
        self.assertIn("no option --junit", self.farm(*self.submission("--", "--junit"), code=2))
        self.assertIn("No closing quotation", self.farm(*self.submission("--wrap", "env 'A=b"), code=2))
        # A path of the wrapper's own is taken as it is.
        inside = self.folder / "inside"
        inside.write_text('#!/bin/bash\nshift; exec "$QX_WORKBENCH" "$@"\n')
        inside.chmod(0o755)
        self.farm(*self.submission("--time", 7, "--memory", 300, "--cpus", 2, "--wrap", inside, "--workbench", "/image/workbench"))
        self.assertRegex((self.job / "shard.sh").read_text(), r"--cpus-per-task=2\n#SBATCH --mem=300M\n#SBATCH --time=7\n")
        self.assertIn("holds a job already", self.farm(*self.submission(), code=1))


def missing(name):
    """What a class of tests needs and is not here."""
    if name == "SlurmTest":
        return slurm.missing()
    is_gnu = shutil.which("parallel") and "GNU" in subprocess.run(
        ["parallel", "--version"], capture_output=True, text=True).stdout
    return ["GNU parallel"] if name == "LocalTest" and not is_gnu else []


if __name__ == "__main__":
    needed = missing(sys.argv[1])
    if needed:
        print(f"Skipped: there is no {', '.join(needed)}")
    else:
        unittest.main(argv=[*sys.argv, "--failfast"], verbosity=2)
