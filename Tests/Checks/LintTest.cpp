#include "CheckScene.h"
#include "qxLinter.h"

#include <QStringList>

namespace {

/// The host's interpreter belongs to the program; here a script is wrong when it says so.
QString compile(const QString &script)
{
    return script.contains("wrong") ? QStringLiteral("line 1: wrong") : QString();
}

/// A fault to plant into the clean document: one text in place of another, and what is found then.
struct Fault {
    const char *from;
    const char *to;
    const char *findings; ///< codes with places, such as "QX301 NodeVariantRef[1]"
};

class LintTest : public CheckScene {
protected:
    static QByteArray planted(const Fault &fault)
    {
        QByteArray document = cleanDocument();
        const int at = document.indexOf(fault.from);
        EXPECT_GE(at, 0) << fault.from;
        return document.replace(at, int(qstrlen(fault.from)), fault.to);
    }

    /// Code and last step of the path of each finding.
    static std::string textOf(const qxFindings &findings)
    {
        QStringList texts;
        for (const qxFinding &each : findings)
            texts += qxCheckCodes::id(each.code) + " " + each.path.section('/', -1);
        return texts.join("; ").toStdString();
    }
};

// A list, not a procedure.
const Fault faults[] = {
    {"</VariantGroup>", "</Group>", "QX101 "},
    {"<VariantSet name=\"Winter\"", "<VariantSet name=\"\"",
     "QX102 VariantSet[1]; QX408 NodeVariant[2] \"Lamp\"; QX407 State[3]; QX407 State[2]"},
    {"<VariantGroup name=", "<VariantGroup title=",
     "QX102 VariantGroup[1]; QX408 LightVariant[1] \"Sun\"; QX407 State[4]; QX407 State[3]"},
    {"<LightVariant name=\"Sun\"", "<LightVariant",
     "QX301 LightVariantRef[1]; QX102 LightVariant[1]"},
    {"<Value name=\"Price\">12</Value>", "<Valu name=\"Price\"><Value/></Valu>", "QX103 Valu[1]"},
    {"<State name=\"!All\"/>", "<Stat/>", "QX103 Stat[1]"},
    {"visible=\"true\"", "visible=\"True\"", "QX104 VariantGroup[1] \"Road\""},
    {"<SequentialAnimation>false", "<SequentialAnimation>0", "QX104 SequentialAnimation[1]"},
    {"clipPlanePositionX=\"0.5\"", "clipPlanePositionX=\"0,5\"", "QX105 Analyzer[1]"},
    {"clipContourWidth=\"1\"", "clipContourWidth=\"1.5\"", "QX105 Analyzer[1]"},
    {"inclNodes=\"1\"", "inclNodes=\"true\"", "QX105 InclInfo[1]"},
    {"<![CDATA[aGVsbG8=]]>", "aGVsbG8=", "QX106 Preview[1]"},
    {"<![CDATA[aGVsbG8=]]>", "<Data/>", "QX106 Preview[1]"},
    {"<![CDATA[aGVsbG8=]]>", "", "QX106 Preview[1]"},
    {"<Value name=", "<Value title=", "QX107 Value[1]"},
    {"<VariantSet name=\"Winter\"", "<VariantSet name=\"Sport\"", "QX201 VariantSet[1] \"Sport\""},
    {"<VariantSet name=\"Winter\"",
     "<VariantGroup name=\"Road\"><VariantSet name=\"S\"><Script>1</Script></VariantSet>"
     "</VariantGroup><VariantSet name=\"Winter\"",
     "QX202 VariantGroup[2] \"Road\""},
    {"<KeloNodeVariant name=\"not ours\"/>",
     "<LightVariant name=\"Sun\" base=\"Sun\"><State name=\"!Enable\"/></LightVariant>",
     "QX408 LightVariant[1] \"Sun\"; QX203 LightVariant[2] \"Sun\""},
    {"<State name=\"!All\"/>", "<State name=\"Steel\"/><State name=\"!All\"/>", "QX204 State[4]"},
    {"<TransformRef ref=\"Door\" state=\"Open\"/>",
     "<TransformRef ref=\"Door\" state=\"Open\"/><TransformRef ref=\"Door\" state=\"Shut\"/>",
     "QX205 TransformRef[2]"},
    {"<ViewpointRef ref=\"Front\"/>", "<ViewpointRef ref=\"Front\"/><ViewpointRef ref=\"Front\"/>",
     "QX206 ViewpointRef[2]"},
    {"<Value name=\"Price\">",
     "<MaterialSnapshot nodePath=\"Body/Trim\" materialName=\"Red\"/>"
     "<Value name=\"Price\">",
     "QX206 MaterialSnapshot[2]"},
    {"ref=\"Wheels\" state=\"Alloy\"", "ref=\"wheels\" state=\"Alloy\"", "QX301 NodeVariantRef[1]"},
    {"<TransformRef ref=\"Door\"", "<TransformRef ref=\"Sun\"",
     "QX301 TransformRef[1]; QX407 State[3]"},
    {"ref=\"Sun\" state=\"!Enable\"", "ref=\"Sun\" state=\"!On\"",
     "QX302 LightVariantRef[1]; QX303 LightVariantRef[1]"},
    {"ref=\"Wheels\" state=\"Alloy\"", "ref=\"Wheels\" state=\"!None\"", "QX302 NodeVariantRef[1]"},
    {"ref=\"Lamp\" state=\"!Disable\"", "ref=\"Lamp\" state=\"\"",
     "QX302 NodeVariantRef[2]; QX303 NodeVariantRef[2]"},
    {"ref=\"Chair\" state=\"Transform 1\"", "ref=\"Chair\" state=\"Transform 2\"",
     "QX302 NodeVariantRef[2]; QX303 NodeVariantRef[2]"},
    {"<OverlayRef ref=\"Signs\" state=\"!None\"/>", "<OverlayRef ref=\"Signs\"/>",
     "QX302 OverlayRef[1]; QX303 OverlayRef[1]"},
    {"<ViewpointRef ref=\"Front\"", "<ViewpointRef ref=\"front\"", "QX304 ViewpointRef[1]"},
    {"default-viewpoint=\"Back\"", "default-viewpoint=\"back\"", "QX305 VariantSet[1] \"Sport\""},
    {"<AnimationRef ref=\"Spin\"", "<AnimationRef ref=\"\"", "QX306 AnimationRef[1]"},
    {"<GeometryRef ref=\"Body\"", "<GeometryRef ref=\"Red\"", "QX307 GeometryRef[1]"},
    {"<TargetName name=\"Body\"", "<TargetName name=\"Signs\"", "QX308 TargetName[1]"},
    {"nodePath=\"Body/Trim\"", "nodePath=\"Body|Trim\"", "QX309 MaterialSnapshot[1]"},
    {"nodePath=\"Body/Trim\"", "nodePath=\"Trim\"", "QX309 MaterialSnapshot[1]"},
    {"materialName=\"Blue\"", "materialName=\"Body\"", "QX310 MaterialSnapshot[1]"},
    {"<NodeVariant name=\"Lamp\" base=\"Lamp\">\n  <Default ref=\"!Enable\"/>",
     "<NodeVariant name=\"Lamp\" base=\"Chair\">\n  <Default ref=\"!Enable\"/>", ""},
    {"<NodeVariantRef ref=\"Lamp\" state=\"!Disable\"/>",
     "<NodeVariantRef ref=\"Rims\" state=\"Steel\"/>",
     "QX301 NodeVariantRef[2]; QX408 NodeVariant[2] \"Lamp\""},
    {"<Hotkey>Ctrl+1</Hotkey>", "<Hotkey>Ctrl+Nonsense</Hotkey>", "QX501 Hotkey[1]"},
    {"<Hotkey>C</Hotkey>", "<Hotkey> w </Hotkey>", "QX502 Hotkey[1]"},
    {"<Hotkey>Alt+1</Hotkey>", "<Hotkey>Ctrl-1</Hotkey>", "QX502 Hotkey[1]"},
    {"print(\"sport\")", "wrong", "QX314 Script[1]"},
    {"<VariantSet name=\"Winter\"", "<VariantGroup name=\"Attic\"/><VariantSet name=\"Winter\"",
     "QX315 VariantGroup[2] \"Attic\""},
    {"<VariantSet name=\"Winter\"",
     "<VariantSet name=\"Void\" default-viewpoint=\"Back\"><Hotkey>V</Hotkey><Value "
     "name=\"a\">b</Value></VariantSet><VariantSet name=\"Winter\"",
     "QX313 VariantSet[1] \"Void\""},
    {"<LightVariant name=\"Sun\" base=\"Sun\"", "<LightVariant name=\"Sun\" base=\"Moon\"",
     "QX401 LightVariant[1] \"Sun\""},
    {"<OverlayVariant name=\"Signs\" base=\"Signs\"",
     "<OverlayVariant name=\"Signs\" base=\"Lamp\"", "QX401 OverlayVariant[1] \"Signs\""},
    {"<LightVariant name=\"Sun\" base=\"Sun\"", "<LightVariant name=\"Sun\" base=\"Lamp\"",
     "QX402 LightVariant[1] \"Sun\""},
    {"<TransformVariant name=\"Door\" base=\"Door\"",
     "<TransformVariant name=\"Door\" base=\"Chair\"", "QX402 TransformVariant[1] \"Door\""},
    {"<MaterialVariant name=\"Paint\" base=\"Paint\"",
     "<MaterialVariant name=\"Paint\" base=\"Red\"", "QX402 MaterialVariant[1] \"Paint\""},
    {"<Default ref=\"Red\"/>", "<Default ref=\"Green\"/>", "QX403 Default[1]"},
    {"<State name=\"!Toggle\"/>", "<State name=\"!All\"/>", "QX404 State[3]"},
    {"<State name=\"Blue\"/>", "<State name=\"Blue\"/><State name=\"!None\"/>", "QX404 State[4]"},
    {"<State name=\"!None\"/>", "<State name=\"!None\"/><State/>", "QX405 State[3]"},
    {"<KeloNodeVariant name=\"not ours\"/>", "<NodeVariant name=\"New\" base=\"Lamp\"/>",
     "QX406 NodeVariant[4] \"New\""},
    {"state=\"Shut\"", "state=\"Open\"", "QX407 State[2]"},
    {"<KeloNodeVariant name=\"not ours\"/>",
     "<NodeVariant name=\"New\" base=\"Lamp\"><State name=\"!Enable\"/></NodeVariant>",
     "QX408 NodeVariant[4] \"New\""},
};

} // namespace

