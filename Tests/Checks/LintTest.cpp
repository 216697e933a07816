#include "CheckScene.h"
#include "qxLinter.h"
#include "qxTestPaths.h"

#include <OpenSG/OSGSimpleAttachments.h>

#include <QRegularExpression>

#include <algorithm>
#include <functional>

/// The host's interpreter belongs to the program; here a script is wrong when it says so.
static QString compile(const QString &script)
{
    return script.contains("wrong") ? QStringLiteral("line 1: wrong") : QString();
}

/// A fault to plant into the clean document: one text in place of another, and what is found then.
/// Single quotes stand for double ones.
struct Fault {
    const char *from;
    const char *to;
    const char *findings; ///< codes with places, such as "QX301 NodeVariantRef[1]"
};

class LintTest : public CheckScene {
protected:
    /// The clean document with another text in place of the first of these.
    static QByteArray planted(const QByteArray &from, const QByteArray &to)
    {
        QByteArray document = cleanDocument().replace('"', '\'');
        const int at = document.indexOf(from);
        EXPECT_GE(at, 0) << from.toStdString();
        return document.replace(at, from.size(), to);
    }
    static std::vector<std::string> wordsOf(const qxFindings &findings)
    {
        std::vector<std::string> words;
        for (const qxFinding &each : findings)
            words.push_back(
                QString("%1:%2 %3 %4 %5 %6 %7")
                    .arg(each.line)
                    .arg(each.column)
                    .arg(qxCheckCodes::id(each.code), each.message, each.path, each.detail)
                    .arg(each.more)
                    .toStdString());
        return words;
    }
    static void expectSharesToBeTheWhole(const QByteArray &document)
    {
        const std::vector<std::string> whole = wordsOf(qxLinter::lint(document, compile));
        for (const int count : {1, 3, 40}) {
            std::vector<qxFindings> shares;
            for (int i = 0; i < count; ++i)
                shares.push_back(qxLinter::lint(document, compile, {i, count}));
            EXPECT_EQ(wordsOf(qxLinter::merge(shares)), whole) << count;
        }
    }
    /// Code and last step of the path of each finding, of errors and warnings alone if wanted.
    static std::string lint(const QByteArray &document, bool withHints = true)
    {
        QStringList texts;
        expectSharesToBeTheWhole(document);
        for (const qxFinding &each : qxLinter::lint(document, compile)) {
            if (withHints || each.severity() != qxSeverity::Hint)
                texts += qxCheckCodes::id(each.code) + " " + each.path.section('/', -1);
        }
        return texts.join("; ").replace('"', '\'').toStdString();
    }
};

/// What the reader passes over; anything may stand in its place.
const char foreign[] = "<KeloNodeVariant name='not ours'/>";

