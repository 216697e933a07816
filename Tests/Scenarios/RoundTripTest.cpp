#include "Program.h"

#include <QProcess>

/// Documents and scenes that go in and come out again, and saves that must not destroy anything.
class RoundTripTest : public ProgramFixture {
protected:
    /// Writes the bytes as a document into the desk's scene and expects that they are refused, and
    /// that a target which exists already stays as it is.
    void refusesDocument(const QByteArray &xml, const QByteArray &reason)
    {
        const QString scene = desk();
        const QString target = write("target.gltf", "valuable");
        refused(1, {"document", scene, "--in", write("in.xml", xml), "--save", target}, reason);
        EXPECT_EQ(bytesOf(target), "valuable");
    }

    static QByteArray documentWithName(const QByteArray &name)
    {
        return "<Variants><NodeVariant name=\"" + name + "\"/></Variants>";
    }
};

TEST_F(RoundTripTest, ADocumentIsTheSameTextAfterEverySave)
{
    for (const char *source : {"/Documents/complete.xml", "/Documents/older-forms.xml",
                               "/Documents/older-overlays.xml", "/Scenes/desk.xml"}) {
        SCOPED_TRACE(source);
        const QString xml = QStringLiteral(QX_TEST_DATA) + source;
        done({"document", desk(), "--in", xml, "--save", path("first.gltf")});
        const QByteArray written = done({"document", path("first.gltf")}).out;
        EXPECT_EQ(written, documentOf(path("first.gltf")));
        EXPECT_TRUE(written.startsWith("<?xml version=\"1.0\" encoding=\"utf-8\"?>"));

        done({"document", path("first.gltf"), "--out", path("out.xml")});
        EXPECT_EQ(bytesOf(path("out.xml")), written);
        done({"document", path("first.gltf"), "--in", path("out.xml"), "--save",
              path("second.glb")});
        EXPECT_EQ(done({"document", path("second.glb")}).out, written);
        done({"create", path("second.glb"), "--save", path("third.gltf")});
        EXPECT_EQ(done({"list", path("third.gltf")}).out, done({"list", path("first.gltf")}).out);
    }
}

TEST_F(RoundTripTest, ANewDocumentReplacesTheOldOneCompletely)
{
    const QString xml = write("one.xml", documentWithName("Only"));
    done({"document", desk(), "--in", xml, "--save", path("saved.gltf")});
    EXPECT_EQ(done({"state", path("saved.gltf")}).out, "node  Only  -\n");
    EXPECT_EQ(done({"list", path("saved.gltf")}).out, "no variant sets\n");
}

TEST_F(RoundTripTest, BytesThatAreNoDocumentAreRefused)
{
    refusesDocument("<Variants>", "cannot be read");
    refusesDocument("", "cannot be read");
    refusesDocument(documentWithName("Lamp").replace("Lamp", QByteArray("La\0mp", 5)),
                    "byte 31 is NUL");
    refusesDocument("<Variants/>" + QByteArray(1, '\0') + "<NodeVariant/>", "byte 11 is NUL");
    refusesDocument(documentWithName("T\xFCr"), "it is not UTF-8");
    refusesDocument(documentWithName("Lamp") + "\xE2\x82", "it is not UTF-8");
    refusesDocument("<svg><g/></svg>", "/in.xml: it is no variants document");
    refusesDocument("<!DOCTYPE a [<!ENTITY b \"c\">]><Variants/>", "entity declarations");
    refusesDocument(QByteArray("<a>").repeated(100000), "nested too deep");
}

TEST_F(RoundTripTest, ASceneWithADamagedDocumentIsNotSavedOver)
{
    const QByteArray damaged = documentWithName("Lamp").chopped(4);
    const QString scene = desk(damaged);
    const QByteArray before = bytesOf(scene);
    for (const QStringList &command :
         {QStringList{"create", scene}, QStringList{"select", scene, "Morning"},
          QStringList{"set", scene, "Desk", "Glass"}})
        refused(1, command + QStringList{"--save", scene}, "the variants document cannot be read");
    refused(1, {"list", scene}, "the variants document cannot be read");
    EXPECT_EQ(bytesOf(scene), before);

    // It can be taken out as it is, mended by hand, and put back.
    EXPECT_EQ(done({"document", scene}).out, damaged);
    const QString mended = write("mended.xml", documentWithName("Lamp"));
    done({"document", scene, "--in", mended, "--save", scene});
    EXPECT_EQ(done({"state", scene}).out, "node  Lamp  -\n");
}

TEST_F(RoundTripTest, ASaveOntoAFullDiskLeavesTheOldFileWhole)
{
    const QString target = write("target.gltf", "valuable");
    const QString scene = desk();
    const QStringList files = QDir(folder.path()).entryList();
    QProcess shell;
    // No file may grow beyond a kilobyte, and writing more is an error, not the end of the program.
    shell.start("bash",
                {"-c", "trap '' XFSZ; ulimit -f 1; exec \"$@\"", "bash", QX_BUILD_BIN "/workbench",
                 "select", scene, "Morning", "--save", target});
    ASSERT_TRUE(shell.waitForFinished(60000));
    const QByteArray err = shell.readAllStandardError();
    EXPECT_EQ(shell.exitCode(), 1);
    EXPECT_TRUE(err.contains("target.gltf: ")) << err.toStdString();
    EXPECT_EQ(bytesOf(target), "valuable");
    EXPECT_EQ(QDir(folder.path()).entryList(), files);
}

TEST_F(RoundTripTest, OutputThatCannotBeWrittenIsAFailure)
{
    if (!QFile::exists("/dev/full"))
        GTEST_SKIP() << "this system has no /dev/full";
    QProcess program;
    program.setStandardOutputFile("/dev/full");
    program.start(QX_BUILD_BIN "/workbench", {"list", desk()});
    ASSERT_TRUE(program.waitForFinished(60000));
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_EQ(program.readAllStandardError(), "workbench: standard output cannot be written\n");
}