TEST_F(LintTest, ACleanDocumentGivesNoFindings)
{
    EXPECT_EQ(textOf(qxLinter::lint(cleanDocument(), compile)), "");
    EXPECT_EQ(textOf(qxLinter::lint("<Variants/>", compile)), "");
}

TEST_F(LintTest, EachPlantedFaultIsFoundWhereItStandsAndNothingElse)
{
    for (const Fault &fault : faults) {
        SCOPED_TRACE(fault.to);
        EXPECT_EQ(textOf(qxLinter::lint(planted(fault), compile)), fault.findings);
    }
}

TEST_F(LintTest, FightsAndTwinsAreFound)
{
    const QByteArray rims =
        "<NodeVariant name='Rims' base='Wheels'><State name='Steel'/><State name='Alloy'/>"
        "<State name='!Disable'/><State name='!Next (Loop)'/></NodeVariant>"
        "<NodeVariant name='Lantern' base='Lamp'><State name='!Toggle'/></NodeVariant>"
        "<NodeVariant name='Seat' base='Chair'><State name='!Enable'/></NodeVariant>";
    const auto lintWith = [&](const QByteArray &set) {
        QByteArray document = cleanDocument();
        document.replace("<VariantSet name=\"Winter\"",
                         "<VariantSet name='New'>" + set + "</VariantSet>" + rims
                             + "<VariantSet name=\"Winter\"");
        QStringList texts;
        for (const qxFinding &each : qxLinter::lint(document, compile)) {
            if (each.severity() != qxSeverity::Hint)
                texts += qxCheckCodes::id(each.code) + " " + each.path.section('/', -1);
        }
        return texts.join("; ").toStdString();
    };
    const QByteArray wheels = "<NodeVariantRef ref='Wheels' state='Alloy'/>";
    EXPECT_EQ(lintWith(wheels + "<NodeVariantRef ref='Rims' state='Steel'/>"),
              "QX311 NodeVariantRef[2]");
    EXPECT_EQ(lintWith(wheels + "<NodeVariantRef ref='Rims' state='Alloy'/>"), "");
    // Hiding the switch and choosing its child go together.
    EXPECT_EQ(lintWith(wheels + "<NodeVariantRef ref='Rims' state='!Disable'/>"), "");

    // The second toggle undoes the first, the second step goes on from it.
    EXPECT_EQ(lintWith("<NodeVariantRef ref='Lamp' state='!Toggle'/>"
                       "<NodeVariantRef ref='Lantern' state='!Toggle'/>"),
              "QX311 NodeVariantRef[2]");
    EXPECT_EQ(lintWith("<NodeVariantRef ref='Wheels' state='!Next (Loop)'/>"
                       "<NodeVariantRef ref='Rims' state='!Next (Loop)'/>"),
              "QX311 NodeVariantRef[2]");
    // Showing a transform switch takes it to its first state.
    const QByteArray seat = "<NodeVariantRef ref='Seat' state='!Enable'/>";
    EXPECT_EQ(lintWith("<NodeVariantRef ref='Chair' state='Transform 1'/>" + seat),
              "QX311 NodeVariantRef[2]");
    EXPECT_EQ(lintWith("<NodeVariantRef ref='Chair' state='Transform 0'/>" + seat), "");
    const auto lintWithTarget = [&](const QByteArray &inclNodes, const QByteArray &state) {
        return lintWith("<TargetName name='Lamp'/><InclInfo inclNodes='" + inclNodes
                        + "'/><NodeVariantRef ref='Lamp' state='" + state + "'/>");
    };
    EXPECT_EQ(lintWithTarget("1", "!Disable"), "QX311 NodeVariantRef[1]");
    EXPECT_EQ(lintWithTarget("1", "!Enable"), "");
    EXPECT_EQ(lintWithTarget("0", "!Disable"), "");

    const QByteArray copy = "<Hotkey>X</Hotkey><NodeVariantRef state='!Next (Loop)' ref='Wheels'/>"
                            "<NodeVariantRef ref='Lamp' state='!Disable'/>"
                            "<TransformRef ref='Door' state='Shut'/>"
                            "<MaterialVariantRef ref='Paint' state='Blue'/>"
                            "<OverlayRef ref='Signs' state='!None'/>";
    EXPECT_EQ(lintWith(copy), "QX312 VariantSet[2] \"Winter\"");
    EXPECT_EQ(lintWith(copy + "<ViewpointRef ref='Front'/>"), "");
}

