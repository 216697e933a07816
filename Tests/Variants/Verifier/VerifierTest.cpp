#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxVariantSet.h"
#include "qxVariantVerifier.h"
#include "qxVariants.h"

#include "HostFixture.h"
#include "TestFiles.h"

#include <cstdio>
#include <cstdlib>
#include <new>

/// No memory is given for anything larger; 0 for no limit.
static std::size_t memoryLimit = 0;

// A check calls nothing that a test could make throw, but everything that allocates may.
void *operator new(std::size_t size)
{
    void *const memory =
        memoryLimit > 0 && size > memoryLimit ? nullptr : std::malloc(size > 0 ? size : 1);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

// Inlined without the other, the compiler would take free for a mistake.
[[gnu::noinline]] void operator delete(void *memory) noexcept
{
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

class VerifierTest : public HostFixture, protected TestFolder {
protected:
    static void nodeVariant(const QString &name, const QString &base, const QString &standard,
                            const QStringList &options)
    {
        qxNodeVariant *const variant = qxVariants::createNodeVariant(name, false);
        variant->nodeName = base;
        fill(*variant, standard, options);
    }
    static void materialVariant(const QString &name, const QString &base, const QString &standard,
                                const QStringList &options)
    {
        qxMaterialVariant *const variant = qxVariants::createMaterialVariant(name, false);
        variant->switchMaterialName = base;
        fill(*variant, standard, options);
    }
    static void fill(qxVariant &variant, const QString &standard, const QStringList &options)
    {
        variant.defaultState = standard;
        for (const QString &option : options)
            variant.options.push_back({option, QString(), 0, Qt::NoModifier, false});
    }

    /// Verifies into that file, and answers what goes to standard output.
    static std::string verified(qxVariantVerifier &verifier, const QString &path, bool isDone)
    {
        testing::internal::CaptureStdout();
        EXPECT_EQ(verifier.verify(path), isDone) << path.toStdString();
        std::fflush(stdout);
        return testing::internal::GetCapturedStdout();
    }
    std::string verified(const QString &path, bool isDone)
    {
        return verified(verifier, path, isDone);
    }

    /// The reports of so many verifiers that share the work, one after the other.
    QByteArray shared(int count, int &errors)
    {
        QByteArray all;
        for (int i = 0; i < count; ++i) {
            qxVariantVerifier share(qxShare{i, count});
            verified(share, path("share.csv"), true);
            all += bytesOf(path("share.csv"));
            errors += share.errorCount();
        }
        return all;
    }

    /// Verifies into a file and compares it, and standard output, with the expected report. Nothing
    /// else happens.
    void expectReport(const QString &name)
    {
        const QByteArray expected = bytesOf(testData("Reports/" + name));
        notifications.clear();
        EXPECT_EQ(verified(verifier, path(name), true), expected.toStdString());
        EXPECT_EQ(bytesOf(path(name)), expected);
        EXPECT_EQ(verifier.errorCount(), ("\n" + expected).count("\nError,"));
        for (const int count : {1, 3, 50}) {
            int errors = 0;
            EXPECT_EQ(shared(count, errors), expected) << count;
            EXPECT_EQ(errors, verifier.errorCount());
        }
        EXPECT_TRUE(notifications.entries().empty() && !qxScenegraph::hasFindCache());
    }

    qxVariantVerifier verifier;
};

TEST_F(VerifierTest, SetsAreReportedWithWhatTheyReferToInVain)
{
    nodeVariant("Roof", "Roof", "", {"Open", "!Toggle"});
    nodeVariant("Door", "Door", "", {""});
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
    const TestNode wheels = scene.addSwitch("Wheels", {"Steel", "Alloy"}).choose(1);
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
    EXPECT_EQ(wheels.choice(), 1);
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

TEST_F(VerifierTest, AReportThatCannotBeWrittenIsNoSuccess)
{
    qxVariants::createVariantSet("Sport", false, nullptr);
    const std::string line = "Info,VariantSet,Sport,,,valid\n";
    // What cannot be opened ends it before any check.
    for (const QString &nowhere : {folder.path(), path("no folder/report.csv"), QString()})
        EXPECT_EQ(verified(nowhere, false), "");
    EXPECT_EQ(verified("/dev/full", false), line);
    qxVariants::clearVariantSets(); // of an empty registry the report is empty
    EXPECT_EQ(verified(write("report.csv", "an older one"), true), "");
    EXPECT_EQ(bytesOf(path("report.csv")), "");
    EXPECT_EQ(verifier.errorCount(), 0);
}

TEST_F(VerifierTest, ACheckThatThrowsEndsTheVerification)
{
    const int much = 100000;
    scene.add("Lamp");
    for (const QString &name : {QString("Lamp"), QString(much + 1, 'x'), QString("Chair")})
        nodeVariant(name, name, "", {});
    memoryLimit = much;
    verified(path("report.csv"), false);
    memoryLimit = 0;
    EXPECT_EQ(bytesOf(path("report.csv")), "Info,NodeVariant,Lamp,Lamp,,valid\n");
    // The file was closed, and the verifier goes on working.
    verified(path("report.csv"), true);
    EXPECT_TRUE(bytesOf(path("report.csv")).endsWith("Chair,Chair,,switch-node not found\n"));
    EXPECT_FALSE(qxScenegraph::hasFindCache());
}

TEST_F(VerifierTest, ACheckByItselfWritesToStandardOutputOnly)
{
    scene.add("Lamp");
    nodeVariant("Lamp", "Lamp", "", {});
    testing::internal::CaptureStdout();
    verifier.verifyVariantSets();
    verifier.verifyNodeVariants();
    verifier.writeError(KeloNodeVariantType, "a", "b", "c", "lost");
    verifier.writeInfo(KeloMaterialVariantType, "a", "", "c", "found");
    std::fflush(stdout);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Info,NodeVariant,Lamp,Lamp,,valid\n"
              "Error,KeloNodeVariant,a,b,c,lost\n"
              "Info,KeloMaterialVariant,a,,c,found\n");
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
    std::string visible;
    for (const Notification &each : heard("variantsNodesChanged"))
        visible += each.field("visible");
    EXPECT_EQ(visible, "[Alloy][Steel]");
}
