#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxVariantSet.h"
#include "qxVariantVerifier.h"
#include "qxVariants.h"

#include "HostFixture.h"
#include "qxScenegraph.h"

#include <QTemporaryDir>

#include <cstdio>

namespace {

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

class VerifierTest : public HostFixture {
protected:
    static qxNodeVariant *nodeVariant(const QString &name, const QString &base,
                                      const QString &standard, const QStringList &options)
    {
        qxNodeVariant *const variant = qxVariants::createNodeVariant(name, false);
        variant->nodeName = base;
        return fill(variant, standard, options);
    }
    static qxMaterialVariant *materialVariant(const QString &name, const QString &base,
                                              const QString &standard, const QStringList &options)
    {
        qxMaterialVariant *const variant = qxVariants::createMaterialVariant(name, false);
        variant->switchMaterialName = base;
        return fill(variant, standard, options);
    }

    /// What a verification writes to standard output.
    template <class Work>
    static std::string printed(const Work &work)
    {
        testing::internal::CaptureStdout();
        work();
        std::fflush(stdout);
        return testing::internal::GetCapturedStdout();
    }

    /// Verifies into a file and compares it, and standard output, with the expected report.
    void expectReport(const QString &name)
    {
        const QByteArray expected = bytesOf(QStringLiteral(QX_TEST_DATA "/Reports/") + name);
        const QString path = folder.filePath(name);
        bool isDone = false;
        const std::string output = printed([&] { isDone = verifier.verify(path); });
        EXPECT_TRUE(isDone);
        EXPECT_EQ(bytesOf(path).toStdString(), expected.toStdString());
        EXPECT_EQ(output, expected.toStdString());
        EXPECT_EQ(verifier.errorCount(), ("\n" + expected).count("\nError,"));
    }

    QTemporaryDir folder;
    qxVariantVerifier verifier;

private:
    template <class Variant>
    static Variant *fill(Variant *variant, const QString &standard, const QStringList &options)
    {
        variant->defaultState = standard;
        for (const QString &option : options)
            variant->options.push_back({option, QString(), 0, Qt::NoModifier, false});
        return variant;
    }
};

} // namespace

TEST_F(VerifierTest, AnEmptyRegistryGivesAnEmptyReport)
{
    const QString path = folder.filePath("report.csv");
    QFile old(path);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("what stood there before");
    old.close();
    EXPECT_EQ(printed([&] { EXPECT_TRUE(verifier.verify(path)); }), "");
    EXPECT_EQ(bytesOf(path), "");
    EXPECT_EQ(verifier.errorCount(), 0);
}

TEST_F(VerifierTest, SetsAreReportedWithWhatTheyReferToInVain)
{
    nodeVariant("Roof", "Roof", "", {"Open", "!Toggle"});
    materialVariant("Paint", "Paint", "", {"Red"});
    scene.addSwitch("Roof", {"Open", "!Toggle"});
    scene.addSwitchMaterial("Paint", {"Red"});

    qxVariants::createVariantSet("Sport", false, nullptr)->addNodeVariant("Roof", "Open");
    qxVariantSet *const broken = qxVariants::createVariantSet("Broken", false, nullptr);
    broken->addMaterialVariant("Paint", "Blue");
    broken->addMaterialVariant("Trim", "Red");
    broken->addNodeVariant("Roof", "!Disable");
    broken->addNodeVariant("Hood", "Open");
    broken->addNodeVariant("Door", "");
    broken->addLightVariant("Not looked at", "!Enable");
    qxVariantSet *const odd = qxVariants::createVariantSet("Odd", false, nullptr);
    odd->addNodeVariant("Roof", "");
    odd->addNodeVariant("Roof", "!Toggle");
    qxVariants::createVariantSet("Empty", false, nullptr);
    expectReport("sets.csv");
}

TEST_F(VerifierTest, NodeVariantsAreComparedWithTheChildrenOfTheirNode)
{
    scene.addSwitch("Wheels", {"Steel", "Alloy"});
    scene.add("Lamp");
    scene.addTransformSwitch("Chair", 2);

    nodeVariant("Wheels", "Wheels", "Steel",
                {"!All", "!None", "!Enable", "!Disable", "Steel", "Alloy"});
    nodeVariant("Steps", "Wheels", "!Next", {"!Next", "Wood", "", "Steel", "!Toggle"});
    nodeVariant("No default", "Wheels", "", {"Steel"});
    nodeVariant("Foreign default", "Wheels", "Alloy", {"Steel"});
    nodeVariant("Default of none", "Wheels", "!None", {"!None", "!Toggle"});
    nodeVariant("Lost", "Gone", "", {""});
    nodeVariant("No node", "", "!Enable", {"!Enable"});
    nodeVariant("Lamp", "Lamp", "!Disable", {"!Enable", "!Disable"});
    nodeVariant("Lamp of old", "Lamp", "", {"!Enable", "", "!Toggle", "Steel"});
    nodeVariant("Lamp amiss", "Lamp", "On", {"On", ""});
    nodeVariant("Chair", "Chair", "!Next (Loop)", {"Transform 0"});
    expectReport("nodes.csv");
}

