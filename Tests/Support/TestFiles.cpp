#include "TestFiles.h"

#include "qxTestPaths.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

TestFolder::TestFolder()
{
    qputenv("XDG_DATA_HOME", path(QStringLiteral("data-home")).toLocal8Bit());
    qputenv("XDG_CACHE_HOME", path(QStringLiteral("cache-home")).toLocal8Bit());
    qputenv("XDG_STATE_HOME", path(QStringLiteral("state-home")).toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit()); // which only its owner may enter
}

QString TestFolder::write(const QString &name, const QByteArray &bytes) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile out(path(name));
    EXPECT_TRUE(out.open(QIODevice::WriteOnly)) << out.fileName().toStdString();
    EXPECT_EQ(out.write(bytes), bytes.size());
    return out.fileName();
}

QString TestFolder::made(const QString &name) const
{
    EXPECT_TRUE(QDir().mkpath(path(name)));
    return path(name);
}

QString testData(const QString &name)
{
    return QStringLiteral(QX_TEST_DATA "/") + name;
}

QByteArray bytesOf(const QString &path)
{
    QFile in(path);
    EXPECT_TRUE(in.open(QIODevice::ReadOnly)) << path.toStdString();
    return in.readAll();
}

QByteArray sceneWith(const char *name, const QByteArray &document)
{
    const QString path = testData(QStringLiteral("Scenes/%1.").arg(name));
    const QByteArray text = document.isNull() ? bytesOf(path + "xml") : document;
    const QJsonDocument extras(QJsonObject{{"qxVariants", QString::fromUtf8(text)}});
    const QByteArray scenes = "\"scenes\": [{";
    return bytesOf(path + "gltf").replace(scenes, scenes + "\"extras\": " + extras.toJson() + ',');
}

void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

void PrintTo(const QStringList &list, std::ostream *out)
{
    *out << '"' << list.join("\", \"").toStdString() << '"';
}

void PrintTo(const QByteArray &bytes, std::ostream *out)
{
    *out << bytes.toStdString();
}
