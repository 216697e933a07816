"""The tools must see planted faults, accept what is right, and leave nothing half done."""

import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
MODULE = "Source/Libs/Variants"

THING = """#include <QObject>
class qxThing : public QObject {
    Q_OBJECT
    QString name() { return tr("&Open \\"%1\\"..."); }
    QString count(int sets) { return tr("%n sets", nullptr, sets); }
};
"""

# An apt-get that knows a mirror and gets nothing from it.
APT_GET = """#!/bin/bash
for argument; do [[ $argument == --print-uris ]] && { %s; exit; }; done
echo "E: Could not connect to the mirror" >&2
exit 100
"""
MIRROR = "echo \"'http://mirror.invalid/debian/dists/$(. /etc/os-release; echo $VERSION_CODENAME)/InRelease' x 0\""


class ToolTest(unittest.TestCase):
    """A test with a folder of its own."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)

    def put(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
        return path

    def run_tool(self, tool, *options):
        """The complaints of a tool about the folder."""
        done = subprocess.run([ROOT / "Tools" / tool, "--root", self.root, *options], capture_output=True, text=True)
        self.assertEqual(done.stderr, "")
        self.assertEqual(done.returncode, 1 if done.stdout else 0, done.stdout)
        return done.stdout


class CheckTest(ToolTest):
    def setUp(self):
        super().setUp()
        subprocess.run(["git", "init", "-q", self.root], check=True)
        self.put(".clang-format", (ROOT / ".clang-format").read_text())

    def assert_complaints(self, tool, expected):
        """One complaint about each of these files, which holds the reason."""
        complaints = self.run_tool(tool).splitlines()
        self.assertEqual(len(complaints), len(expected), complaints)
        for file, reason in expected.items():
            with self.subTest(file=file, reason=reason):
                self.assertTrue(any(said.startswith(f"{file}:") and reason in said for said in complaints), complaints)


class LayersTest(CheckTest):
    def setUp(self):
        super().setUp()
        for header in ("Source/Libs/OpenSG/include/OpenSG/OSGNode.h", "Source/Libs/HostApi/qxLog.h",
                       "Source/Libs/Host/Scene/qxLoader.h", f"{MODULE}/qxVariants.h", f"{MODULE}/Internal/qxEdit.h"):
            self.put_include(header, "<vector>")

    def put_include(self, file, include):
        self.put(file, f"#pragma once\n#include {include}\n")

    def test_includes_downwards_are_fine(self):
        for file, include in (
            ("Source/Libs/OpenSG/OSGNode.cpp", "<OpenSG/OSGNode.h>"),
            ("Source/Libs/HostApi/qxScript.h", "<OpenSG/OSGNode.h>"),
            ("Source/Libs/HostApi/qxMessage.h", "<boost/any.hpp>"),
            ("Source/Libs/Host/a.cpp", '"Scene/qxLoader.h"'),
            ("Source/Libs/Host/b.cpp", "<tiny_gltf.h>"),
            (f"{MODULE}/a.cpp", '"qxLog.h"'),
            (f"{MODULE}/b.cpp", '"Internal/qxEdit.h"'),
            (f"{MODULE}/qxVariantsPython.cpp", "<boost/python.hpp>"),
            ("Source/Apps/Workbench/main.cpp", '"qxVariants.h"'),
            ("Tests/Variants/EditTest.cpp", '"Internal/qxEdit.h"'),
            ("Tests/Host/LoaderTest.cpp", '"Scene/qxLoader.h"'),
        ):
            self.put_include(file, include)
        self.assertEqual(self.run_tool("check-layers"), "")

    def test_includes_upwards_and_sideways_are_seen(self):
        expected = {}
        for folder, include, reason in (
            ("Source/Libs/OpenSG", "<QString>", "OpenSG must not include Qt"),
            ("Source/Libs/OpenSG", '"qxLog.h"', "OpenSG must not include HostApi"),
            ("Source/Libs/HostApi", '"qxVariants.h"', "HostApi must not include Variants"),
            ("Source/Libs/HostApi", "<QWidget>", "HostApi must not include Qt"),
            ("Source/Libs/HostApi", "<Python.h>", "HostApi must not include Python"),
            ("Source/Libs/Common", '"Scene/qxLoader.h"', "Common must not include Host"),
            ("Source/Libs/Host", '"qxVariants.h"', "Host must not include Variants"),
            (MODULE, '"Scene/qxLoader.h"', "Variants must not include Host"),
            (MODULE, '"../Host/Scene/qxLoader.h"', "Variants must not include Host"),
            (f"{MODULE}/Internal", '"Scene/qxLoader.h"', "Internal must not include Host"),
            (MODULE, "<boost/python.hpp>", "Variants must not include boost/python"),
            ("Source/Apps/Workbench", '"Internal/qxEdit.h"', "Workbench must not include Internal"),
            ("Tests/Scenarios", '"Internal/qxEdit.h"', "Tests must not include Internal"),
            ("Somewhere", "<vector>", "lies in no layer"),
        ):
            file = f"{folder}/fault{len(expected)}.cpp"
            self.put_include(file, include)
            expected[f"{file}:2"] = reason
        self.assert_complaints("check-layers", expected)

    def test_the_headers_of_the_module_stand_in_rows(self):
        self.put_include(f"{MODULE}/Internal/qxEdit.h", '"qxVariants.h"')
        self.put_include(f"{MODULE}/qxNew.h", "<vector>")
        self.put_include(f"{MODULE}/qxVariantSet.h", '"Internal/qxEdit.h"')
        self.assert_complaints("check-layers", {
            f"{MODULE}/qxVariantSet.h": "no public header must include Internal",
            f"{MODULE}/Internal/qxEdit.h": "row 1 of the module must not include row 4",
            f"{MODULE}/qxNew.h": "has no row"})

    def test_classes_form_no_rings(self):
        panel, host = "Source/Libs/VariantsPanel", "Source/Libs/Host"
        for file, include in ((f"{panel}/qxA.h", '"qxB.h"'), (f"{panel}/qxB.h", '"qxA.h"'),
                              ("Source/Libs/HostApi/qxC.h", "<QString>"), (f"{host}/qxC.cpp", '"Scene/qxD.h"'),
                              (f"{host}/Scene/qxD.h", "<vector>"), (f"{host}/Scene/qxD.cpp", '"Scene/qxE.h"'),
                              (f"{host}/Scene/qxE.h", '"qxC.h"'), (f"{host}/Scene/qxF.cpp", '"Scene/qxE.h"')):
            self.put_include(file, include)
        self.assert_complaints("check-layers", {
            f"{panel}/qxA.h:2": "qxA forms a ring of 2 classes with qxB",
            f"{panel}/qxB.h:2": "qxB forms a ring of 2",
            f"{host}/qxC.cpp:2": "a ring of 3 classes with qxD, qxE",
            f"{host}/Scene/qxD.cpp:2": "a ring of 3",
            f"{host}/Scene/qxE.h:2": "a ring of 3"})

    def test_modules_of_the_page_import_their_own_and_three(self):
        web = "Source/Web"
        for file, imports in (
            ("a", 'import { b } from "./b";'), ("b", 'import {\n    type A,\n} from "./a";'),
            ("c", 'import * as THREE from "three";\nimport { D } from "three/addons/d.js";\nexport { A } from "./a";'),
            ("d", 'import "preact";'), ("e", 'import { f } from "../../Tests/Web/f";'),
        ):
            self.put(f"{web}/{file}.ts", f"// {file}\n{imports}\n")
        self.put("Source/Translations/qx_de.ts", 'import "nothing";\n')
        self.assert_complaints("check-layers", {
            f"{web}/a.ts:2": "forms a ring of 2 modules with Source/Web/b.ts",
            f"{web}/b.ts:4": "forms a ring of 2 modules",
            f"{web}/d.ts:2": "must not import preact",
            f"{web}/e.ts:2": "must not import Tests/Web/f.ts"})

    def test_the_tables_name_what_is_there(self):
        self.put("Tools/check-layers", "")
        missing = re.findall(r"Tools/check-layers:\d+: (\S+) does not exist", self.run_tool("check-layers"))
        self.assertTrue({"qxVariant", f"{MODULE}/qxVariantsPython.cpp", "Tests"} <= set(missing), missing)
        self.assertFalse({"qxVariants", "Source/Libs/Host"} & set(missing))

    def test_classes_of_one_name_are_seen(self):
        self.put("Source/Libs/VariantsPanel/qxA.h", "class qxOnce;\nclass qxTwice : public qxOnce {\n};\n")
        self.put("Source/Libs/Host/qxB.cpp", "struct qxOnce::Part {\n};\n")
        self.put("Source/Apps/Workbench/qxC.h", "struct qxTwice {\n};\n")
        self.assert_complaints("check-layers", {
            "Source/Libs/VariantsPanel/qxA.h": "qxTwice is a class of Source/Apps/Workbench/qxC.h already"})


class StyleTest(CheckTest):
    def test_right_code_is_fine(self):
        calls = "    f();\n" * 70
        self.put("tidy.h", "#pragma once\n\nint f(int a, int b);\n")
        self.put("tidy.cpp", '#include "tidy.h"\n\nint f(int a, int b)\n{\n    return a + b;\n}\n')
        self.put("list.cpp", f"// A list, not a procedure.\nvoid f()\n{{\n{calls}}}\n")
        self.put("odd.cpp",
                 "const Names names{\"{\", '{', R\"(}}})\"};\n"
                 "struct Row : Base<int(int)> {\n"
                 "    Row() : a{1}, b(2) { f(1, 2, 3, 4, 5, 6, 7); }\n"
                 "};\n"
                 "Map<int, Pair<int, int>> f(Map<int, int> a, const Function<void(int, int, int, int, int)> &b)\n"
                 "{\n"
                 "    if (a)\n        return {};\n    else if (b)\n        return {1};\n    else if (c)\n"
                 "        return {2};\n    else if (d)\n        return {{3}, {4}};\n    else if (e)\n"
                 "        return {};\n    return {5};\n}\n")
        self.assertEqual(self.run_tool("check-style"), "")

    def test_broken_limits_are_seen(self):
        calls = "    f();\n" * 58
        deep = "    if (a)\n        while (a)\n            if (a)\n                for (;;)\n                    if (a)\n"
        self.put("own.h", "#pragma once\n")
        expected = {"own.cpp": "own.h is not the first include"}
        self.put("own.cpp", '// clang-format off\n#include <vector>\n#include "own.h"\n')
        for reason, suffix, text in (
            ("f has 61 lines", "cpp", f"void f()\n{{\n{calls}}}\n"),
            ("f has 6 parameters", "cpp", "void f(int, int, int, int, int, Map<int, int>) {}\n"),
            ("f is nested 5 deep", "cpp", f"void f()\n{{\n{deep}                        f();\n}}\n"),
            ("501 lines", "cpp", "int a;\n" * 501),
            ("501 lines", "ts", "let a;\n" * 501),
            ("251 lines", "h", "#pragma once\n" + "int a;\n" * 250),
            ("9 includes", "h", "#pragma once\n" + "".join(f"#include <a{n}>\n" for n in range(9))),
            ("no #pragma once", "h", "// #pragma once\n"),
            ("using namespace", "h", "#pragma once\nusing namespace osg;\n"),
            ("white space at the end", "txt", "a \n"),
            ("no end of line", "txt", "a"),
            ("clang-format", "cpp", "int  a;\n"),
        ):
            file = f"{'Source/Web/' if suffix == 'ts' else ''}fault{len(expected)}.{suffix}"
            self.put(file, text)
            expected[file] = reason
        self.assert_complaints("check-style", expected)


class TranslationsTest(ToolTest):
    def setUp(self):
        super().setUp()
        self.source = self.put("Source/qxThing.h", THING)
        (self.root / "Source/Translations").mkdir()
        self.german = self.root / "Source/Translations/qxVariants_de.ts"
        self.english = self.root / "Source/Translations/qxVariants_en.ts"

    def check(self, *options):
        return self.run_tool("check-translations", *options)

    def translate(self, german="„%1“ &amp;öffnen …", one="ein Set"):
        """Fills the catalogues as a person does after --fix."""
        self.check("--fix")
        for file, forms in ((self.german, (one, "%n Sets")), (self.english, ("%n set", "%n sets"))):
            text = file.read_text().replace(' type="unfinished"', "")
            for form in forms:
                text = re.sub("<numerusform></", f"<numerusform>{form}</", text, count=1)
            file.write_text(text.replace("<translation></", f"<translation>{german}</"))

    def test_new_texts_wait_for_their_translation(self):
        self.assertIn('qxThing: "%n sets": is not in the catalogue', self.check())
        said = self.check("--fix")
        self.assertIn('qxVariants_de.ts: qxThing: "&Open "%1"...": is not translated', said)
        self.assertIn('qxVariants_en.ts: qxThing: "%n sets": is not translated', said)
        self.assertEqual(said.count("\n"), 3, "English has plurals alone")
        self.translate()
        self.assertEqual(self.check(), "")

    def test_texts_that_went_are_seen_and_dropped(self):
        self.translate()
        self.source.write_text(THING.replace("&Open", "&Close"))
        self.assertIn('"&Open "%1"...": is no longer in the sources', self.check())
        self.check("--fix")
        self.assertNotIn("Open", self.german.read_text())

    def test_translations_that_do_not_fit_are_seen(self):
        for german, fault in (
            ("„%2“ &amp;öffnen …", "has other place holders"),
            ("&amp;Öffnen …", "has other place holders"),
            ("„%1“ öffnen …", "has other mnemonics"),
            ("„%1“ &amp;öffnen … ", "begins or ends with other blanks"),
        ):
            with self.subTest(german=german):
                self.german.unlink(missing_ok=True)
                self.translate(german=german)
                self.assertIn(fault, self.check())
        self.german.unlink()
        self.translate(one="")
        self.assertIn('"%n sets": is not translated', self.check())

    def test_what_the_tool_of_qt_complains_of_is_a_fault(self):
        self.translate()
        self.source.write_text(THING + 'void nowhere() { tr("Lost"); }\n')
        self.assertIn("tr() cannot be called without context", self.check())


class InstallPython27Test(ToolTest):
    """Where Python 2.7 cannot be had, the tool says so and leaves everything as it was."""

    def install(self, folder, mirror=MIRROR):
        """Exit code, what it said, and what is left in the test's folder."""
        self.put("programs/apt-get", APT_GET % mirror).chmod(0o755)
        done = subprocess.run([ROOT / "Tools/install-python27", self.root / folder], capture_output=True, text=True,
                              env={"PATH": f"{self.root}/programs:/usr/bin:/bin"})
        self.assertEqual(done.stderr.count("\n"), 1, done.stderr)
        return done.returncode, done.stderr, {path.name for path in self.root.iterdir()} - {"programs"}

    def test_without_a_mirror_nothing_is_made(self):
        code, said, left = self.install("python")
        self.assertEqual((code, left), (3, set()))
        self.assertIn("http://mirror.invalid/debian does not answer or does not have bullseye", said)
        self.assertIn("Could not connect to the mirror", said)
        code, said, left = self.install("python", "true")
        self.assertEqual((code, left), (3, set()), said)

    def test_what_is_there_stays(self):
        self.put("mine/notes", "of somebody else")
        code, said, left = self.install("mine")
        self.assertEqual((code, left), (1, {"mine"}))
        self.assertIn("something else", said)
        self.put("python/made-by-install-python27", "an older one\n")
        code, said, left = self.install("python")
        self.assertEqual((code, left), (3, {"mine", "python"}))