TEST_F(VerifierTest, MaterialVariantsAreComparedWithTheMaterialsOfTheirSwitch)
{
    scene.addSwitchMaterial("Paint", {"Red", "Blue"});
    scene.addMaterial("Plain");

    materialVariant("Paint", "Paint", "Red", {"Red", "Blue"});
    materialVariant("Open choice", "Paint", "", {"!None", "", "Red", "Green"});
    materialVariant("Foreign default", "Paint", "Blue", {"Red", "", "Green"});
    materialVariant("Faded", "Paint", "Green", {"Green", ""});
    materialVariant("Lost", "Gone", "Red", {"Red"});
    materialVariant("Plain", "Plain", "Red", {"Red"});
    expectReport("materials.csv");
}

TEST_F(VerifierTest, NamesStandInTheReportAsTheyAre)
{
    scene.addSwitch("Über, \"all\"", {"%s %n", "a\nb"});
    nodeVariant("Dach,\n\"offen\"", "Über, \"all\"", "%s %n", {"%s %n", "a\nb", "a,b"});
    qxVariants::createVariantSet("100 %, \"neu\"\n", false, nullptr)
        ->addNodeVariant("Dach,\n\"offen\"", "größer, \"älter\"");
    expectReport("names.csv");
}

TEST_F(VerifierTest, AReportThatCannotBeOpenedStopsItBeforeAnyCheck)
{
    qxVariants::createVariantSet("Sport", false, nullptr);
    EXPECT_EQ(printed([&] {
                  EXPECT_FALSE(verifier.verify(folder.path()));
                  EXPECT_FALSE(verifier.verify(folder.filePath("no folder/report.csv")));
                  EXPECT_FALSE(verifier.verify(QString()));
              }),
              "");
    EXPECT_EQ(printed([&] { EXPECT_TRUE(verifier.verify(folder.filePath("report.csv"))); }),
              "Info,VariantSet,Sport,,,valid\n");
}

TEST_F(VerifierTest, AReportThatCannotBeWrittenToItsEndIsNoSuccess)
{
    qxVariants::createVariantSet("Sport", false, nullptr);
    EXPECT_EQ(printed([&] { EXPECT_FALSE(verifier.verify("/dev/full")); }),
              "Info,VariantSet,Sport,,,valid\n");
    EXPECT_EQ(printed([&] { EXPECT_TRUE(verifier.verify(folder.filePath("report.csv"))); }),
              "Info,VariantSet,Sport,,,valid\n");
}

TEST_F(VerifierTest, ACheckByItselfWritesToStandardOutputOnly)
{
    scene.add("Lamp");
    nodeVariant("Lamp", "Lamp", "", {});
    EXPECT_EQ(printed([&] {
                  verifier.verifyVariantSets();
                  verifier.verifyNodeVariants();
                  verifier.writeError(KeloNodeVariantType, "a", "b", "c", "lost");
                  verifier.writeInfo(KeloMaterialVariantType, "a", "", "c", "found");
              }),
              "Info,NodeVariant,Lamp,Lamp,,valid\n"
              "Error,KeloNodeVariant,a,b,c,lost\n"
              "Info,KeloMaterialVariant,a,,c,found\n");
}

TEST_F(VerifierTest, CheckingChangesNothing)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"}).choose(1);
    qxVariants::createNodeVariant(wheels.node(), false);
    qxVariants::createVariantSet("Sport", false, nullptr)->addNodeVariant("Wheels", "Steel");
    notifications.clear();
    printed([&] { verifier.verify(folder.filePath("report.csv")); });
    EXPECT_TRUE(notifications.entries().empty());
    EXPECT_EQ(wheels.choice(), 1);
    EXPECT_FALSE(qxScenegraph::hasFindCache());
}

TEST_F(VerifierTest, KeloSelectsEverySetAndThenItsDefaults)
{
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"});
    qxVariants::createNodeVariant(wheels.node(), false)->defaultState = "Steel";
    qxVariantSet *const sport = qxVariants::createVariantSet("Sport", false, nullptr);
    sport->addNodeVariant("Wheels", "Alloy");
    sport->script = "raise Exception('not to be run')";
    sport->addAnimation("Spin");
    qxVariants::createVariantSet("Plain", false, nullptr);
    notifications.clear();
    EXPECT_TRUE(verifier.verifyKelo());
    EXPECT_EQ(wheels.choice(), 0);
    EXPECT_TRUE(heard("animationStart").empty());
    std::string selected;
    for (const Notification &each : heard("variantsSetSelected"))
        selected += each.field("variantSetName") + " ";
    EXPECT_EQ(selected, "Sport Sport Sport Sport Plain Plain Plain Plain ");
    ASSERT_EQ(heard("variantsNodesChanged").size(), 2u);
    EXPECT_EQ(heard("variantsNodesChanged")[0].field("visible"), "[Alloy]");
    EXPECT_EQ(heard("variantsNodesChanged")[1].field("visible"), "[Steel]");
}
