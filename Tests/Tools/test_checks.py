"""The checking tools must see planted faults, and accept what is right."""

import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
MODULE = "Source/Libs/Variants"


class CheckTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        subprocess.run(["git", "init", "-q", self.root], check=True)
        self.put(".clang-format", (ROOT / ".clang-format").read_text())

    def put(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
        subprocess.run(["git", "-C", self.root, "add", name], check=True)

    def run_tool(self, tool):
        done = subprocess.run([ROOT / "Tools" / tool, "--root", self.root], capture_output=True, text=True)
        self.assertEqual(done.stderr, "")
        self.assertEqual(done.returncode, 1 if done.stdout else 0, done.stdout)
        return done.stdout


class LayersTest(CheckTest):
    def complaint_about(self, file, include):
        self.put(file, f"#pragma once\n#include {include}\n")
        return self.run_tool("check-layers")

    def put_one_header_per_layer(self):
        self.put("Source/Libs/OpenSG/include/OpenSG/OSGNode.h", "#pragma once\n")
        self.put("Source/Libs/HostApi/qxLog.h", "#pragma once\n")
        self.put("Source/Libs/Host/Scene/qxLoader.h", "#pragma once\n")
        self.put(f"{MODULE}/qxVariants.h", "#pragma once\n")
        self.put(f"{MODULE}/Internal/qxEdit.h", "#pragma once\n")

    def test_includes_downwards_are_fine(self):
        self.put_one_header_per_layer()
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
            with self.subTest(file=file):
                self.assertEqual(self.complaint_about(file, include), "")

    def test_includes_upwards_and_sideways_are_seen(self):
        self.put_one_header_per_layer()
        for file, include, reason in (
            ("Source/Libs/OpenSG/a.cpp", "<QString>", "OpenSG must not include Qt"),
            ("Source/Libs/OpenSG/a.cpp", '"qxLog.h"', "OpenSG must not include HostApi"),
            ("Source/Libs/HostApi/a.h", '"qxVariants.h"', "HostApi must not include Variants"),
            ("Source/Libs/HostApi/a.h", "<QWidget>", "HostApi must not include Qt"),
            ("Source/Libs/HostApi/a.h", "<Python.h>", "HostApi must not include Python"),
            ("Source/Libs/Host/a.cpp", '"qxVariants.h"', "Host must not include Variants"),
            (f"{MODULE}/a.cpp", '"Scene/qxLoader.h"', "Variants must not include Host"),
            (f"{MODULE}/a.cpp", '"../Host/Scene/qxLoader.h"', "Variants must not include Host"),
            (f"{MODULE}/Internal/a.cpp", '"Scene/qxLoader.h"', "Internal must not include Host"),
            (f"{MODULE}/a.cpp", "<boost/python.hpp>", "Variants must not include boost/python"),
            ("Source/Apps/Workbench/a.cpp", '"Internal/qxEdit.h"', "Workbench must not include Internal"),
            ("Tests/Scenarios/a.cpp", '"Internal/qxEdit.h"', "Tests must not include Internal"),
            ("Somewhere/a.cpp", "<vector>", "lies in no layer"),
        ):
            with self.subTest(include=include, file=file):
                complaint = self.complaint_about(file, include)
                self.assertTrue(complaint.startswith(f"{file}:2: "), complaint)
                self.assertIn(reason, complaint)
                self.put(file, "")

    def test_the_headers_of_the_module_stand_in_rows(self):
        self.put_one_header_per_layer()
        self.assertEqual(self.complaint_about(f"{MODULE}/qxVariantSet.h", '"Internal/qxEdit.h"'), "")
        self.assertIn("row 1 of the module must not include row 4",
                      self.complaint_about(f"{MODULE}/Internal/qxText.h", '"qxVariants.h"'))
        self.put(f"{MODULE}/Internal/qxText.h", "")
        self.assertIn("has no row", self.complaint_about(f"{MODULE}/qxNew.h", "<vector>"))

    def test_circles_are_seen(self):
        self.put(f"{MODULE}/qxVariant.h", '#include "qxNodeVariant.h"\n')
        self.put(f"{MODULE}/qxNodeVariant.h", '#include "qxVariant.h"\n')
        self.assertEqual(self.run_tool("check-layers").count("includes itself"), 2)

    def test_classes_of_one_name_are_seen(self):
        self.put("Source/Libs/VariantsPanel/qxA.h", "class qxOnce;\nclass qxTwice : public qxOnce {\n};\n")
        self.put("Source/Libs/Host/qxB.cpp", "struct qxOnce::Part {\n};\n")
        self.assertEqual(self.run_tool("check-layers"), "")
        self.put("Source/Apps/Workbench/qxC.h", "struct qxTwice {\n};\n")
        self.assertIn("qxTwice is a class of Source/Apps/Workbench/qxC.h already", self.run_tool("check-layers"))


class StyleTest(CheckTest):
    def complaint_about(self, text, file="a.cpp"):
        self.put(file, text)
        complaint = self.run_tool("check-style")
        self.put(file, "")
        return complaint

    def test_tidy_code_is_fine(self):
        self.put("a.h", "#pragma once\n\nint f(int a, int b);\n")
        self.assertEqual(self.complaint_about('#include "a.h"\n\nint f(int a, int b)\n{\n    return a + b;\n}\n'), "")

    def test_broken_limits_are_seen(self):
        body = "    f();\n" * 58
        deep = "    if (a)\n        while (a)\n            if (a)\n                for (;;)\n                    if (a)\n"
        for reason, file, text in (
            ("f has 61 lines", "a.cpp", f"void f()\n{{\n{body}}}\n"),
            ("f has 6 parameters", "a.cpp", "void f(int, int, int, int, int, Map<int, int>) {}\n"),
            ("f is nested 5 deep", "a.cpp", f"void f()\n{{\n{deep}                        f();\n}}\n"),
            ("501 lines", "a.cpp", "int a;\n" * 501),
            ("251 lines", "a.h", "#pragma once\n" + "int a;\n" * 250),
            ("9 includes", "a.h", "#pragma once\n" + "".join(f"#include <a{n}>\n" for n in range(9))),
            ("no #pragma once", "a.h", "// #pragma once\n"),
            ("using namespace", "a.h", "#pragma once\nusing namespace osg;\n"),
            ("white space at the end", "a.txt", "a \n"),
            ("no end of line", "a.txt", "a"),
            ("clang-format", "a.cpp", "int  a;\n"),
        ):
            with self.subTest(reason=reason):
                self.assertIn(reason, self.complaint_about(text, file))

    def test_the_own_header_comes_first(self):
        self.put("a.h", "#pragma once\n")
        self.assertIn("a.h is not the first include", self.complaint_about('#include <vector>\n#include "a.h"\n'))

    def test_marked_lists_may_be_long(self):
        body = "    f();\n" * 70
        self.assertEqual(self.complaint_about(f"// A list, not a procedure.\nvoid f()\n{{\n{body}}}\n"), "")

    def test_the_scanner_is_not_fooled(self):
        self.assertEqual(self.complaint_about(
            "const Names names{\"{\", '{', R\"(}}})\"};\n"
            "struct Row : Base<int(int)> {\n"
            "    Row() : a{1}, b(2) { f(1, 2, 3, 4, 5, 6, 7); }\n"
            "};\n"
            "Map<int, Pair<int, int>> f(Map<int, int> a, const Function<void(int, int, int, int, int)> &b)\n"
            "{\n"
            "    if (a)\n        return {};\n    else if (b)\n        return {1};\n    else if (c)\n"
            "        return {2};\n    else if (d)\n        return {{3}, {4}};\n    else if (e)\n"
            "        return {};\n    return {5};\n}\n"), "")


if __name__ == "__main__":
    unittest.main()