// A list, not a procedure.
const Fault faults[] = {
    {"</VariantGroup>", "</Group>", "QX101 "},
    {"<VariantSet name='Winter'", "<VariantSet name=''",
     "QX102 VariantSet[1]; QX408 NodeVariant[2] 'Lamp'; QX407 State[3]; QX407 State[2]"},
    {"<VariantGroup name=", "<VariantGroup title=",
     "QX102 VariantGroup[1]; QX408 LightVariant[1] 'Sun'; QX407 State[4]; QX407 State[3]"},
    {"<LightVariant name='Sun'", "<LightVariant",
     "QX301 LightVariantRef[1]; QX102 LightVariant[1]"},
    {"<Value name='Price'>12</Value>", "<Valu name='Price'><Value/></Valu>", "QX103 Valu[1]"},
    {"<State name='!All'/>", "<Stat/>", "QX103 Stat[1]"},
    {"visible='true'", "visible='True'", "QX104 VariantGroup[1] 'Road'"},
    {"<SequentialAnimation>false", "<SequentialAnimation>0", "QX104 SequentialAnimation[1]"},
    {"clipPlanePositionX='0.5'", "clipPlanePositionX='0,5'", "QX105 Analyzer[1]"},
    {"clipContourWidth='1'", "clipContourWidth='1.5'", "QX105 Analyzer[1]"},
    {"inclNodes='1'", "inclNodes='true'", "QX105 InclInfo[1]"},
    {"<![CDATA[aGVsbG8=]]>", "aGVsbG8=", "QX106 Preview[1]"},
    {"<![CDATA[aGVsbG8=]]>", "<Data/>", "QX106 Preview[1]"},
    {"<![CDATA[aGVsbG8=]]>", "", "QX106 Preview[1]"},
    {"<Value name=", "<Value title=", "QX107 Value[1]"},
    {"<Value name='Price'>12", "<Value name='&#27;'>1\x1B[2<![CDATA[\x07]]>", "QX108 "},
    {"<VariantSet name='Winter'", "<VariantSet name='Sport'", "QX201 VariantSet[1] 'Sport'"},
    {foreign, "<VariantGroup name='Road'><VariantSet name='S' script='1'/></VariantGroup>",
     "QX202 VariantGroup[2] 'Road'"},
    {foreign, "<LightVariant name='Sun' base='Sun'><State name='!Enable'/></LightVariant>",
     "QX408 LightVariant[1] 'Sun'; QX203 LightVariant[2] 'Sun'"},
    {"<State name='!All'/>", "<State name='Steel'/><State name='!All'/>", "QX204 State[4]"},
    {"<ViewpointRef ", "<TransformRef ref='Door' state='Shut'/><ViewpointRef ",
     "QX205 TransformRef[2]"},
    {"<ViewpointRef ", "<ViewpointRef ref='Front'/><ViewpointRef ", "QX206 ViewpointRef[2]"},
    {"<Value ", "<MaterialSnapshot nodePath='Body/Trim' materialName='Red'/><Value ",
     "QX206 MaterialSnapshot[2]"},
    {"ref='Wheels' state='Alloy'", "ref='wheels' state='Alloy'", "QX301 NodeVariantRef[1]"},
    {"<TransformRef ref='Door'", "<TransformRef ref='Sun'",
     "QX301 TransformRef[1]; QX407 State[3]"},
    {"ref='Sun' state='!Enable'", "ref='Sun' state='!On'",
     "QX302 LightVariantRef[1]; QX303 LightVariantRef[1]"},
    {"ref='Wheels' state='Alloy'", "ref='Wheels' state='!None'", "QX302 NodeVariantRef[1]"},
    {"ref='Lamp' state='!Disable'", "ref='Lamp' state=''",
     "QX302 NodeVariantRef[2]; QX303 NodeVariantRef[2]"},
    {"<OverlayRef ref='Signs' state='!None'/>", "<OverlayRef ref='Signs'/>",
     "QX302 OverlayRef[1]; QX303 OverlayRef[1]"},
    {"<ViewpointRef ref='Front'", "<ViewpointRef ref='front'", "QX304 ViewpointRef[1]"},
    {"default-viewpoint='Back'", "default-viewpoint='back'", "QX305 VariantSet[1] 'Sport'"},
    {"<AnimationRef ref='Spin'", "<AnimationRef ref=''", "QX306 AnimationRef[1]"},
    {"<GeometryRef ref='Body'", "<GeometryRef ref='Red'", "QX307 GeometryRef[1]"},
    {"<TargetName name='Body'", "<TargetName name='Signs'", "QX308 TargetName[1]"},
    {"nodePath='Body/Trim'", "nodePath='Trim'", "QX309 MaterialSnapshot[1]"},
    {"materialName='Blue'", "materialName='Body'", "QX310 MaterialSnapshot[1]"},
    {"<Hotkey>Ctrl+1</Hotkey>", "<Hotkey>Ctrl+Nonsense</Hotkey>", "QX501 Hotkey[1]"},
    {"<Hotkey>C</Hotkey>", "<Hotkey> w </Hotkey>", "QX502 Hotkey[1]"},
    {"<Hotkey>Alt+1</Hotkey>", "<Hotkey>Ctrl-1</Hotkey>", "QX502 Hotkey[1]"},
    {"print('sport')", "wrong", "QX314 Script[1]"},
    {foreign, "<VariantGroup name='Attic'/>", "QX315 VariantGroup[2] 'Attic'"},
    {foreign,
     "<VariantSet name='Void' default-viewpoint='Back'><Hotkey>V</Hotkey><Value name='a'>b</Value>"
     "</VariantSet>",
     "QX313 VariantSet[2] 'Void'"},
    {"<LightVariant name='Sun' base='Sun'", "<LightVariant name='Sun' base='Moon'",
     "QX401 LightVariant[1] 'Sun'"},
    {"<OverlayVariant name='Signs' base='Signs'", "<OverlayVariant name='Signs' base='Lamp'",
     "QX401 OverlayVariant[1] 'Signs'"},
    {"<LightVariant name='Sun' base='Sun'", "<LightVariant name='Sun' base='Lamp'",
     "QX402 LightVariant[1] 'Sun'"},
    {"<Default ref='Red'/>", "<Default ref='Green'/>", "QX403 Default[1]"},
    {"<State name='!Toggle'/>", "<State name='!All'/>", "QX404 State[3]"},
    {"<State name='!None'/>", "<State name='!None'/><State/>", "QX405 State[3]"},
    {foreign, "<NodeVariant name='New' base='Lamp'/>", "QX406 NodeVariant[4] 'New'"},
    {foreign, "<NodeVariant name='Lid' base='Lid'><State name='!Toggle'/></NodeVariant>",
     "QX409 NodeVariant[4] 'Lid'; QX408 NodeVariant[4] 'Lid'"},
};

