#include "Program.h"
#include "qxTestPaths.h"

#include <QBuffer>
#include <QDir>
#include <QDomDocument>
#include <QImage>

#include <fcntl.h>

#include <cstdlib>
#include <unistd.h>

const QColor red(255, 0, 0);
const QColor blue(0, 0, 255);

class PictureTest : public ProgramFixture {
protected:
    static ProgramRun quick(const QStringList &arguments)
    {
        return done(arguments + QStringList{"--quality", "quick"});
    }
    /// The pixel in the middle of a picture of that size.
    static QColor middle(const QString &picture, const QSize &size)
    {
        const QImage image(picture, "PNG");
        EXPECT_EQ(image.size(), size);
        return image.pixelColor(size.width() / 2, size.height() / 2);
    }
    /// The texts below the elements of that name, in order.
    static QStringList textsIn(const QByteArray &xml, const QString &tag)
    {
        QDomDocument dom;
        QString error;
        EXPECT_TRUE(dom.setContent(xml, &error)) << error.toStdString();
        QStringList texts;
        const QDomNodeList found = dom.elementsByTagName(tag);
        for (int i = 0; i < found.size(); ++i)
            texts += found.at(i).toElement().text();
        return texts;
    }
    /// The previews of a scene, in order.
    static QStringList previews(const QString &scenePath)
    {
        return textsIn(documentOf(scenePath), "Preview");
    }
    static QImage imageOf(const QString &base64)
    {
        return QImage::fromData(QByteArray::fromBase64(base64.toLatin1()));
    }
    /// A scene of sixty sets. Their names fill the pipe for standard error: the program waits until
    /// somebody reads what it says, and cannot come to its end before it is interrupted.
    QString manySets() const
    {
        QByteArray text = "<Variants>";
        for (int i = 1; i <= 60; ++i)
            text +=
                "<VariantSet name='Set " + QByteArray::number(i) + QByteArray(4000, '-') + "'/>";
        return write("many.gltf", sceneWith("signs", text + "</Variants>"));
    }
    const QString file = write("signs.gltf", sceneWith("signs"));
};

TEST_F(PictureTest, RenderShowsTheSceneAsItIsOrWithASetSelected)
{
    const QString out = path("picture.png");
    quick({"render", file, "--size", "64x48", "--out", out});
    EXPECT_EQ(middle(out, {64, 48}), red);
    const QStringList withSet{"render", file, "--size=64x48", "--out", out, "--set", "stop : halt"};
    quick(withSet);
    EXPECT_EQ(middle(out, {64, 48}), blue);
    const QByteArray bytes = bytesOf(out);
    quick(withSet);
    EXPECT_EQ(bytesOf(out), bytes);
    EXPECT_EQ(bytesOf(file), sceneWith("signs"));

    const QStringList aside{"render", file, "--size", "9x7", "--out", out, "--view", "Aside"};
    quick(aside);
    EXPECT_NE(middle(out, {9, 7}), red);
    const QByteArray jagged = bytesOf(out);
    done(aside + QStringList{"--quality", "best"});
    const QByteArray best = bytesOf(out);
    EXPECT_NE(best, jagged);
    done(aside);
    EXPECT_EQ(bytesOf(out), best) << "best is the default";
}

TEST_F(PictureTest, RenderAllMakesAPictureOfEachSetInTheSceneOfTheFile)
{
    const QString out = made("pictures");
    const ProgramRun run = quick({"render", file, "--all", "--size", "32x32", "--out", out});
    EXPECT_TRUE(run.err.contains("1/3 Stop / halt\n"));
    EXPECT_TRUE(run.err.contains("2/3 stop : halt\n3/3 Away\n"));
    EXPECT_EQ(QDir(out).entryList(QDir::Files, QDir::Name),
              (QStringList{"Away.png", "Stop - halt.png", "stop - halt 2.png"}));
    EXPECT_EQ(middle(out + "/Stop - halt.png", {32, 32}), red);
    EXPECT_EQ(middle(out + "/stop - halt 2.png", {32, 32}), blue);
    EXPECT_NE(middle(out + "/Away.png", {32, 32}), red);
    EXPECT_EQ(QImage(out + "/Away.png").pixelColor(2, 16), red) << "the set before it was left";

    // Into a picture they all go, on one sheet.
    quick({"render", file, "--all", "--size", "40x40", "--out", path("sheet.PNG")});
    const QImage sheet(path("sheet.PNG"), "PNG");
    ASSERT_EQ(sheet.size(), QSize(2 * 56 + 16, 2 * (40 + 34 + 16) + 16));
    EXPECT_EQ(sheet.pixelColor(16 + 20, 16 + 20), red);
    EXPECT_EQ(sheet.pixelColor(72 + 20, 16 + 20), blue);
    EXPECT_EQ(sheet.pixelColor(2, 2), QColor(0xf6, 0xf6, 0xf4));
}

