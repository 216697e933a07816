"""The version of this project, the releases in its changelog, and its Debian packages' names."""

import re
import sys
from collections import namedtuple
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]

# A release of the changelog: its version, its day (empty for what is unreleased), its lines.
Section = namedtuple("Section", "version date lines")


def version(root=ROOT):
    """The one version number, of CMakeLists.txt."""
    found = re.search(r"^project\(\w+ VERSION (\d+\.\d+\.\d+)\b", (root / "CMakeLists.txt").read_text(), re.MULTILINE)
    if not found:
        sys.exit("CMakeLists.txt: project() names no VERSION of three numbers")
    return found.group(1)


def changelog(root=ROOT):
    """The sections of CHANGELOG.md, the newest first."""
    sections = []
    for line in (root / "CHANGELOG.md").read_text().splitlines():
        if line.startswith("## "):
            heading = re.fullmatch(r"## (?:(Unreleased)|(\d+\.\d+\.\d+) \((\d{4}-\d\d-\d\d)\))", line)
            if not heading:
                sys.exit(f'CHANGELOG.md: "{line}" is neither "## Unreleased" nor "## 1.2.3 (2000-01-31)"')
            sections.append(Section(heading.group(1) or heading.group(2), heading.group(3) or "", []))
        elif sections:
            sections[-1].lines.append(line)
    return sections


def points(lines):
    """The headings and the points of a section, one string each, without their lines' breaks."""
    found = []
    for line in lines:
        if line.startswith("  ") and found:
            found[-1] += " " + line.strip()
        elif line.strip():
            found.append(line)
    return found
