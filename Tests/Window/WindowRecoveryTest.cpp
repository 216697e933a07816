#include "qxVariantKinds.h"
#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "Session/qxRecoveryFile.h"
#include "Undo/qxNameEdits.h"
#include "Undo/qxVariantEdits.h"
#include "WindowFixture.h"
#include "qxLog.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <random>

namespace {

const char *const childScene = "QX_TEST_CHILD_SCENE";
const char *const childState = "QX_TEST_CHILD_STATE";
const int steps = 40;

class WindowRecoveryTest : public WindowFixture {
protected:
    static QByteArray document() { return qxVariantWriter().writeToCompare(); }

    /// One step of work, the same in every process.
    void edit(int step) const
    {
        QUndoStack &stack = *window->setsDock()->undoStack();
        switch (step % 5) {
        case 0:
            qxNameEdits::rename(
                stack, "node",
                {qxRenameRequest::Node, nullptr, QString(), lampAt(step - 1), lampAt(step)});
            break;
        case 1:
            action("Add Set")->trigger();
            break;
        case 2:
            window->setsDock()->setPreviews({{"Morning", QByteArray::number(step)}});
            break;
        case 3:
            stack.undo();
            break;
        default:
            window->setsDock()->view()->showSet(step % 2 ? "Morning" : "Evening");
            action("Duplicate")->trigger();
            break;
        }
    }
    static QFileInfoList left()
    {
        return QDir(qxRecoveryFile::folder()).entryInfoList({"*.edits"}, QDir::Files);
    }
    /// What a crash leaves of the present edits, which the window gives up.
    QByteArray giveUp() const
    {
        settle();
        const QFileInfoList files = left();
        const QByteArray edits = files.size() == 1 ? bytesOf(files.first().filePath()) : "";
        EXPECT_TRUE(window->openFile(window->filePath()));
        return edits;
    }
    void recover(const QByteArray &edits)
    {
        write("state-home/qxVariants/recovery/1-1.edits", edits);
        expectClick("Recover");
        ASSERT_TRUE(window->openFile(window->filePath()));
    }
    static QString lampAt(int step)
    {
        return step < 5 ? QStringLiteral("Lamp") : QStringLiteral("Lamp %1").arg(step - step % 5);
    }
    /// Lets a program work on the scene until it has made that many steps, and kills it.
    int killAfter(int count, const QString &scene) const
    {
        QProcess child;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(childScene, scene);
        environment.insert(childState, qEnvironmentVariable("XDG_STATE_HOME"));
        child.setProcessEnvironment(environment);
        child.start(
            QCoreApplication::applicationFilePath(),
            {"--gtest_filter=WindowRecoveryTest.DISABLED_Work", "--gtest_also_run_disabled_tests"});
        int done = 0;
        while (done < count && child.waitForReadyRead(60000)) {
            while (child.canReadLine()) {
                const QByteArray line = child.readLine();
                if (line.startsWith("step "))
                    done = line.mid(5).trimmed().toInt();
            }
        }
        child.kill();
        child.waitForFinished();
        EXPECT_EQ(child.exitStatus(), QProcess::CrashExit);
        for (const QByteArray &line : child.readAll().split('\n')) {
            if (line.startsWith("step "))
                done = line.mid(5).trimmed().toInt();
        }
        return done;
    }
};

/// What the killed program does.
TEST_F(WindowRecoveryTest, DISABLED_Work)
{
    if (qEnvironmentVariableIsEmpty(childScene))
        GTEST_SKIP() << "is run by another test";
    qputenv("XDG_STATE_HOME", qgetenv(childState));
    ASSERT_TRUE(window->openFile(qEnvironmentVariable(childScene)));
    for (int step = 1; step <= steps; ++step) {
        edit(step);
        std::printf("step %d\n", step);
        std::fflush(stdout);
        if (step % 3)
            QCoreApplication::processEvents();
    }
    QThread::sleep(60);
}

TEST_F(WindowRecoveryTest, AKillLosesTheLastStepAtMost)
{
    openDesk();
    const QString scene = window->filePath();
    QList<QByteArray> documents{document()};
    for (int step = 1; step <= steps; ++step) {
        edit(step);
        documents << document();
    }
    settle();
    EXPECT_EQ(left().size(), 1);
    window->setsDock()->undoStack()->setIndex(0);
    settle();
    EXPECT_EQ(left().size(), 0) << "edits that were taken back are not kept";
    action("Add Set")->trigger();
    settle();
    EXPECT_EQ(left().size(), 1);
    ASSERT_TRUE(window->openFile(scene));
    EXPECT_EQ(left().size(), 0) << "edits that were given up are not kept";

    std::mt19937 random(7);
    for (const int round : {1, 2}) {
        SCOPED_TRACE(round);
        const int done = killAfter(3 + int(random() % (steps - 5)), scene);
        ASSERT_EQ(left().size(), 1);
        if (round == 1) {
            expectClick("Not Now");
            ASSERT_TRUE(window->openFile(scene));
            makeWindow();
        }
        expectClick("Recover");
        ASSERT_TRUE(window->openFile(scene));
        const int found = documents.lastIndexOf(document());
        EXPECT_GE(found, done - 1) << document().toStdString();
        EXPECT_TRUE(isUnsaved());
        EXPECT_NE(qxScenegraph::findNode(lampAt(found).toUtf8()), osg::NullFC);
        EXPECT_EQ(left().size(), 1) << "those of this window";
        ASSERT_TRUE(window->openFile(scene));
    }
    EXPECT_EQ(left().size(), 0);
}

TEST_F(WindowRecoveryTest, WhatEditsChangedInTheSceneComesBack)
{
    openDemo();
    QUndoStack &stack = *window->setsDock()->undoStack();
    const auto nodes = [] { return qxNodeUtils::getSceneNodes(); };
    const auto placeOf = [&](const std::function<bool(const qxNodePtr &)> &fits) {
        const std::vector<qxNodePtr> all = nodes();
        return std::size_t(std::find_if(all.begin(), all.end(), fits) - all.begin());
    };
    const auto moving = placeOf(
        [](const qxNodePtr &each) { return qxNodeUtils::getTransformVariantCount(each) > 0; });
    const auto painted = placeOf([](const qxNodePtr &each) {
        const osg::MaterialPtr material = qxNodeUtils::getMaterial(each);
        return material != osg::NullFC && osg::SwitchMaterialPtr::dcast(material) == osg::NullFC
            && osg::GeometryPtr::dcast(each->getCore()) != osg::NullFC;
    });
    const osg::MaterialPtr plain = qxNodeUtils::getMaterial(nodes().at(painted));
    const auto made =
        qxVariantEdits::createOf(stack, qxVariantKinds::material, {nodes().at(painted)}).made;
    ASSERT_EQ(made.size(), 1U);
    std::vector<osg::MaterialPtr> pool;
    qxScenegraph::getMaterialPool()->get(pool);
    const auto other = std::find_if(pool.begin(), pool.end(), [&](const osg::MaterialPtr &each) {
        return each != plain && osg::SwitchMaterialPtr::dcast(each) == osg::NullFC;
    });
    qxVariantEdits::addMaterials(stack, made.front(), {*other});
    qxNodeUtils::setTransformVariantName(nodes().at(moving), 0, "Parked");
    const QByteArray before = document();

    recover(giveUp());
    EXPECT_EQ(document(), before);
    EXPECT_EQ(qxNodeUtils::getTransformVariantName(nodes().at(moving), 0), "Parked");
    const auto choices =
        osg::SwitchMaterialPtr::dcast(qxNodeUtils::getMaterial(nodes().at(painted)));
    ASSERT_NE(choices, osg::NullFC);
    EXPECT_EQ(choices->getMaterials().size(), 2U);
}

TEST_F(WindowRecoveryTest, WhatCameIntoTheFileMeanwhileStays)
{
    openDesk();
    edit(1);
    edit(5);
    const QByteArray edits = giveUp();
    window->setsDock()->view()->showSet("Evening");
    action("Duplicate")->trigger();
    const osg::NodePtr chair = qxScenegraph::findNode("Chair");
    qxNodeUtils::setName(chair, "Stool", false, osg::NullFC);
    const QString sets = namesOf(qxVariants::_variantSets);
    action("Save")->trigger();
    recover(edits);
    for (const QString &each : sets.split(','))
        EXPECT_TRUE(qxVariants::findVariantSet(each)) << each.toStdString();
    EXPECT_EQ(namesOf(qxVariants::_variantSets).count(','), sets.count(',') + 1);
    EXPECT_NE(qxScenegraph::findNode("Lamp"), osg::NullFC) << "places mean others now";
}

TEST_F(WindowRecoveryTest, WithoutAFolderThereIsOneWarning)
{
    write("state-home/qxVariants/recovery", "a file");
    openDesk();
    int warnings = 0;
    const int listener = qxLog::addListener([&](qxLog::Level, const std::string &line) {
        warnings += QString::fromStdString(line).contains("cannot be kept");
    });
    for (int step = 1; step < 8; ++step) {
        edit(step);
        settle();
    }
    qxLog::removeListener(listener);
    EXPECT_EQ(warnings, 1);
}

TEST_F(WindowRecoveryTest, HalfAnEntryAndStrangeFilesAreNoObstacle)
{
    openDesk();
    const QString scene = window->filePath();
    killAfter(12, scene);
    ASSERT_EQ(left().size(), 1);
    const int whole = qxRecoveryFile::left().first().steps;
    QFile file(left().first().filePath());
    ASSERT_TRUE(file.resize(file.size() - 5));
    write("state-home/qxVariants/recovery/1-1.edits", "no such file");
    write("state-home/qxVariants/recovery/1-2.edits", QByteArray(1000, '\0'));
    ASSERT_EQ(qxRecoveryFile::left().size(), 1);
    EXPECT_EQ(qxRecoveryFile::left().first().steps, whole - 1);
    makeWindow();
    expectClick("Discard");
    window->offerRecovery();
    EXPECT_EQ(qxRecoveryFile::left().size(), 0);
}

} // namespace
