#!/usr/bin/env python3
"""A real Slurm of several nodes on this machine, in a folder of its own, as whoever starts it.

Usage: Tests/Farm/slurm.py COMMAND...     runs a command, such as bash, with a Slurm of four nodes around it
"""

import atexit
import os
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time
from pathlib import Path

PROGRAMS = ("munged", "slurmctld", "slurmd", "sbatch")
PATIENCE = 60  # seconds; nothing takes as long

# Without cgroups, which ordinary users cannot have; ReturnToService lets a node that was down come back.
CONFIGURATION = """\
ClusterName=farm
SlurmctldHost={host}(127.0.0.1)
SlurmctldPort={ports[0]}
SlurmUser={user}
SlurmdUser={user}
AuthInfo=socket={folder}/munge.socket
CommunicationParameters=NoCtldInAddrAny,NoInAddrAny
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
JobAcctGatherType=jobacct_gather/none
MpiDefault=none
SelectType=select/cons_tres
SelectTypeParameters=CR_CPU
SchedulerParameters=batch_sched_delay=0,sched_min_interval=1
SlurmdParameters=config_overrides
ReturnToService=2
JobRequeue=1
StateSaveLocation={folder}/state
SlurmctldPidFile={folder}/slurmctld.pid
SlurmctldLogFile={folder}/slurmctld.log
SlurmdSpoolDir={folder}/spool.%n
SlurmdPidFile={folder}/%n.pid
SlurmdLogFile={folder}/%n.log
{nodes}
PartitionName=all Nodes=ALL Default=YES MaxTime=INFINITE State=UP
"""
NODE = "NodeName={name} NodeHostname={host} NodeAddr=127.0.0.1 Port={port} CPUs={cpus} RealMemory=65536"


def missing():
    """The programs that are not installed."""
    return [name for name in PROGRAMS if not program(name)]


def program(name):
    # An ordinary user has no sbin in PATH.
    return shutil.which(name, path=os.environ.get("PATH", "") + ":/usr/sbin")


