#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "Session/qxRecoveryFile.h"
#include "Undo/qxNameEdits.h"
#include "WindowFixture.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"

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