# Packages of nothing, with the version as it is in their tree.
PACKAGE = """#!/bin/bash
cd "$(dirname "$0")/.." && major=$(sed 's/.*VERSION \\(.\\).*/\\1/' CMakeLists.txt) || exit
rm -rf build/packages && mkdir -p build/packages && cd build/packages || exit
for name in libqx{variants,host}{$major-dbgsym,-dev,$major}; do touch "${name}_1.deb"; done
echo "12ab  libqxhost0_1.deb" >SHA256SUMS
"""


class ReleaseTest(ToolTest):
    def setUp(self):
        super().setUp()
        for tool in ("release", "releases.py"):
            self.put(f"Tools/{tool}", (ROOT / "Tools" / tool).read_text())
        self.put("Tools/package", PACKAGE).chmod(0o755)
        self.put("test", "#!/bin/sh\necho tests run\n").chmod(0o755)
        self.put(".gitignore", "/build/\n__pycache__\n")
        self.git("init", "-q", "-b", "main")
        self.change("0.2.0", "Less.")

    def git(self, *arguments):
        done = subprocess.run(["git", "-C", self.root, "-c", "user.name=a", "-c", "user.email=a@b", *arguments],
                              check=True, capture_output=True, text=True)
        return done.stdout.split()

    def change(self, version, *points):
        """Another version, of whose points only the last is released."""
        unreleased = "".join(f"- {point}\n" for point in points[:-1])
        self.put("CMakeLists.txt", f"project(qxVariants VERSION {version} LANGUAGES CXX)\n")
        self.put("CHANGELOG.md", f"# Changelog\n\n## Unreleased\n\n{unreleased}\n"
                                 f"## {version} (2026-02-01)\n\n- {points[-1]}\n")
        self.git("add", "-A")
        self.git("commit", "-q", "-m", "A change")

    def release(self, *options, changes=0):
        """What it says; the comparison of libraries ends with `changes`."""
        self.put("build/programs/abipkgdiff", f"#!/bin/sh\necho 1 function removed\nexit {changes}\n").chmod(0o755)
        environment = {"PATH": f"{self.root}/build/programs:/usr/bin:/bin", "HOME": str(self.root)}
        for role in ("AUTHOR", "COMMITTER"):
            environment.update({f"GIT_{role}_NAME": "a", f"GIT_{role}_EMAIL": "a@b"})
        done = subprocess.run([sys.executable, self.root / "Tools/release", *options], capture_output=True, text=True,
                              env=environment)
        self.assertEqual(done.returncode, 1 if "release: " in done.stderr else 0, done.stderr)
        return done.stdout + done.stderr

    def test_what_is_no_release_is_refused_before_anything_is_built(self):
        self.git("tag", "v0.2.0")
        self.git("tag", "v0.10.0")
        self.change("0.2.0", "More.", "Less.")
        self.git("switch", "-q", "-c", "idea")
        self.put("new", "")
        said = self.release()
        for flaw in ("changes that are not committed", "this is the branch idea", 'is not "## 0.2.0 (',
                     "0.2.0 has a tag already"):
            self.assertIn(flaw, said)
        self.change("0.9.0", "Less.")
        self.assertIn("0.9.0 is older than the last release, 0.10.0", self.release())
        self.assertFalse((self.root / "build/packages").exists())

    def test_libraries_that_break_their_users_need_another_version(self):
        self.assertIn("This is the first release", self.release("--dry-run"))
        self.assertEqual(self.git("tag"), [])
        self.assertIn("v0.2.0 is tagged", self.release())
        for version, changes, said, tag in (
            ("0.2.1", 4, "programs built with 0.2.0 would not run with 0.2.1", False),
            ("0.2.1", 0, "programs built with 0.2.0 run with 0.2.1", True),
            ("0.3.0", 12, "must be built anew\n\n```\n1 function removed", True),
            ("1.0.0", 8, "must be built anew", True),
            ("1.1.0", 8, "would not run with 1.1.0", False),
            ("1.1.0", 1, "cannot be compared", False),
        ):
            with self.subTest(version=version, changes=changes):
                self.change(version, f"Point {version} {changes}.")
                self.assertIn(said, self.release(changes=changes))
                self.assertEqual(f"v{version}" in self.git("tag"), tag)
        notes = (self.root / "build/release-notes.md").read_text()
        for part in ("# qxVariants 1.0.0 (2026-02-01)\n\n- Point 1.0.0 8.", "must be built anew",
                     "| libqxhost0_1.deb | `12ab` |"):
            self.assertIn(part, notes)


if __name__ == "__main__":
    unittest.main()