TEST_F(LintTest, EachPlantedFaultIsFoundWhereItStandsAndNothingElseNotEvenInOlderForms)
{
    EXPECT_EQ(lint("<Variants><VariantSet name='Old' script='pass'><OverlayRef ref='Signs'/>"
                   "<OverlayRef ref='Logo'/></VariantSet><OverlayVariant name='Signs' "
                   "base='Signs'><State name='!Enable'/></OverlayVariant></Variants>"),
              "");
    EXPECT_EQ(lint(cleanDocument()), "");
    EXPECT_EQ(lint("<Variants/>"), "");
    EXPECT_EQ(lint(""), "QX101 ");
    EXPECT_EQ(lint("<Variants/>rest"), "QX101 ");
    QByteArray found = "QX311 QX312";
    for (const Fault &fault : faults) {
        SCOPED_TRACE(fault.to);
        EXPECT_EQ(lint(planted(fault.from, fault.to)), fault.findings);
        found += fault.findings;
    }
    for (const qxCodeRow &row : qxCheckCodes::all())
        EXPECT_TRUE(row.code >= qxCode::SkippedNoVariant || found.contains(row.id)) << row.id;
}

TEST_F(LintTest, FightsAndTwinsAreFound)
{
    const QByteArray rims =
        "<NodeVariant name='Rims' base='Wheels'><State name='Steel'/><State name='Alloy'/>"
        "<State name='!Disable'/><State name='!Next (Loop)'/></NodeVariant>"
        "<NodeVariant name='Lantern' base='Lamp'><State name='!Toggle'/></NodeVariant>"
        "<NodeVariant name='Seat' base='Chair'><State name='!Enable'/></NodeVariant>";
    const auto lintWith = [&](const QByteArray &set) {
        return lint(planted(foreign, rims + "<VariantSet name='New'>" + set + "</VariantSet>"),
                    false);
    };
    const auto entry = [](const char *variant, const char *state) {
        return QByteArray("<NodeVariantRef ref='") + variant + "' state='" + state + "'/>";
    };
    const char *const fight = "QX311 NodeVariantRef[2]";
    const QByteArray wheels = entry("Wheels", "Alloy");
    EXPECT_EQ(lintWith(wheels + entry("Rims", "Steel")), fight);
    EXPECT_EQ(lintWith(wheels + entry("Rims", "Alloy")), "");
    // Hiding the switch and choosing its child go together.
    EXPECT_EQ(lintWith(wheels + entry("Rims", "!Disable")), "");
    // The second toggle undoes the first, the second step goes on from it.
    EXPECT_EQ(lintWith(entry("Lamp", "!Toggle") + entry("Lantern", "!Toggle")), fight);
    EXPECT_EQ(lintWith(entry("Wheels", "!Next (Loop)") + entry("Rims", "!Next (Loop)")), fight);
    // Showing a transform switch takes it to its first state.
    EXPECT_EQ(lintWith(entry("Chair", "Transform 1") + entry("Seat", "!Enable")), fight);
    EXPECT_EQ(lintWith(entry("Chair", "Transform 0") + entry("Seat", "!Enable")), "");
    const QByteArray shown = "<TargetName name='Lamp'/><InclInfo inclNodes='1'/>";
    EXPECT_EQ(lintWith(shown + entry("Lamp", "!Disable")), "QX311 NodeVariantRef[1]");
    EXPECT_EQ(lintWith(shown + entry("Lamp", "!Enable")), "");
    const QByteArray told = "<TargetName name='Lamp'/><InclInfo inclNodes='0'/>";
    EXPECT_EQ(lintWith(told + entry("Lamp", "!Disable")), "");
    const QByteArray copy = "<Hotkey>X</Hotkey><NodeVariantRef state='!Next (Loop)' ref='Wheels'/>"
        + entry("Lamp", "!Disable")
        + "<TransformRef ref='Door' state='Shut'/><MaterialVariantRef ref='Paint' state='Blue'/>"
          "<OverlayRef ref='Signs' state='!None'/>";
    EXPECT_EQ(lintWith(copy), "QX312 VariantSet[2] 'New'");
    EXPECT_EQ(lintWith(copy + "<ViewpointRef ref='Front'/>"), "");
}

