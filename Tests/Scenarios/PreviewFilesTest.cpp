#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Program.h"
#include "Session/qxSession.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

#include <thread>
#include <unistd.h>

/// Saving with previews that lie in files, beside saving with the same ones in the sets.
class PreviewFilesTest : public ProgramFixture {
protected:
    PreviewFilesTest()
    {
        QByteArray sets;
        for (const char *name : {"B", "A", "&quot;Ü&quot; &lt;1&gt;", "With", "Alone"})
            sets += QByteArray("<VariantSet name='") + name + "'/>";
        sets.replace("<VariantSet name='With'/>",
                     "<VariantGroup name='G'><VariantSet name='With'><Preview>"
                     "<![CDATA[b2xk]]></Preview></VariantSet></VariantGroup>");
        document = "<Variants>" + sets + "</Variants>";
        int size = 0; // of all remainders by three, and one of several blocks
        for (const char *name : {"Gone", "A", "\"Ü\" <1>", "With", "B"}) {
            size = size == 4 ? 300000 : size + 1;
            files[QString::fromUtf8(name)] =
                write(QString("previews/%1.png").arg(size), picture(size));
        }
    }

    static QByteArray picture(int size)
    {
        QByteArray bytes;
        for (int i = 0; i < size; ++i)
            bytes += char(i * 7 + i / 256 + size);
        return bytes;
    }
    /// Scenes with the document: one has its buffer in a file beside it, one holds it.
    QStringList scenes() const
    {
        const QByteArray data(36, '\1');
        const QByteArray text = QJsonDocument(QJsonArray{QString::fromUtf8(document)}).toJson();
        const QByteArray beside =
            bytesOf(testData("Scenes/car.gltf"))
                .replace("\"other\": 1", "\"qxVariants\": " + text.mid(1).chopped(2));
        write("beside/car data.bin", data);
        return {write("beside/car.gltf", beside),
                write("alone/car.gltf",
                      QByteArray(beside).replace("car%20data.bin",
                                                 "data:application/octet-stream;base64,"
                                                     + data.toBase64()))};
    }
    static void open(qxSession &session, const QString &scene)
    {
        ASSERT_TRUE(session.open(scene)) << session.failure().toStdString();
    }
    /// What a scene becomes whose sets hold the previews.
    QByteArray plain(const QString &scene, const QString &to) const
    {
        qxSession session;
        open(session, scene);
        for (auto each = files.begin(); each != files.end(); ++each) {
            if (qxVariantSet *const set = qxVariants::findVariantSet(each.key()))
                set->setPreview(bytesOf(each.value()));
        }
        EXPECT_TRUE(session.save(to)) << session.failure().toStdString();
        return bytesOf(to);
    }
    static QStringList filesIn(const QString &folder)
    {
        return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    QByteArray document;
    qxSession::PreviewFiles files;
};

TEST_F(PreviewFilesTest, TheSavedFileIsThatOfPreviewsInTheSets)
{
    for (const QString &from : scenes()) {
        for (const char *const name : {"scene.gltf", "scene.glb"}) {
            SCOPED_TRACE(from.toStdString() + " as " + name);
            const QString to = made("files") + '/' + name;
            const QByteArray expected = plain(from, made("sets") + '/' + name);
            qxSession session;
            open(session, from);
            EXPECT_TRUE(session.save(to, files)) << session.failure().toStdString();
            EXPECT_EQ(bytesOf(to), expected);
            EXPECT_EQ(filesIn(path("files")), filesIn(path("sets")));
            EXPECT_FALSE(session.file().isChangedByOthers(to));
            EXPECT_EQ(qxVariants::findVariantSet("With")->getPreview(), "old");
            EXPECT_TRUE(qxVariants::findVariantSet("A")->getPreview().isEmpty());
            EXPECT_EQ(session.file().variantsDocument(), document);
            // Those that the sets have are no change: the text stays as it is.
            open(session, to);
            EXPECT_TRUE(session.save(to, files));
            EXPECT_EQ(bytesOf(to), expected);
        }
    }
}

TEST_F(PreviewFilesTest, AFileOfSeveralNamesAndAPipeGetThemToo)
{
    const QString from = scenes().first();
    const QByteArray expected = plain(from, path("expected.gltf"));
    const QString to = write("old.gltf", "old");
    ASSERT_EQ(link(to.toUtf8(), path("other.gltf").toUtf8()), 0);
    ASSERT_EQ(mkfifo(path("pipe.gltf").toUtf8(), 0600), 0);
    QByteArray read;
    std::thread reader([&] { read = bytesOf(path("pipe.gltf")); });
    qxSession session;
    open(session, from);
    EXPECT_TRUE(session.save(path("pipe.gltf"), files)) << session.failure().toStdString();
    reader.join();
    EXPECT_EQ(read, expected);
    EXPECT_TRUE(session.save(to, files)) << session.failure().toStdString();
    EXPECT_EQ(bytesOf(path("other.gltf")), expected);
}

TEST_F(PreviewFilesTest, APreviewThatIsGoneLeavesTheOldFileAndIsNamed)
{
    qxSession session;
    open(session, scenes().first());
    const QString lost = files["\"Ü\" <1>"];
    for (const char *const name : {"out/old.gltf", "out/old.glb", "out/linked.gltf"}) {
        SCOPED_TRACE(name);
        const QString to = write(name, "old");
        if (to.contains("linked")) {
            ASSERT_EQ(link(to.toUtf8(), path("out/link.gltf").toUtf8()), 0);
        }
        const QStringList before = filesIn(path("out"));
        QFile::remove(lost);
        EXPECT_FALSE(session.save(to, files));
        EXPECT_TRUE(session.failure().contains(lost + ": the file cannot be read: No such file"))
            << session.failure().toStdString();
        EXPECT_TRUE(session.failure().endsWith("; the file is as it was"));
        EXPECT_EQ(bytesOf(to), "old");
        EXPECT_EQ(filesIn(path("out")), before);
    }
}