TEST_F(PictureTest, RenderShowsAnimationsAtATimeAndTheSceneFromAllSides)
{
    // Of the corners of the triangle 0 and 8 are the times, the first two the places.
    const QByteArray starting = bytesOf(testData("Scenes/signs.xml"))
                                    .replace("ViewpointRef ref=\"Aside", "AnimationRef ref=\"Blue");
    QByteArray text = sceneWith("signs", starting).replace("[8, 8, 0]}", R"([8, 8, 0]},
        {"bufferView": 0, "byteOffset": 8, "componentType": 5126, "count": 2, "type": "SCALAR"},
        {"bufferView": 0, "componentType": 5126, "count": 2, "type": "VEC3"})");
    const auto clip = [](const char *name, int node) {
        return QByteArray(R"({"name": "%1", "channels": [{"sampler": 0, "target":
            {"node": %2, "path": "translation"}}], "samplers": [{"input": 1, "output": 2}]})")
            .replace("%1", name)
            .replace("%2", QByteArray::number(node));
    };
    text.replace("\"cameras\"",
                 "\"animations\": [" + clip("Red", 1) + ", " + clip("Blue", 2) + "], \"cameras\"");
    const QString moving = write("moving.gltf", text);
    const QString out = path("moving.png");
    for (const auto &[options, isRed] : {std::pair("", true),
                                         {"--time 4", true},
                                         {"--time 8", false},
                                         {"--time 99.5", false},
                                         {"--time 8 --clip Blue", true},
                                         {"--time 8 --clip Blue --clip Red", false}}) {
        quick(QStringList{"render", moving, "--size", "9x9", "--out", out}
              + QString(options).split(' ', Qt::SkipEmptyParts));
        EXPECT_EQ(middle(out, {9, 9}) == red, isRed) << options;
    }
    const QString turn = made("turn");
    const ProgramRun run =
        quick({"render", moving, "--turntable", "4", "--size", "9x9", "--out", turn});
    EXPECT_TRUE(run.err.contains("3/4 003.png\n"));
    EXPECT_EQ(QDir(turn).entryList(QDir::Files, QDir::Name),
              (QStringList{"001.png", "002.png", "003.png", "004.png"}));
    EXPECT_EQ(middle(turn + "/001.png", {9, 9}), red);
    EXPECT_NE(bytesOf(turn + "/002.png"), bytesOf(turn + "/001.png"));

    const QStringList render{"render", moving, "--out", out};
    refused(2, render + QStringList{"--time", "-1"}, "--time is a number of seconds from 0, not");
    refused(2, render + QStringList{"--clip", "Red"}, "--clip needs --time SECONDS");
    refused(1, render + QStringList{"--time", "1", "--clip", "Redd"}, "did you mean \"Red\"?");
    refused(1, {"render", file, "--out", out, "--time", "1"}, "the scene has no animations");
    refused(2, render + QStringList{"--turntable", "9"}, "--turntable makes pictures in a folder");
    const QStringList turned{"render", moving, "--out", turn, "--turntable"};
    refused(2, turned + QStringList{"0"}, "--turntable is a number of pictures from 1 to 9999");
    refused(2, turned + QStringList{"3", "--all"}, "--turntable and --all do not go together");
}