TEST_F(LintTest, TwoVariantsOfOneCoreFightEvenThroughClonesOfTheNode)
{
    const TestNode rims = scene.add("Rims");
    {
        const osg::NodeCorePtr core = scene.root().child(0).core();
        const osg::NodePtr node = rims.node();
        const osg::CPEditor edit(node);
        node->setCore(core);
        for (const char *name : {"Steel", "Alloy"})
            scene.add(name, node);
    }
    QByteArray document = cleanDocument();
    document.replace("<Value", "<NodeVariantRef ref=\"Rims\" state=\"Steel\"/><Value");
    document.replace("<KeloNodeVariant name=\"not ours\"/>",
                     "<NodeVariant name='Rims' base='Rims'><State name='Steel'/></NodeVariant>");
    EXPECT_EQ(textOf(qxLinter::lint(document, compile)), "QX311 NodeVariantRef[3]");
}

TEST_F(LintTest, EveryLintCodeIsPlantedHere)
{
    QByteArray planted = "QX311 QX312";
    for (const Fault &fault : faults)
        planted += fault.findings;
    for (const qxCodeRow &row : qxCheckCodes::all()) {
        if (row.code < qxCode::SkippedNoVariant) {
            EXPECT_TRUE(planted.contains(row.id)) << row.id;
        }
    }
}