def wait_until(condition, what):
    """What condition returns, as soon as that is true."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        result = condition()
        if result:
            return result
        time.sleep(0.05)
    raise TimeoutError(f"not within {PATIENCE} s: {what}")


def processes_with(variables=(), files=()):
    """Numbers of the processes that have all these NAME=VALUE in their environment, or one of the files open. The dead
    that nobody has asked after do not count."""
    found = []
    for process in Path("/proc").glob("[0-9]*"):
        try:
            if (process / "stat").read_text().rpartition(")")[2].split()[0] == "Z":
                continue
            environment = (process / "environ").read_bytes().split(b"\0")
            if (variables and all(variable.encode() in environment for variable in variables)
                    or any(os.path.realpath(file) in files for file in (process / "fd").iterdir())):
                found.append(int(process.name))
        except OSError:
            continue  # it has ended, or is somebody else's
    return found


def kill(pids):
    for pid in pids:
        try:
            os.kill(pid, signal.SIGKILL)
        except ProcessLookupError:
            pass


def free_ports(count):
    sockets = [socket.socket() for _ in range(count)]
    try:
        for each in sockets:
            each.bind(("127.0.0.1", 0))
        return [each.getsockname()[1] for each in sockets]
    finally:
        for each in sockets:
            each.close()


class Slurm:
    """with Slurm() as slurm: slurm.run("squeue"); slurm.environment is what programs need to find it."""

    def __init__(self, nodes=4, cpus=2):
        self.names = [f"n{number}" for number in range(1, nodes + 1)]
        self.cpus = cpus
        self.daemons = {}

    def __enter__(self):
        # Short, as the name of a socket has to be, and open to its own daemon.
        self.folder = Path(tempfile.mkdtemp(prefix="qxslurm.", dir="/tmp"))
        self.folder.chmod(0o755)
        self.variable = f"SLURM_CONF={self.folder}/slurm.conf"
        kept = {name: value for name, value in os.environ.items() if not name.startswith(("SLURM", "SBATCH"))}
        self.environment = {**kept, "SLURM_CONF": f"{self.folder}/slurm.conf"}
        # Tests that are interrupted do not get to the end of their class; SIGTERM is like Ctrl-C.
        atexit.register(self.__exit__)
        signal.signal(signal.SIGTERM, signal.default_int_handler)
        try:
            self._configure()
            self._start()
        except BaseException:
            self.__exit__()
            raise
        return self

    def _configure(self):
        host = socket.gethostname().partition(".")[0]
        ports = free_ports(len(self.names) + 1)
        nodes = [NODE.format(name=name, host=host, port=port, cpus=self.cpus)
                 for name, port in zip(self.names, ports[1:])]
        user = subprocess.run(["id", "-un"], check=True, capture_output=True, text=True).stdout.strip()
        (self.folder / "slurm.conf").write_text(CONFIGURATION.format(
            host=host, ports=ports, user=user, folder=self.folder, nodes="\n".join(nodes)))
        key = self.folder / "munge.key"
        key.touch(mode=0o600)
        key.write_bytes(os.urandom(128))
        for name in ["state", *(f"spool.{name}" for name in self.names)]:
            (self.folder / name).mkdir()

    def _start(self):
        files = {"socket": "munge.socket", "key-file": "munge.key", "log-file": "munged.log", "pid-file": "munged.pid",
                 "seed-file": "munged.seed"}
        self._daemon("munged", "--foreground", *(f"--{option}={self.folder}/{name}" for option, name in files.items()))
        wait_until((self.folder / "munge.socket").exists, "munged answers")
        self._daemon("slurmctld", "-D")
        for name in self.names:
            self.start_node(name)
        wait_until(lambda: all(state == "idle" for state in self.nodes().values()) and self.nodes(), "the nodes are idle")

    def _daemon(self, name, *arguments, key=None):
        self.daemons[key or name] = subprocess.Popen(
            [program(name), *arguments], cwd=self.folder, env=self.environment, stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def start_node(self, name):
        self._daemon("slurmd", "-D", "-N", name, key=name)

    def run(self, *command):
        """What it prints."""
        done = subprocess.run(command, env=self.environment, capture_output=True, text=True)
        return done.stdout if done.returncode == 0 else ""

    def nodes(self):
        return dict(line.split() for line in self.run("sinfo", "--noheader", "--Node", "--format=%N %t").splitlines())

    def lose_node(self, name):
        """The node and all that runs there end at once; the controller is told, as it would notice itself later."""
        daemon = self.daemons.pop(name)
        daemon.kill()
        daemon.wait()
        # The steps, which keep a log but no environment, first, or they would report what became of their tasks.
        kill(processes_with(files=[f"{self.folder}/{name}.log"]))
        kill(processes_with([self.variable, f"SLURMD_NODENAME={name}"]))
        self.run("scontrol", "update", f"NodeName={name}", "State=DOWN", "Reason=lost")

    def processes(self):
        """All that belong to it: daemons, steps and tasks."""
        logs = [f"{self.folder}/{name}.log" for name in ["munged", "slurmctld", *self.names]]
        return processes_with([self.variable], logs)

    def __exit__(self, *_):
        atexit.unregister(self.__exit__)
        self.run("scancel", "--user", str(os.getuid()))
        if "slurmctld" in self.daemons:
            for daemon in reversed(list(self.daemons.values())):
                daemon.terminate()
        for daemon in self.daemons.values():
            try:
                daemon.wait(10)
            except subprocess.TimeoutExpired:
                daemon.kill()
                daemon.wait()
        while self.processes():
            kill(self.processes())
            time.sleep(0.02)
        shutil.rmtree(self.folder)


def main():
    if len(sys.argv) < 2 or sys.argv[1].startswith("-"):
        print(__doc__.strip())
        return 2
    if missing():
        print(f"slurm.py: not installed: {', '.join(missing())}; Tools/install-dependencies test", file=sys.stderr)
        return 1
    with Slurm() as slurm:
        return subprocess.run(sys.argv[1:], env=slurm.environment).returncode


if __name__ == "__main__":
    sys.exit(main())
