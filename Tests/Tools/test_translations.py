"""The check of the translations must see planted faults, and accept what is right."""

import re
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SOURCE = """#include <QObject>
class qxThing : public QObject {
    Q_OBJECT
    QString name() { return tr("&Open \\"%1\\"..."); }
    QString count(int sets) { return tr("%n sets", nullptr, sets); }
};
"""


class TranslationsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        (self.root / "Source/Translations").mkdir(parents=True)
        self.source = self.root / "Source/qxThing.h"
        self.source.write_text(SOURCE)
        self.german = self.root / "Source/Translations/qxVariants_de.ts"
        self.english = self.root / "Source/Translations/qxVariants_en.ts"

    def check(self, *options):
        done = subprocess.run([ROOT / "Tools/check-translations", "--root", self.root, *options],
                              capture_output=True, text=True)
        self.assertEqual(done.stderr, "")
        self.assertEqual(done.returncode, 1 if done.stdout else 0, done.stdout)
        return done.stdout

    def translate(self, german="„%1“ &amp;öffnen …", one="ein Set"):
        """Fills the catalogues as a person does after --fix."""
        self.check("--fix")
        for file, forms in ((self.german, (one, "%n Sets")), (self.english, ("%n set", "%n sets"))):
            text = file.read_text().replace(' type="unfinished"', "")
            for form in forms:
                text = re.sub("<numerusform></", f"<numerusform>{form}</", text, count=1)
            file.write_text(text.replace("<translation></", f"<translation>{german}</"))

    def test_complete_catalogues_are_fine(self):
        self.translate()
        self.assertEqual(self.check(), "")

    def test_new_texts_wait_for_their_translation(self):
        self.assertIn('qxThing: "%n sets": is not in the catalogue', self.check())
        said = self.check("--fix")
        self.assertIn('qxVariants_de.ts: qxThing: "&Open "%1"...": is not translated', said)
        self.assertIn('qxVariants_en.ts: qxThing: "%n sets": is not translated', said)
        self.assertEqual(said.count("\n"), 3, "English has plurals alone")

    def test_texts_that_went_are_seen_and_dropped(self):
        self.translate()
        self.source.write_text(SOURCE.replace("&Open", "&Close"))
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
        self.source.write_text(SOURCE + 'void nowhere() { tr("Lost"); }\n')
        self.assertIn("tr() cannot be called without context", self.check())


if __name__ == "__main__":
    unittest.main()