TEST_F(PictureTest, PreviewsAreMadeForSetsThatHaveNoneOrAStaleOne)
{
    const QString saved = path("saved.gltf");
    const auto make = [&saved](const QStringList &of, const QByteArray &counts) {
        const ProgramRun run = quick(QStringList("previews") + of + QStringList{"--save", saved});
        EXPECT_TRUE(run.out.endsWith(counts + " kept\n")) << run.out.toStdString();
    };
    EXPECT_FALSE(quick({"previews", file, "--stale", "--save", saved}).err.contains("libpng"));
    make({file}, "3 made, 0");
    const QStringList made = previews(saved);
    ASSERT_EQ(made.size(), 3);
    for (const QString &preview : made) {
        EXPECT_EQ(imageOf(preview).size(), QSize(264, 256));
        EXPECT_EQ(imageOf(preview).text("Fingerprint").size(), 40);
    }
    EXPECT_EQ(differences(sceneJson(file), sceneJson(saved)),
              QStringList{"/scenes/0/extras/qxVariants"});

    const QByteArray document = documentOf(saved);
    make({saved}, "0 made, 3");
    EXPECT_EQ(documentOf(saved), document);
    make({saved, "--all", "--threads", "1"}, "3 made, 0");
    EXPECT_EQ(documentOf(saved), document);
    make({saved, "--stale", "--threads", "3"}, "0 made, 3");
    EXPECT_EQ(documentOf(saved), document);

    // What is edited in the file, and how many previews do not show that.
    QByteArray unmarked;
    QBuffer buffer(&unmarked);
    QImage(9, 9, QImage::Format_RGB888).save(&buffer, "PNG");
    const QByteArray scene =
        QJsonDocument(sceneJson(saved).toObject()).toJson(QJsonDocument::Compact);
    const QByteArray first = made[0].toLatin1();
    for (const auto &[before, after, counts] :
         {std::tuple<QByteArray, QByteArray, QByteArray>{"[0,0,1,1]", "[0,0,0.5,1]", "1 made, 2"},
          {"AACAwAAAgMAA", "AACAwAAAAMAA", "3 made, 0"},
          {"\"Aside\",", "\"Aside\",\"rotation\":[0,0,1,0],", "1 made, 2"},
          {"\"Near\"", "\"Next\"", "0 made, 3"},
          {first, "iVBORw0KGgo=", "1 made, 2"},
          {first, unmarked.toBase64(), "1 made, 2"},
          {made[2].toLatin1(), first, "1 made, 2"}}) {
        QByteArray edited = scene;
        EXPECT_TRUE(edited.replace(before, after) != scene) << before.data();
        make({write("edited.gltf", edited), "--stale"}, counts);
    }
    EXPECT_EQ(previews(saved), made);
}

TEST_F(PictureTest, TheCatalogueShowsEverythingOnOnePage)
{
    const QString page = path("catalogue/index.html");
    EXPECT_TRUE(
        quick({"catalogue", file, "--out", made("catalogue")}).out.endsWith(page.toUtf8() + '\n'));
    const QByteArray html = bytesOf(page);
    const QString text = textsIn(html, "html").value(0);
    for (const char *word :
         {"signs.gltf", "3 variant sets in 1 group, 1 variant", "Signs & <more>", "hidden", "Both",
          "Stop / halt", "Ctrl+R", "Line one", "Sign \u2192 Red", "print(\"<stop>\")",
          "stop : halt", "Sets in no group", "Away", "Aside"})
        EXPECT_TRUE(text.contains(word)) << word;
    EXPECT_FALSE(html.left(html.indexOf("</style>")).contains("&quot;")) << "browsers keep it";
    const QStringList pictures = QString::fromUtf8(html).split(":image/jpeg;base64,").mid(1);
    ASSERT_EQ(pictures.size(), 6);
    for (const int number : {2, 3}) { // of the second set: the small one, then the large one
        const QImage picture = imageOf(pictures[number].section('"', 0, 0));
        EXPECT_EQ(picture.size(), QSize(330, 220) * (number - 1));
        EXPECT_GT(picture.pixelColor(165, 110).blue(), 200);
    }
    EXPECT_EQ(textsIn(html, "script") + textsIn(html, "link"), QStringList());

    quick({"catalogue", file, "--out", path("catalogue")});
    EXPECT_EQ(bytesOf(page), html);
}

