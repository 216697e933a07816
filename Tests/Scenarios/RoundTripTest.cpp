#include "Program.h"
#include "qxTestPaths.h"

#include <QDir>

#include <sys/stat.h>

/// Documents and scenes that go in and come out again, and saves that must not destroy anything.
class RoundTripTest : public ProgramFixture {
protected:
    static QByteArray documentWithName(const QByteArray &name)
    {
        return "<Variants><NodeVariant name=\"" + name + "\"/></Variants>";
    }
};

TEST_F(RoundTripTest, ADocumentIsTheSameTextAfterEverySave)
{
    const QString first = path("first.gltf");
    const QString second = path("second.glb");
    const QString xml = path("out.xml");
    done({"document", desk(), "--in", QX_TEST_DATA "/Documents/complete.xml", "--save", first});
    const QByteArray written = done({"document", first}).out;
    EXPECT_EQ(written, documentOf(first));
    EXPECT_TRUE(written.startsWith("<?xml version=\"1.0\" encoding=\"utf-8\"?>"));
    EXPECT_FALSE(written.contains("Morning")) << "the old document is replaced";
    done({"document", first, "--out", xml});
    EXPECT_EQ(bytesOf(xml), written);
    EXPECT_EQ(done({"document", first, "--out", "-"}).out, written);
    done({"document", first, "--in", "-", "--save", second}, written);
    EXPECT_EQ(done({"document", second}).out, written);
    done({"create", second, "--save", first});
    EXPECT_EQ(done({"list", first}).out, done({"list", second}).out);
}

TEST_F(RoundTripTest, BytesThatAreNoDocumentAreRefusedAndTheTargetStays)
{
    const QString scene = desk();
    const QString target = write("target.gltf", "valuable");
    const std::pair<QByteArray, QByteArray> documents[] = {
        {"<Variants>", "cannot be read"},
        {"", "cannot be read"},
        {documentWithName(QByteArray("La\0mp", 5)), "byte 31 is NUL"},
        {QByteArray("<Variants/>\0<NodeVariant/>", 26), "byte 11 is NUL"},
        {documentWithName("T\xFCr"), "it is not UTF-8"},
        {documentWithName("Lamp") + "\xE2\x82", "it is not UTF-8"},
        {"<svg><g/></svg>", "/in.xml: it is no variants document"},
        {QByteArray("<a>").repeated(100000), "nested too deep"}};
    for (const auto &[xml, reason] : documents) {
        refused(1, {"document", scene, "--in", write("in.xml", xml), "--save", target}, reason);
        EXPECT_EQ(bytesOf(target), "valuable");
    }
}

TEST_F(RoundTripTest, ASceneWithADamagedDocumentIsNotSavedOver)
{
    const QByteArray damaged = documentWithName("Lamp").chopped(4);
    const QString scene = desk(damaged);
    for (const QStringList &command :
         {QStringList{"create", scene}, QStringList{"select", scene, "Morning"},
          QStringList{"set", scene, "Desk", "Glass"}})
        refused(1, command + QStringList{"--save", scene}, "the variants document cannot be read");
    refused(1, {"list", scene}, "the variants document cannot be read");
    EXPECT_EQ(bytesOf(scene), sceneWith("desk", damaged));
    // It can be taken out as it is, mended by hand, and put back.
    EXPECT_EQ(done({"document", scene}).out, damaged);
    const QString mended = write("mended.xml", documentWithName("Lamp"));
    done({"document", scene, "--in", mended, "--save", scene});
    EXPECT_EQ(done({"state", scene}).out, "node  Lamp  -\n");
}

TEST_F(RoundTripTest, APipeIsWrittenTo)
{
    const QString pipe = path("pipe.gltf");
    ASSERT_EQ(mkfifo(pipe.toUtf8(), 0600), 0);
    for (const auto &[call, begin] : {std::pair("document --out", "<?xml"),
                                      {"set Desk Glass --save", "{"},
                                      {"verify --report", "Info,VariantSet"},
                                      {"render --size 8x8 --out", "\x89PNG"}}) {
        QProcess reader;
        reader.start("cat", {pipe});
        QStringList words = QString(call).split(' ');
        words.insert(1, desk());
        workbench(words + QStringList(pipe));
        EXPECT_TRUE(ended(reader).out.startsWith(begin)) << call;
    }
    EXPECT_FALSE(QFileInfo(pipe).isFile());
}

TEST_F(RoundTripTest, StandardOutputThatCannotBeWrittenIsAFailure)
{
    if (!QFile::exists("/dev/full"))
        GTEST_SKIP() << "this system has no /dev/full";
    QProcess program;
    program.setStandardOutputFile("/dev/full");
    program.start(QX_BUILD_BIN "/workbench", {"list", desk()});
    const ProgramRun run = ended(program);
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.err, "workbench: standard output cannot be written\n");
}

TEST_F(RoundTripTest, WhatDoesNotReachTheDiskIsAFailureAndTheFileIsAsItWas)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_PRELOAD", QX_BUILD_LIB "/libqxFaults.so");
    environment.insert("ASAN_OPTIONS", "verify_asan_link_order=0:detect_leaks=0");
    environment.insert("QX_FAULT", "sync 1 28");
    desk();
    for (const QString call : {"document %1 --out old.xml", "set %1 Desk Glass --save old.gltf",
                               "verify %1 --report old.csv", "render %1 --size 8x8 --out old.png",
                               "catalogue %1 --out ."}) {
        const QString name = call.endsWith('.') ? "index.html" : call.split(' ').last();
        write(name, "valuable");
        QProcess program;
        program.setWorkingDirectory(folder.path());
        program.setProcessEnvironment(environment);
        program.start(QX_BUILD_BIN "/workbench", call.arg("desk.gltf").split(' '));
        const ProgramRun run = ended(program);
        EXPECT_EQ(run.code, 1);
        EXPECT_TRUE(run.err.contains("No space left on device; the file is as it was\n"))
            << run.err.toStdString();
        EXPECT_EQ(bytesOf(path(name)), "valuable") << call.toStdString();
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 6);
}
