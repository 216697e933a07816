#include "Program.h"

#include <QDir>
#include <QDomDocument>
#include <QImage>
#include <QProcess>

#include <fcntl.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <unistd.h>

namespace {

/// A sign that is red or blue, one viewpoint that sees nothing else, and one that does not see it.
const char *const scene = R"({
    "asset": {"version": "2.0"}, "scene": 0,
    "scenes": [{"nodes": [0, 3, 4], "extras": {"qxVariants": "%1"}}],
    "nodes": [{"name": "Sign", "children": [1, 2], "extras": {"qxSwitch": 0}},
              {"name": "Red", "mesh": 0}, {"name": "Blue", "mesh": 1},
              {"name": "Near", "camera": 0, "translation": [0, 0, 3]},
              {"name": "Aside", "camera": 0, "translation": [9, 0, 3]}],
    "cameras": [{"type": "perspective", "perspective": {"yfov": 0.6, "znear": 0.1}}],
    "extensionsUsed": ["KHR_materials_unlit"],
    "materials": [
        {"pbrMetallicRoughness": {"baseColorFactor": [1, 0, 0, 1]},
         "extensions": {"KHR_materials_unlit": {}}},
        {"pbrMetallicRoughness": {"baseColorFactor": [0, 0, 1, 1]},
         "extensions": {"KHR_materials_unlit": {}}}],
    "meshes": [{"primitives": [{"attributes": {"POSITION": 0}, "material": 0}]},
               {"primitives": [{"attributes": {"POSITION": 0}, "material": 1}]}],
    "accessors": [{"bufferView": 0, "componentType": 5126, "count": 3, "type": "VEC3",
                   "min": [-4, -4, 0], "max": [8, 8, 0]}],
    "bufferViews": [{"buffer": 0, "byteLength": 36}],
    "buffers": [{"byteLength": 36, "uri": "data:application/octet-stream;base64,%2"}]})";

const char *const document = R"(<Variants>
 <VariantGroup name="Signs &amp; &lt;more&gt;" comment="Both" visible="false">
  <VariantSet name="Stop / halt" comment="Line one" default-viewpoint=""><Hotkey>Ctrl+R</Hotkey>
   <NodeVariantRef ref="Sign" state="Red"/><Script>print("&lt;stop&gt;")</Script></VariantSet>
  <VariantSet name="stop : halt" comment="" default-viewpoint="">
   <NodeVariantRef ref="Sign" state="Blue"/></VariantSet>
 </VariantGroup>
 <VariantSet name="Away" comment="" default-viewpoint="">
  <NodeVariantRef ref="Sign" state="Blue"/><ViewpointRef ref="Aside"/></VariantSet>
 <NodeVariant name="Sign" base="Sign"><Default ref="Red"/><State name="Red"/><State name="Blue"/>
 </NodeVariant></Variants>)";

const QColor red(255, 0, 0);
const QColor blue(0, 0, 255);

class PictureTest : public ProgramFixture {
protected:
    PictureTest()
    {
        const float corners[] = {-4, -4, 0, 8, -4, 0, -4, 8, 0};
        const QByteArray bytes(reinterpret_cast<const char *>(corners), sizeof corners);
        const QByteArray text = QByteArray(document).replace("\"", "\\\"").replace("\n", "\\n");
        file = write("signs.gltf",
                     QByteArray(scene).replace("%1", text).replace("%2", bytes.toBase64()));
    }

    /// The pixel in the middle of a picture of that size.
    static QColor middle(const QString &picture, const QSize &size)
    {
        const QImage image(picture, "PNG");
        EXPECT_EQ(image.size(), size);
        return image.pixelColor(size.width() / 2, size.height() / 2);
    }

    /// The previews of the sets by their names.
    static QMap<QString, QByteArray> previews(const QString &scenePath)
    {
        QDomDocument xml;
        EXPECT_TRUE(xml.setContent(documentOf(scenePath)));
        QMap<QString, QByteArray> all;
        const QDomNodeList sets = xml.elementsByTagName("VariantSet");
        for (int i = 0; i < sets.size(); ++i) {
            const QDomElement preview = sets.at(i).firstChildElement("Preview");
            all[sets.at(i).toElement().attribute("name")] =
                QByteArray::fromBase64(preview.text().toLatin1());
        }
        return all;
    }

    /// The scene with this document.
    QString withDocument(const QByteArray &text) const
    {
        const QString made = path("made.gltf");
        done({"document", file, "--in", write("made.xml", text), "--save", made});
        return made;
    }