TEST_F(LintTest, AFindingNamesTheElementWithItsPlace)
{
    QByteArray document = cleanDocument();
    document.replace("ref=\"Lamp\"", "ref=\"Lamps\"");
    const qxFindings findings = qxLinter::lint(document, compile);
    ASSERT_GE(findings.size(), 1);
    EXPECT_EQ(findings[0].path.toStdString(),
              "Variants/VariantSet[1] \"Winter\"/NodeVariantRef[2]");
    EXPECT_EQ(findings[0].line, 29);
    EXPECT_EQ(findings[0].column, 3);
    EXPECT_EQ(findings[0].message.toStdString(),
              "set \"Winter\", node variant \"Lamps\": it does not exist");

    const qxFindings oneLine = qxLinter::lint(
        "<Variants><VariantGroup name='A'/><!-- b --><VariantGroup name='A'/></Variants>", compile);
    ASSERT_EQ(oneLine.size(), 3);
    EXPECT_EQ(oneLine[1].line, 1);
    EXPECT_EQ(oneLine[0].column, 11);
    EXPECT_EQ(oneLine[1].column, 45);
}

TEST_F(LintTest, OlderFormsAreNoFaults)
{
    EXPECT_EQ(textOf(qxLinter::lint(
                  "<Variants><VariantSet name='Old' script='pass'><OverlayRef ref='Signs'/>"
                  "<OverlayRef ref='Logo'/></VariantSet><OverlayVariant name='Signs' base='Signs'>"
                  "<State name='!Enable'/></OverlayVariant></Variants>",
                  compile)),
              "");
}

TEST_F(LintTest, ADocumentThatIsNotWellFormedGivesNothingElse)
{
    EXPECT_EQ(textOf(qxLinter::lint("", compile)), "QX101 ");
    EXPECT_EQ(textOf(qxLinter::lint("<Variants><VariantSet name='a'", compile)), "QX101 ");
    EXPECT_EQ(textOf(qxLinter::lint("<Variants/>rest", compile)), "QX101 ");
}
