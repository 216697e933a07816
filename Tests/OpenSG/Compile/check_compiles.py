#!/usr/bin/env python3
"""Compiles small sources: what must be refused is refused, what must be accepted is accepted.

    check_compiles.py COMPILER FILES... -- FLAGS...

A .cpp file must compile without its lines that end in "// refused", and with them the compiler must
complain about each. A .txt file names headers, each of which must compile on its own.
Exit code 1 when anything differs.
"""

import os
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

MARK = "// refused"


def compiled(command, text):
    environment = {**os.environ, "LC_ALL": "C"}
    return subprocess.run(command, input=text + "\n", capture_output=True, text=True, env=environment)


def complaint_about_whole(command, name, text):
    done = compiled(command, text)
    return [f"{name} does not compile:\n{done.stderr}"] if done.returncode else []


def complaints_about_lines(command, name, lines):
    marked = [number for number, line in enumerate(lines, 1) if line.endswith(MARK)]
    # No warning may pass for a refusal, and no limit may hide one.
    command = [*command, "-w", "-fmax-errors=0"]
    errors = compiled(command, f'#line 1 "{name}"\n' + "\n".join(lines)).stderr
    place = re.escape(name) + r":(\d+):\d+:\s+(?:error|required from|note: in instantiation)"
    refused = {int(number) for number in re.findall(place, errors)}
    return [f"{name}:{number}: compiles: {lines[number - 1].strip()}" for number in marked if number not in refused]


def jobs_of(path):
    text = path.read_text()
    if path.suffix == ".txt":
        return [(complaint_about_whole, name, f"#include <OpenSG/OSG{name}.h>") for name in text.split()]
    lines = text.splitlines()
    accepted = "\n".join("" if line.endswith(MARK) else line for line in lines)
    return [(complaint_about_whole, path.name, accepted), (complaints_about_lines, path.name, lines)]


def main(arguments):
    split = arguments.index("--")
    command = [arguments[0], *arguments[split + 1:], "-fsyntax-only", "-x", "c++", "-"]
    jobs = [job for name in arguments[1:split] for job in jobs_of(Path(name))]
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        complaints = sum(pool.map(lambda job: job[0](command, job[1], job[2]), jobs), [])
    print("\n".join(complaints))
    return bool(complaints)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