TEST_F(PictureTest, ScriptsThatChangeSetsDoNotChangeTheCatalogue)
{
    QByteArray scripted = documentOf(file);
    scripted.replace("print(\"&lt;stop&gt;\")",
                     "createVariantSet('New'); removeVariantSet('stop : halt');"
                     "findVariantSet('Away').setName('Far')");
    write("signs.gltf", sceneWith("signs", scripted));
    quick({"catalogue", file, "--scripts", "--out", made("catalogue")});
    const QByteArray html = bytesOf(path("catalogue/index.html"));
    EXPECT_EQ(textsIn(html, "h3"), (QStringList{"Stop / halt", "stop : halt", "Away"}));
    EXPECT_EQ(html.count("<img "), 1);
}

TEST_F(PictureTest, ASceneWithoutSetsHasACatalogueToo)
{
    const QString empty = write("empty.gltf", R"({"asset": {"version": "2.0"}})");
    done({"catalogue", empty, "--out", made("empty")});
    EXPECT_TRUE(textsIn(bytesOf(path("empty/index.html")), "html")
                    .value(0)
                    .contains("The scene has no variants."));
    done({"previews", empty, "--save", path("saved.gltf")});
    refused(1, {"render", empty, "--all", "--out", folder.path()}, "the scene has no variant sets");
}

TEST_F(PictureTest, PicturesThatShowNothingOfTheSceneAreNamedWithTheReason)
{
    QByteArray none = documentOf(file);
    const QString hidden =
        write("hidden.gltf", sceneWith("signs", none.replace("state=\"Blue\"", "state=\"!None\"")));
    const QByteArray hint = "in \"stop : halt\": all of it is hidden, or it has no triangles; ";
    const QByteArray said = quick({"catalogue", hidden, "--out", made("page")}).err;
    EXPECT_EQ(said.count("nothing of the scene is to be seen"), said.count(hint)) << said.data();
    EXPECT_EQ(said.count(hint), 1) << said.data();
    const QStringList one{"render", hidden, "--out", path("one.png"), "--size", "9x9"};
    EXPECT_EQ(quick(one).err.count("nothing of the scene"), 0);
    EXPECT_EQ(quick(one + QStringList{"--set", "stop : halt"}).err.count("nothing of the"), 1);
}

TEST_F(PictureTest, LightAndBackgroundAreWhatTheOptionsSay)
{
    const QString dim =
        write("dim.hdr", "#?RADIANCE\n\n-Y 1 +X 2\n\x40\x40\x40\x7e\x40\x40\x40\x7e");
    const QString nothing = write("nothing.gltf", R"({"asset": {"version": "2.0"}})");
    const auto rendered = [&](const QStringList &options) {
        const QString out = path("picture.png");
        quick(QStringList{"render", nothing, "--size", "64x48", "--out", out} + options);
        return QImage(out);
    };
    const QImage open = rendered({"--background", "none"});
    EXPECT_TRUE(open.hasAlphaChannel());
    EXPECT_EQ(open.pixel(0, 0), qRgba(0, 0, 0, 0));
    const QImage plain = rendered({"--background", "#204060"});
    EXPECT_FALSE(plain.hasAlphaChannel());
    EXPECT_EQ(plain.pixel(0, 0), qRgb(0x20, 0x40, 0x60));
    const QRgb sky = rendered({"--environment", dim}).pixel(0, 0);
    EXPECT_TRUE(qGray(sky) > 5 && qGray(sky) < 60) << qGray(sky);
    EXPECT_GT(qGray(rendered({"--environment", dim, "--exposure", "3"}).pixel(0, 0)), 100);
}