TEST_F(LintTest, TwoVariantsOfOneCoreFightEvenThroughClonesOfTheNode)
{
    osg::setName(scene.addClone(scene.root().child(0)).node(), "Rims");
    const char rims[] = "<NodeVariant name='Rims' base='Rims'><State name='Steel'/></NodeVariant>";
    EXPECT_EQ(lint(planted("<Value", "<NodeVariantRef ref='Rims' state='Steel'/><Value")
                       .replace(foreign, rims)),
              "QX311 NodeVariantRef[3]");
}

TEST_F(LintTest, OfEachCodeTheFirstThousandAreListed)
{
    const QByteArray document = planted(foreign, QByteArray(2500, 'x').replace("x", "<x/>"));
    const qxFindings findings = qxLinter::lint(document, compile);
    ASSERT_EQ(findings.size(), 1000);
    EXPECT_EQ(findings.first().more, 0);
    EXPECT_EQ(findings.last().more, 1500);

    QByteArray sets; // alike, so that each is told twice
    for (int i = 0; i < 2500; ++i)
        sets += "<VariantSet name='" + QByteArray::number(i)
            + "'><NodeVariantRef ref='Gone' state='1'/></VariantSet>";
    expectSharesToBeTheWhole(planted(foreign, sets));
}

TEST(CodesTest, EveryCodeStandsInItsPlaceAndIsDocumentedInItsWords)
{
    QStringList rows;
    for (const qxCodeRow &row : qxCheckCodes::all()) {
        EXPECT_EQ(&qxCheckCodes::row(row.code), &row) << row.id;
        rows +=
            QString("| %1 | %2 | %3 |").arg(row.id, qxCheckCodes::word(row.severity), row.title);
    }
    const auto misplaced = std::adjacent_find(rows.begin(), rows.end(), std::greater_equal<>());
    EXPECT_EQ(misplaced, rows.end());

    QStringList documented;
    const QString page = QString::fromUtf8(bytesOf(QStringLiteral(QX_DOCS "/Checking.md")));
    for (const QString &line : page.split('\n').filter(QRegularExpression("^\\| QX\\d+ \\|")))
        documented += line.section('|', 0, 3) + '|';
    EXPECT_EQ(documented.join('\n').toStdString(), rows.join('\n').toStdString());
}
