#include "Program.h"

#include <QFile>
#include <QXmlStreamReader>

/// The lint command: its three forms, and its exit code.
class LintTest : public ProgramFixture {};

TEST_F(LintTest, FindingsAreLinesWithPlaceSeverityAndCode)
{
    const ProgramRun run = workbench({"lint", desk()});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(
        run.out,
        "15:4: error QX301: set \"Evening\", node variant \"Shelf\": it does not exist "
        "(Variants/VariantGroup[1] \"Work\"/VariantSet[2] \"Evening\"/NodeVariantRef[2])\n"
        "19:4: error QX306: set \"Evening\", animation \"Sunset\": the scene does not have it "
        "(Variants/VariantGroup[1] \"Work\"/VariantSet[2] \"Evening\"/AnimationRef[1])\n"
        "22:2: hint QX315: group \"Attic\" has no sets (Variants/VariantGroup[2] "
        "\"Attic\")\n"
        "44:3: hint QX407: node variant \"Chair\": no set and no hotkey leads to \"Transform "
        "1\" (Variants/NodeVariant[3] \"Chair\"/State[2])\n"
        "47:2: error QX401: light variant \"Lamp\": the scene has no \"Lamp bulb\" "
        "(Variants/LightVariant[1] \"Lamp\")\n"
        "47:2: hint QX408: light variant \"Lamp\": no set and no hotkey uses it "
        "(Variants/LightVariant[1] \"Lamp\")\n"
        "3 errors, 0 warnings, 3 hints\n");
}

TEST_F(LintTest, JsonHoldsEveryFinding)
{
    const ProgramRun run = workbench({"lint", desk(), "--json"});
    EXPECT_EQ(run.code, 1);
    const QJsonObject json = run.object();
    EXPECT_EQ(json["errors"], 3);
    EXPECT_EQ(json["warnings"], 0);
    EXPECT_EQ(json["hints"], 3);
    ASSERT_EQ(json["findings"].toArray().size(), 6);
    EXPECT_EQ(json["findings"][2],
              (QJsonObject{{"code", "QX315"},
                           {"severity", "hint"},
                           {"message", "group \"Attic\" has no sets"},
                           {"path", "Variants/VariantGroup[2] \"Attic\""},
                           {"line", 22},
                           {"column", 2}}));
}

TEST_F(LintTest, JUnitFailsTheCasesOfErrorsAndKeepsTheRestAsOutput)
{
    const ProgramRun run = workbench({"lint", desk(), "--junit"});
    EXPECT_EQ(run.code, 1);
    QStringList failed, noted;
    QString current;
    int cases = 0;
    QXmlStreamReader xml(run.out);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.name() == "testsuite") {
            EXPECT_EQ(attributes.value("failures"), "3");
            cases = -attributes.value("tests").toInt();
        } else if (xml.name() == "testcase") {
            ++cases;
            current = attributes.value("name").toString().left(5);
        } else if (xml.name() == "failure") {
            EXPECT_EQ(attributes.value("type"), current);
            failed += current;
        } else if (xml.name() == "system-out") {
            noted += current;
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_EQ(cases, 0);
    EXPECT_EQ(failed, (QStringList{"QX301", "QX306", "QX401"}));
    EXPECT_EQ(noted, (QStringList{"QX315", "QX407", "QX408"}));
    refused(2, {"lint", desk(), "--json", "--junit"}, "--json and --junit do not go together");
}

TEST_F(LintTest, JUnitStaysReadableWhateverTheFileIsCalled)
{
    const QString name = path(QString::fromUtf8("page\f\v\x01\t1.gltf"));
    ASSERT_TRUE(QFile::copy(desk("<Variants/>"), name));
    QXmlStreamReader xml(done({"lint", name, "--junit"}).out);
    QString suite;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == "testsuite")
            suite = xml.attributes().value("name").toString();
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_TRUE(suite.contains(QString::fromUtf8("page\uFFFD\uFFFD\uFFFD"))) << suite.toStdString();
}

TEST_F(LintTest, ADocumentThatTheReaderRefusesIsAFindingToo)
{
    const auto codesOf = [](const ProgramRun &run) {
        QStringList codes;
        for (const QJsonValue &finding : run.object()["findings"].toArray())
            codes += finding["code"].toString();
        return codes;
    };
    for (const QByteArray &document :
         {QByteArray("<Variants><VariantSet"),
          QByteArray("<!DOCTYPE v [<!ENTITY a 'b'>]><Variants/>"), QByteArray("no document")}) {
        const ProgramRun run = workbench({"lint", desk(document), "--json"});
        EXPECT_EQ(run.code, 1);
        EXPECT_EQ(codesOf(run), QStringList("QX101")) << document.toStdString();
    }
    EXPECT_EQ(done({"lint", desk("<Variants/>")}).out, "no findings\n");
    EXPECT_EQ(done({"lint", QStringLiteral(QX_TEST_DATA "/Scenes/desk.gltf")}).out,
              "no findings\n");
}

TEST_F(LintTest, ScriptsAreCompiledButNotRun)
{
    const QByteArray set = "<Variants><VariantSet name='Only'><Script>%1</Script></VariantSet>"
                           "</Variants>";
    const QString proof = path("proof.txt");
    const QByteArray writing = "open(\"" + proof.toUtf8() + "\", \"w\")";
    EXPECT_EQ(done({"lint", desk(QByteArray(set).replace("%1", writing))}).out, "no findings\n");
    EXPECT_FALSE(QFile::exists(proof));
    const ProgramRun run = workbench({"lint", desk(QByteArray(set).replace("%1", "1 +"))});
    EXPECT_EQ(run.code, 1);
    EXPECT_TRUE(run.out.startsWith("1:35: error QX314: set \"Only\": line 1: "))
        << run.out.toStdString();
}

TEST_F(LintTest, TheDemoIsClean)
{
    EXPECT_EQ(done({"lint", QX_DEMO_SCENE}).out, "no findings\n");
}