    /// Sixty sets, "Set 1" and so on: enough to interrupt.
    QString manySets() const
    {
        QByteArray text = "<Variants>";
        for (int i = 1; i <= 60; ++i)
            text += "<VariantSet name=\"Set " + QByteArray::number(i)
                + "\" comment=\"\" default-viewpoint=\"\"/>";
        return withDocument(text + "</Variants>");
    }

    /// Runs the program, presses Ctrl-C when its progress shows `text`, and returns what it said.
    static QByteArray interrupted(const QStringList &arguments, const QByteArray &text)
    {
        QProcess process;
        process.start(QStringLiteral(QX_BUILD_BIN "/workbench"), arguments);
        process.setReadChannel(QProcess::StandardError);
        while (!process.peek(4096).contains(text) && process.waitForReadyRead(30000)) {}
        kill(pid_t(process.processId()), SIGINT);
        EXPECT_TRUE(process.waitForFinished(30000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 130);
        return process.readAllStandardError();
    }

    QString file;
};

} // namespace

TEST_F(PictureTest, RenderShowsTheSceneAsItIsOrWithASetSelected)
{
    const QString out = path("picture.png");
    done({"render", file, "--size", "64x48", "--quality", "quick", "--out", out});
    EXPECT_EQ(middle(out, {64, 48}), red);
    done({"render", file, "--size", "64x48", "--quality", "quick", "--out", out, "--set",
          "stop : halt"});
    EXPECT_EQ(middle(out, {64, 48}), blue);
    const QByteArray bytes = bytesOf(out);
    done({"render", file, "--size", "64x48", "--quality", "quick", "--out", out, "--set",
          "stop : halt"});
    EXPECT_EQ(bytesOf(out), bytes);

    done({"render", file, "--size", "9x7", "--out", out, "--view", "Aside"});
    EXPECT_NE(middle(out, {9, 7}), red);
    EXPECT_EQ(documentOf(file), QByteArray(document));
}

TEST_F(PictureTest, RenderAllMakesAPictureOfEachSetInTheSceneOfTheFile)
{
    const QString out = path("new/pictures");
    const ProgramRun run =
        done({"render", file, "--all", "--size", "32x32", "--quality", "quick", "--out", out});
    EXPECT_TRUE(run.err.contains("1/3 Stop / halt\n"));
    EXPECT_TRUE(run.err.contains("2/3 stop : halt\n3/3 Away\n"));
    EXPECT_EQ(QDir(out).entryList(QDir::Files, QDir::Name),
              (QStringList{"Away.png", "Stop - halt.png", "stop - halt 2.png"}));
    EXPECT_EQ(middle(out + "/Stop - halt.png", {32, 32}), red);
    EXPECT_EQ(middle(out + "/stop - halt 2.png", {32, 32}), blue);
    EXPECT_NE(middle(out + "/Away.png", {32, 32}), blue);
}

TEST_F(PictureTest, RenderAllIntoAPngPutsThePicturesOnOneSheet)
{
    const QString out = path("sheet.PNG");
    done({"render", file, "--all", "--size", "40x40", "--quality", "quick", "--out", out});
    const QImage sheet(out, "PNG");
    ASSERT_EQ(sheet.size(), QSize(2 * 56 + 16, 2 * (40 + 34 + 16) + 16));
    EXPECT_EQ(sheet.pixelColor(16 + 20, 16 + 20), red);
    EXPECT_EQ(sheet.pixelColor(72 + 20, 16 + 20), blue);
    EXPECT_EQ(sheet.pixelColor(2, 2), QColor(0xf6, 0xf6, 0xf4));
}

TEST_F(PictureTest, PreviewsAreMadeForSetsWithoutOneAndNothingElseChanges)
{
    const QString saved = path("saved.gltf");
    EXPECT_TRUE(done({"previews", file, "--save", saved}).out.endsWith("3 made, 0 kept\n"));
    const QMap<QString, QByteArray> made = previews(saved);
    ASSERT_EQ(made.size(), 3);
    for (const QByteArray &preview : made)
        EXPECT_EQ(QImage::fromData(preview, "PNG").size(), QSize(264, 256));
    EXPECT_EQ(differences(sceneJson(file), sceneJson(saved)),
              QStringList{"/scenes/0/extras/qxVariants"});

    const QString again = path("again.gltf");
    EXPECT_TRUE(done({"previews", saved, "--save", again}).out.endsWith("0 made, 3 kept\n"));
    EXPECT_EQ(documentOf(again), documentOf(saved));
    EXPECT_TRUE(
        done({"previews", saved, "--all", "--save", again}).out.endsWith("3 made, 0 kept\n"));
    EXPECT_EQ(documentOf(again), documentOf(saved));
}