TEST_F(PictureTest, WhatCannotBeDoneIsRefusedBeforeAnythingIsRendered)
{
    const QString out = path("picture.png");
    refused(1, {"render", file, "--view", "Up", "--out", out}, "no viewpoint is called \"Up\"");
    for (const char *size : {"5x0", "64x", "-1x5", "5x8193", "99999x99999", "5x5x5"})
        refused(2, {"render", file, "--size", size, "--out", out}, "--size is WIDTHxHEIGHT");
    refused(2, {"render", file, "--all", "--set", "Away", "--out", out}, "do not go together");
    refused(2, {"render", file}, "render needs --out PNG|DIR");
    refused(2, {"previews", file}, "previews needs --save OUT");
    const QString saved = path("saved.gltf");
    refused(2, {"previews", file, "--all", "--stale", "--save", saved}, "do not go together");
    refused(2, {"catalogue", file}, "catalogue needs --out DIR");
    refused(2, {"catalogue", file, "--quality", "", "--out", out}, "--quality needs a value");
    for (const QStringList &command : {QStringList{"render", file, "--out", out},
                                       {"previews", file, "--save", saved},
                                       {"catalogue", file, "--out", folder.path()}})
        for (const auto &[option, value, said] :
             {std::tuple("--quality", "good", "--quality is quick or best"),
              {"--exposure", "bright", "--exposure is a number from -20 to 20"},
              {"--environment-rotation", "361", "--environment-rotation is a number"},
              {"--background", "red", "--background is gradient, environment, none or a colour"},
              {"--ground", "maybe", "--ground is auto or on or off"},
              {"--threads", "0", "--threads is a whole number from 1 to 1024"}})
            refused(2, command + QStringList{option, value}, said);
    for (const QStringList &command : {QStringList{"previews", file, "--save", saved},
                                       {"catalogue", file, "--out", folder.path()}})
        refused(2, command + QStringList{"--background", "none"}, "these pictures are opaque");
    const QStringList lit{"render", file, "--out", out, "--environment"};
    refused(1, lit + QStringList{path("none.hdr")}, "none.hdr: the file does not exist");
    refused(1, lit + QStringList{file}, "it is neither a Radiance nor an OpenEXR picture");
    EXPECT_FALSE(QFile::exists(out));
}

TEST_F(PictureTest, AnInterruptedRenderingLeavesNoHalfPicture)
{
    const QByteArray said =
        interrupted({"render", file, "--size", "3000x3000", "--out", path("large.png")}, "1/1");
    EXPECT_TRUE(said.contains("interrupted; no picture was written")) << said.toStdString();
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{"signs.gltf"});
}

TEST_F(PictureTest, AnInterruptKeepsThePicturesThatAreDone)
{
    const QDir out(made("pictures"));
    const QByteArray said = interrupted({"render", manySets(), "--all", "--size", "99x99",
                                         "--quality", "quick", "--out", out.path()},
                                        "3/60");
    const QStringList names = out.entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    EXPECT_GE(names.size(), 2);
    EXPECT_TRUE(said.contains("holds " + QByteArray::number(names.size()) + " of 60 pictures"));
    EXPECT_GT(middle(out.filePath(names.value(0)), {99, 99}).red(), 200);
    for (const QString &name : names) // all sets look the same
        EXPECT_EQ(bytesOf(out.filePath(name)), bytesOf(out.filePath(names[0])));
}

TEST_F(PictureTest, AnInterruptSavesThePreviewsThatAreDone)
{
    const QString saved = path("saved.gltf");
    const QByteArray said =
        interrupted({"previews", manySets(), "--quality", "quick", "--save", saved}, "3/60");
    const QStringList made = previews(saved);
    EXPECT_GE(made.size(), 2);
    EXPECT_TRUE(said.contains(QByteArray::number(made.size()) + " of 60 sets are done"));
    for (const QString &preview : made)
        EXPECT_FALSE(imageOf(preview).isNull());
}

TEST_F(PictureTest, ATerminalShowsABarThatIsWipedInTheEnd)
{
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_TRUE(terminal >= 0 && grantpt(terminal) == 0 && unlockpt(terminal) == 0);
    QProcess program;
    program.setStandardErrorFile(QString::fromLocal8Bit(ptsname(terminal)));
    program.start(QStringLiteral(QX_BUILD_BIN "/workbench"),
                  {"render", file, "--all", "--size", "16x16", "--quality", "quick", "--out",
                   made("pictures")});
    EXPECT_EQ(ended(program).code, 0);
    char bytes[4096] = {};
    EXPECT_GT(read(terminal, bytes, sizeof bytes - 1), 0);
    close(terminal);
    const QByteArray shown(bytes);
    for (const char *part : {"[........................] 1/3 Stop / halt",
                             "[########................] 2/3 stop", "] 3/3 Away\r\x1b[K"})
        EXPECT_TRUE(shown.contains(part)) << part << " is not in\n" << shown.constData();
}
