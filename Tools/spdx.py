"""Writes an SPDX document: our packages, what they need and were built with, versions and licences.

Versions come from dpkg. A package of the system that has no licence here is an error: look it up.
"""

import hashlib
import json
import re
import subprocess
import sys
from datetime import datetime, timezone

OWN_LICENCE = "LGPL-2.1-or-later"

# By Debian source package, as its copyright file tells for the parts that we use.
LICENCES = {
    "boost-defaults": "BSL-1.0",
    "boost1.74": "BSL-1.0",
    "cmake": "BSD-3-Clause",
    "draco": "Apache-2.0",
    "embree": "Apache-2.0",
    "golang-github-evanw-esbuild": "MIT",
    "gcc-12": "GPL-3.0-or-later WITH GCC-exception-3.1",
    "glibc": "LGPL-2.1-or-later",
    "meshoptimizer": "MIT",
    "ninja-build": "Apache-2.0",
    "nlohmann-json3": "MIT",
    "python3-defaults": "PSF-2.0",
    "python3.11": "PSF-2.0",
    "qtbase-opensource-src": "LGPL-3.0-only OR GPL-2.0-only OR GPL-3.0-only",
    "qtimageformats-opensource-src": "LGPL-3.0-only OR GPL-2.0-only OR GPL-3.0-only",
    "qttools-opensource-src": "GPL-3.0-only WITH Qt-GPL-exception-1.0",
    "qttranslations-opensource-src": "GPL-3.0-only WITH Qt-GPL-exception-1.0",
    "tinygltf": "MIT",
}


def field(deb, name):
    return subprocess.run(["dpkg-deb", "-f", deb, name], check=True, capture_output=True, text=True).stdout.strip()


def needed(deb):
    """Names of the packages that a package depends on."""
    return [re.match(r"[\w.+-]+", part.strip()).group() for part in field(deb, "Depends").split(",") if part.strip()]


def identifier(name):
    return "SPDXRef-" + re.sub(r"[^A-Za-z0-9.-]", "-", name)


def package(name, version, licence, **more):
    return {"name": name, "SPDXID": identifier(name), "versionInfo": version, "licenseDeclared": licence,
            "licenseConcluded": licence, "copyrightText": "NOASSERTION", "downloadLocation": "NOASSERTION",
            "filesAnalyzed": False, **more}


def of_the_system(name):
    """The installed package; None for a name that only stands for another package, which is needed as well."""
    shown = subprocess.run(["dpkg-query", "-W", "-f", "${Version};${source:Package}\n", name], check=True,
                           capture_output=True, text=True).stdout
    version, source = shown.splitlines()[0].split(";")
    if not version:
        return None
    if source not in LICENCES:
        sys.exit(f"Tools/spdx.py: no licence is known for {name} of the source package {source}")
    return package(name, version, LICENCES[source], sourceInfo=f"Debian source package {source}")


def document(debs, built_with, bundled, when):
    """The text; `debs` are files, `built_with` names of packages, `bundled` what npm's lock file says of the
    packages that are part of the Workbench, `when` seconds since 1970."""
    ours = {field(deb, "Package"): deb for deb in debs}
    packages, relations, used = [], [("SPDXRef-DOCUMENT", "DESCRIBES", name) for name in ours], {}
    for name in sorted({*built_with, *(other for deb in debs for other in needed(deb))} - set(ours)):
        used[name] = of_the_system(name)
    for name, deb in ours.items():
        checksum = {"algorithm": "SHA256", "checksumValue": hashlib.sha256(deb.read_bytes()).hexdigest()}
        packages.append(package(name, field(deb, "Version"), OWN_LICENCE, packageFileName=deb.name,
                                checksums=[checksum]))
        relations += [(identifier(name), "DEPENDS_ON", other) for other in dict.fromkeys(needed(deb))
                      if used.get(other, True)]
        relations += [(identifier(other), "BUILD_DEPENDENCY_OF", name) for other in built_with]
    packages += filter(None, used.values())
    packages += [package(name, locked["version"], locked["license"]) for name, locked in bundled.items()]
    relations += [(identifier("qxvariants-workbench"), "CONTAINS", name) for name in bundled]
    content = {
        "packages": packages,
        "relationships": [{"spdxElementId": subject, "relationshipType": kind, "relatedSpdxElement": identifier(other)}
                          for subject, kind, other in relations],
    }
    digest = hashlib.sha256(json.dumps(content).encode()).hexdigest()
    return json.dumps({
        "spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT", "name": "qxVariants",
        "documentNamespace": f"https://spdx.org/spdxdocs/qxvariants-{digest}",
        "creationInfo": {"creators": ["Tool: Tools/package"],
                         "created": datetime.fromtimestamp(when, timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ")},
        **content}, indent=2) + "\n"