TEST_F(PictureTest, StalePreviewsAreThoseThatShowSomethingElse)
{
    const QString saved = path("saved.gltf");
    done({"previews", file, "--save", saved});
    const QMap<QString, QByteArray> made = previews(saved);
    QByteArray text = documentOf(saved);
    text.replace(made["Away"].toBase64(), made["Stop / halt"].toBase64());
    const QString xml = write("stale.xml", text);
    done({"document", saved, "--in", xml, "--save", path("stale.gltf")});
    ASSERT_EQ(previews(path("stale.gltf"))["Away"], made["Stop / halt"]);

    EXPECT_TRUE(done({"previews", path("stale.gltf"), "--stale", "--save", saved})
                    .out.endsWith("1 made, 2 kept\n"));
    EXPECT_EQ(previews(saved), made);
}

TEST_F(PictureTest, TheCatalogueShowsEverythingOnOnePage)
{
    const QString page = path("catalogue/index.html");
    EXPECT_TRUE(
        done({"catalogue", file, "--out", path("catalogue")}).out.endsWith(page.toUtf8() + '\n'));
    QString error;
    QDomDocument html;
    ASSERT_TRUE(html.setContent(bytesOf(page), &error)) << error.toStdString();
    const QString text = html.documentElement().text();
    for (const char *word :
         {"signs.gltf", "3 variant sets in 1 group, 1 variant", "Signs & <more>", "hidden", "Both",
          "Stop / halt", "Ctrl+R", "Line one", "Sign \u2192 Red", "print(\"<stop>\")",
          "stop : halt", "Sets in no group", "Away", "Aside"})
        EXPECT_TRUE(text.contains(word)) << word;
    const QDomNodeList pictures = html.elementsByTagName("img");
    ASSERT_EQ(pictures.size(), 3);
    const QString source = pictures.at(1).toElement().attribute("src");
    ASSERT_TRUE(source.startsWith("data:image/png;base64,"));
    const QImage image = QImage::fromData(
        QByteArray::fromBase64(source.mid(source.indexOf(',') + 1).toLatin1()), "PNG");
    EXPECT_GT(image.pixelColor(132, 128).blue(), 200);
    EXPECT_EQ(html.elementsByTagName("script").size(), 0);
    EXPECT_EQ(html.elementsByTagName("link").size(), 0);

    const QByteArray first = bytesOf(page);
    done({"catalogue", file, "--out", path("catalogue")});
    EXPECT_EQ(bytesOf(page), first);
}

TEST_F(PictureTest, ScriptsThatChangeSetsDoNotChangeTheCatalogue)
{
    const QString scripted = withDocument(
        QByteArray(document).replace("print(\"&lt;stop&gt;\")",
                                     "createVariantSet('New'); removeVariantSet('stop : halt');"
                                     "findVariantSet('Away').setName('Far')"));
    done({"catalogue", scripted, "--quality", "quick", "--out", path("catalogue")});
    QDomDocument html;
    ASSERT_TRUE(html.setContent(bytesOf(path("catalogue/index.html"))));
    QStringList names;
    const QDomNodeList titles = html.elementsByTagName("h3");
    for (int i = 0; i < titles.size(); ++i)
        names += titles.at(i).toElement().text();
    EXPECT_EQ(names, (QStringList{"Stop / halt", "stop : halt", "Away"}));
    EXPECT_EQ(html.elementsByTagName("img").size(), 1);
}

TEST_F(PictureTest, ASceneWithoutSetsHasACatalogueToo)
{
    const QString empty = write("empty.gltf", R"({"asset": {"version": "2.0"}})");
    done({"catalogue", empty, "--out", path("empty")});
    QDomDocument html;
    ASSERT_TRUE(html.setContent(bytesOf(path("empty/index.html"))));
    EXPECT_TRUE(html.documentElement().text().contains("The scene has no variants."));
    done({"previews", empty, "--save", path("saved.gltf")});
    refused(1, {"render", empty, "--all", "--out", path("none")}, "the scene has no variant sets");
}

