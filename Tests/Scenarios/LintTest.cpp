#include "Program.h"
#include "qxTestPaths.h"

#include <QXmlStreamReader>

/// The lint command: its three forms, and its exit code.
class LintTest : public ProgramFixture {
protected:
    /// Opening tags of JUnit XML in order, each with the attribute that tells most of it.
    static QStringList tagsOf(const QByteArray &junit)
    {
        QStringList tags;
        QXmlStreamReader xml(junit);
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            const QXmlStreamAttributes attributes = xml.attributes();
            const QString name = attributes.value("name").toString().left(5);
            if (xml.name() == "testsuite")
                tags += attributes.value("failures") + ":" + attributes.value("tests");
            else if (xml.name() == "testcase")
                tags += name;
            else if (xml.name() != "testsuites")
                tags.last() += " " + xml.name() + " " + attributes.value("type");
        }
        EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
        return tags;
    }
};

TEST_F(LintTest, FindingsAreLinesWithPlaceSeverityAndCode)
{
    const ProgramRun run = failed({"lint", desk()});
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(
        run.out,
        "15:4: error QX301: set \"Evening\", node variant \"Shelf\": it does not exist "
        "(Variants/VariantGroup[1] \"Work\"/VariantSet[2] \"Evening\"/NodeVariantRef[2])\n"
        "19:4: error QX306: set \"Evening\", animation \"Sunset\": the scene does not have it "
        "(Variants/VariantGroup[1] \"Work\"/VariantSet[2] \"Evening\"/AnimationRef[1])\n"
        "22:2: hint QX315: group \"Attic\" has no sets (Variants/VariantGroup[2] \"Attic\")\n"
        "44:3: hint QX407: node variant \"Chair\": no set and no hotkey leads to \"Transform "
        "1\" (Variants/NodeVariant[3] \"Chair\"/State[2])\n"
        "47:2: error QX401: light variant \"Lamp\": the scene has no \"Lamp bulb\" "
        "(Variants/LightVariant[1] \"Lamp\")\n"
        "47:2: hint QX408: light variant \"Lamp\": no set and no hotkey uses it "
        "(Variants/LightVariant[1] \"Lamp\")\n"
        "3 errors, 0 warnings, 3 hints\n");

    const QJsonObject json = failed({"lint", desk(), "--json"}).object();
    EXPECT_TRUE(json["errors"] == 3 && json["warnings"] == 0 && json["hints"] == 3);
    ASSERT_EQ(json["findings"].toArray().size(), 6);
    EXPECT_EQ(QJsonDocument(json["findings"][2].toObject()),
              parsed(R"({"code": "QX315", "severity": "hint",
        "message": "group \"Attic\" has no sets", "path": "Variants/VariantGroup[2] \"Attic\"",
        "line": 22, "column": 2})"));
}

TEST_F(LintTest, JUnitFailsTheCasesOfErrorsAndKeepsTheRestAsOutput)
{
    const QStringList tags = tagsOf(failed({"lint", desk(), "--junit"}).out);
    EXPECT_EQ(tags.value(0), QString("3:%1").arg(tags.size() - 1));
    EXPECT_EQ(tags.filter(" "),
              (QStringList{"QX301 failure QX301", "QX306 failure QX306", "QX315 system-out ",
                           "QX401 failure QX401", "QX407 system-out ", "QX408 system-out "}));
    refused(2, {"lint", desk(), "--json", "--junit"}, "--json and --junit do not go together");

    // The file may have any name, and a warning is no failure.
    const QString odd =
        write("page\f\v\x01\t1.gltf", sceneWith("desk", "<Variants><Other/></Variants>"));
    const ProgramRun run = done({"lint", odd, "--junit"});
    EXPECT_EQ(tagsOf(run.out).filter(" "), QStringList("QX103 system-out "));
    EXPECT_TRUE(run.out.contains("page\uFFFD\uFFFD\uFFFD")) << run.out.toStdString();
}

TEST_F(LintTest, ADocumentThatTheReaderRefusesIsAFindingToo)
{
    for (const QByteArray document :
         {"<Variants><VariantSet", "<!DOCTYPE v [<!ENTITY a 'b'>]><Variants/>", "no document"}) {
        const QByteArray out = failed({"lint", desk(document)}).out;
        EXPECT_TRUE(out.contains("error QX101: ") && out.count('\n') == 2) << out.toStdString();
    }
    for (const QString &clean :
         {desk("<Variants/>"), QStringLiteral(QX_TEST_DATA "/Scenes/desk.gltf"),
          QStringLiteral(QX_DEMO_SCENE)})
        EXPECT_EQ(done({"lint", clean}).out, "no findings\n");
}

TEST_F(LintTest, ScriptsAreCompiledButNotRun)
{
    const QByteArray proof = path("proof.txt").toUtf8();
    const QString writes = deskWithSet("<Script>open(\"" + proof + "\", \"w\")</Script>");
    EXPECT_EQ(done({"lint", writes}).out, "no findings\n");
    EXPECT_EQ(done({"explain", writes, "Only"}).out, // which does not run them either
              "Only\n  script    QX620 scripts are not run here\n");
    EXPECT_FALSE(QFile::exists(proof));
    const ProgramRun run = failed({"lint", deskWithSet("<Script>1 +</Script>")});
    EXPECT_TRUE(run.out.startsWith("1:35: error QX314: set \"Only\": line 1: "))
        << run.out.toStdString();
}
