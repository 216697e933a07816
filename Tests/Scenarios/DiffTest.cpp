#include "Program.h"
#include "TestScene.h"

#include <QBuffer>
#include <QImage>
#include <QXmlStreamReader>

namespace {

/// A picture as a preview holds it.
QByteArray preview(int width, QColor color)
{
    QImage image(width, 10, QImage::Format_RGB32);
    image.fill(color);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data().toBase64();
}

} // namespace

/// The diff command: what people and programs see of it, and its exit codes.
class DiffTest : public ProgramFixture {
protected:
    DiffTest()
    {
        const QByteArray desk = documentOf(this->desk());
        QByteArray document = desk;
        for (const auto &[old, now] :
             {std::pair<QByteArray, QByteArray>("\"Evening\"", "\"Night &lt;b&gt;\""),
              {"<Hotkey>Ctrl+1</Hotkey>",
               "<Hotkey>\u202e</Hotkey><Preview><![CDATA[" + preview(20, Qt::red)
                   + "]]></Preview><Script>a = 1&#10;b</Script>"},
              {"state=\"!Disable\"", "state=\"!Enable\""},
              {"\"Attic\"", "\"Cellar\""},
              {"<VariantSet name=\"Leer", "<VariantSet name=\"New\"/><VariantSet name=\"Leer"}}) {
            EXPECT_TRUE(document.contains(old)) << old.toStdString();
            document.replace(old, now);
        }
        edited = write("edited.xml", document);
        plain = write("plain.xml", desk);
    }

    QString plain, edited;
};

TEST_F(DiffTest, PeopleSeeWhatDiffersThingByThing)
{
    const QByteArray report = "--- before\n+++ " + edited.toUtf8() + R"(

Groups
  = Cellar
)";
    const ProgramRun run = exits(1, {"diff", desk(), edited, "--label", "before"});
    EXPECT_EQ(run.out, report);
    EXPECT_EQ(run.err, "");
    for (const QStringList &same :
         {QStringList{desk(), plain}, {plain, plain}, {"/dev/null", write("empty.xml", "")}})
        EXPECT_EQ(done(QStringList("diff") + same).out, "no differences\n");
    EXPECT_EQ(exits(1, {"diff", plain, "/dev/null", "--brief"}).out.count("\n  - "), 9);
}