TEST_F(PictureTest, WhatCannotBeDoneIsRefusedBeforeAnythingIsRendered)
{
    const QString out = path("picture.png");
    refused(1, {"render", file, "--set", "Go", "--out", out}, "no variant set is called \"Go\"");
    refused(1, {"render", file, "--view", "Up", "--out", out}, "no viewpoint is called \"Up\"");
    refused(1, {"render", file, "--out", path("nowhere/a.png")}, "nowhere/a.png: ");
    const QString blocked = write("blocked", "a file");
    refused(1, {"render", file, "--all", "--out", blocked}, "blocked: the folder cannot be made");
    refused(1, {"catalogue", file, "--out", blocked}, "blocked: the folder cannot be made");
    for (const char *size : {"0x5", "5x0", "64", "64x", "-1x5", "9000x5", "99999x99999", "5x5x5"})
        refused(2, {"render", file, "--size", size, "--out", out}, "--size is WIDTHxHEIGHT");
    refused(2, {"render", file, "--quality", "good", "--out", out}, "--quality is quick or best");
    refused(2, {"render", file, "--out", path("picture.jpg")}, "a picture's name ends with .png");
    refused(2, {"render", file, "--all", "--set", "Away", "--out", out}, "do not go together");
    refused(2, {"render", file}, "render needs --out OUT");
    refused(2, {"previews", file}, "previews needs --save OUT");
    refused(2, {"previews", file, "--all", "--stale", "--save", out}, "do not go together");
    refused(2, {"catalogue", file}, "catalogue needs --out DIR");
    refused(2, {"catalogue", file, "--quality", "", "--out", blocked}, "--quality needs a value");
    refused(2, {"previews", file, "--quality", "good", "--save", out},
            "--quality is quick or best");
    EXPECT_FALSE(QFile::exists(out));
}

TEST_F(PictureTest, AnInterruptedRenderingLeavesNoHalfPicture)
{
    const QByteArray said =
        interrupted({"render", file, "--size", "8000x8000", "--out", path("large.png")}, "1/1");
    EXPECT_TRUE(said.contains("interrupted; no picture was written"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{"signs.gltf"});
}

TEST_F(PictureTest, AnInterruptKeepsThePicturesThatAreDone)
{
    const QString out = path("pictures");
    const QByteArray said =
        interrupted({"render", manySets(), "--all", "--size", "200x200", "--out", out}, "3/60");
    const int count = QDir(out).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size();
    EXPECT_GE(count, 2);
    EXPECT_LT(count, 60);
    EXPECT_TRUE(said.contains("holds " + QByteArray::number(count) + " of 60 pictures"))
        << said.constData();
    EXPECT_GT(middle(out + "/Set 1.png", {200, 200}).red(), 200);
    for (int i = 2; i <= count; ++i) // all sets look the same
        EXPECT_EQ(bytesOf(out + QStringLiteral("/Set %1.png").arg(i)), bytesOf(out + "/Set 1.png"));
}

TEST_F(PictureTest, AnInterruptSavesThePreviewsThatAreDone)
{
    const QString saved = path("saved.gltf");
    const QByteArray said = interrupted({"previews", manySets(), "--save", saved}, "3/60");
    int count = 0;
    for (const QByteArray &preview : previews(saved)) {
        count += !preview.isEmpty();
        EXPECT_TRUE(preview.isEmpty() || !QImage::fromData(preview, "PNG").isNull());
    }
    EXPECT_GE(count, 2);
    EXPECT_LT(count, 60);
    EXPECT_TRUE(said.contains(QByteArray::number(count) + " of 60 sets are done"))
        << said.constData();
    EXPECT_FALSE(previews(saved)["Set 2"].isEmpty());
}

TEST_F(PictureTest, ATerminalShowsABarThatIsWipedInTheEnd)
{
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_TRUE(terminal >= 0 && grantpt(terminal) == 0 && unlockpt(terminal) == 0);
    QProcess process;
    process.setStandardErrorFile(QString::fromLocal8Bit(ptsname(terminal)));
    process.start(QStringLiteral(QX_BUILD_BIN "/workbench"),
                  {"render", file, "--all", "--size", "16x16", "--quality", "quick", "--out",
                   path("pictures")});
    ASSERT_TRUE(process.waitForFinished(30000));
    EXPECT_EQ(process.exitCode(), 0);
    char bytes[4096];
    const ssize_t count = read(terminal, bytes, sizeof bytes);
    close(terminal);
    const QByteArray shown(bytes, int(std::max<ssize_t>(count, 0)));
    EXPECT_TRUE(shown.contains("[" + QByteArray(24, '.') + "] 1/3 Stop / halt"))
        << shown.constData();
    EXPECT_TRUE(shown.contains("[" + QByteArray(8, '#') + QByteArray(16, '.') + "] 2/3 stop"))
        << shown.constData();
    EXPECT_TRUE(shown.contains("] 3/3 Away\r\x1b[K")) << shown.constData();
}
