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
               "<Hotkey>\u202e</Hotkey><Preview><![CDATA[" + red
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

    const QByteArray red = preview(20, Qt::red);
    QString plain, edited;
};

TEST_F(DiffTest, PeopleSeeWhatDiffersThingByThing)
{
    const QByteArray report = "--- before\n+++ " + edited.toUtf8() + R"(

Groups
  ~ Cellar
    ~ renamed, it was "Attic"

Sets of group "Work"
  ~ Morning
    ~ hotkey: Ctrl+1 -> \u202e
    + script
      @@ -0,0 +1,2 @@
      + a = 1
      + b
    + preview: 20 x 10 pixels, )"
        + QByteArray::number(QByteArray::fromBase64(red).size()) + R"( bytes
    ~ node Lamp: !Disable -> !Enable
  ~ Night <b>
    ~ renamed, it was "Evening"

Sets in no group
  + New

groups: 1 renamed; sets: 1 added, 1 renamed, 1 changed
)";
    const ProgramRun run = exits(1, {"diff", desk(), edited, "--label", "before"});
    EXPECT_EQ(run.out, report);
    EXPECT_EQ(run.err, "");
    for (const QStringList &same :
         {QStringList{desk(), plain}, {plain, plain}, {"/dev/null", write("empty.xml", "")}})
        EXPECT_EQ(done(QStringList("diff") + same).out, "no differences\n");
    EXPECT_EQ(exits(1, {"diff", plain, "/dev/null", "--brief"}).out.count("\n  - "), 9);
}

TEST_F(DiffTest, ProgramsReadItAsJson)
{
    const QJsonObject json = exits(1, {"diff", plain, edited, "--json"}).object();
    EXPECT_TRUE(json["before"] == plain && json["after"] == edited);
    EXPECT_EQ(json["variants"].toArray().size() + json["scene"].toArray().size(), 0);
    EXPECT_EQ(QJsonDocument(json["groups"].toArray()),
              parsed(R"([{"name": "Cellar", "sort": "renamed", "fields": [
                  {"field": "name", "sort": "renamed", "before": "Attic", "after": "Cellar"}]}])"));
    const QJsonObject set = json["sets"][0].toObject();
    EXPECT_TRUE(set["name"] == "Morning" && set["group"] == "Work" && set["sort"] == "changed");
    EXPECT_EQ(QJsonDocument(set["fields"][1].toObject()),
              parsed(R"({"field": "script", "sort": "added", "after": "a = 1\nb",
                  "lines": ["@@ -0,0 +1,2 @@", "+a = 1", "+b"]})"));
    EXPECT_TRUE(set["fields"][2]["after"]["width"] == 20
                && set["fields"][2]["before"].isUndefined());
    EXPECT_EQ(QJsonDocument(set["fields"][3].toObject()),
              parsed(R"({"field": "node", "name": "Lamp", "sort": "changed",
                  "before": "!Disable", "after": "!Enable"})"));
}

TEST_F(DiffTest, APageHasBothPicturesAndNothingThatAFileCouldPutThere)
{
    const QString green = write("green.xml", bytesOf(edited).replace(red, preview(30, Qt::green)));
    const QString broken = write("broken.xml", bytesOf(edited).replace(red, "QUJD"));
    const QString renamed = write("renamed.xml",
                                  bytesOf(edited)
                                      .replace("Night &lt;b&gt;", "Day")
                                      .replace("state=\"!Enable\"", "state=\"!Disable\""));
    for (const auto &[other, pictures] :
         {std::pair(green, 2), {broken, 1}, {plain, 1}, {renamed, 0}}) {
        exits(1, {"diff", edited, other, "--html", path("page.html")});
        const QByteArray page = bytesOf(path("page.html"));
        EXPECT_EQ(page.count("src=\"data:image/png;base64,"), pictures) << other.toStdString();
        QXmlStreamReader xml(page);
        while (!xml.atEnd()) {
            xml.readNext();
            EXPECT_TRUE(xml.name() != "script");
        }
        EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
        EXPECT_EQ(page.contains("Night &lt;b&gt;"), other == plain || other == renamed);
    }
}

TEST_F(DiffTest, TheRestOfScenesCountsAsWell)
{
    const QString other =
        write("other.gltf",
              bytesOf(desk())
                  .replace("{\"name\": \"Chair\"", "{\"name\": \"Stool\"")
                  .replace("\"cameras\": [", "\"materials\": [{}, {}], \"cameras\": ["));
    const ProgramRun run = exits(1, {"diff", desk(), other});
    EXPECT_TRUE(run.out.contains("Rest of the scene\n  ~ node \"Stool\" (it was \"Chair\")\n"
                                 "  + material without a name (2 times)\n"))
        << run.out.toStdString();
    EXPECT_EQ(exits(1, {"diff", desk(), other, "--json"}).object()["scene"][0]["oldNames"][0],
              "Chair");
    done({"diff", plain, other}); // a document has no scene
}

TEST_F(DiffTest, WhatCannotBeComparedIsTrouble)
{
    const QString torn = write("torn.xml", "<Variants><VariantGroup name='A'>");
    refused(2, {"diff", plain, torn}, torn.toUtf8() + ": ");
    refused(2, {"diff", path("none.xml"), plain}, "the file does not exist\n");
    refused(2, {"diff", plain}, "diff needs BEFORE AFTER\n");
    refused(2, {"diff", plain, plain, "--json", "--brief"},
            "--brief and --json do not go together");
    refused(2, {"diff", plain, plain, "--html", plain}, "what is written there ends in .html\n");
    refused(2, {"diff", plain, plain, "--html", path("none/a.html")},
            "its folder does not exist\n");
    // A flaw that reading passes over is told, and no trouble.
    const QString odd =
        write("odd.xml", bytesOf(plain).replace("</Variants>", "<Odd/></Variants>"));
    EXPECT_TRUE(done({"diff", plain, odd}).err.contains("odd.xml: variants document, line "));
}
