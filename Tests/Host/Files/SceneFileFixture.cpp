#include "Files/SceneFileFixture.h"

#include "qxScenegraph.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace {

QByteArray number(int value)
{
    QByteArray bytes(4, '\0');
    qToLittleEndian<quint32>(quint32(value), bytes.data());
    return bytes;
}

QByteArray padded(const QByteArray &bytes, char filler)
{
    return bytes + QByteArray((4 - bytes.size() % 4) % 4, filler);
}

} // namespace

QString SceneFileFixture::path(const QString &name) const
{
    return QDir(folder.path()).filePath(name);
}

QString SceneFileFixture::write(const QString &name, const QByteArray &bytes) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile out(path(name));
    EXPECT_TRUE(out.open(QIODevice::WriteOnly));
    EXPECT_EQ(out.write(bytes), bytes.size());
    return path(name);
}

QString SceneFileFixture::write(const QString &name, const qxJson &json) const
{
    return write(name, QByteArray::fromStdString(json.dump()));
}

void SceneFileFixture::load(const QString &name)
{
    host.clearScene();
    ASSERT_TRUE(file.load(name)) << file.errorString().toStdString();
    EXPECT_EQ(file.errorString(), "");
}

void SceneFileFixture::save(const QString &name)
{
    ASSERT_TRUE(file.save(name)) << file.errorString().toStdString();
}

void SceneFileFixture::saveAndLoad(const QString &name)
{
    save(path(name));
    load(path(name));
}

QString SceneFileFixture::loadError(const QString &name)
{
    host.clearScene();
    const bool loaded = file.load(name);
    EXPECT_EQ(loaded, file.errorString().isEmpty());
    return file.errorString();
}

TestNode SceneFileFixture::find(const char *name) const
{
    const qxNodePtr node = qxScenegraph::findNode(name);
    if (node == osg::NullFC) {
        ADD_FAILURE() << "no node " << name;
        return scene.root();
    }
    return TestNode(node);
}

QByteArray bytesOf(const QString &path)
{
    QFile in(path);
    EXPECT_TRUE(in.open(QIODevice::ReadOnly)) << path.toStdString();
    return in.readAll();
}

qxJson jsonOf(const QString &path)
{
    const QByteArray bytes = bytesOf(path);
    const QByteArray text = bytes.startsWith("glTF")
        ? bytes.mid(20, int(qFromLittleEndian<quint32>(bytes.constData() + 12)))
        : bytes;
    return qxJson::parse(text.toStdString());
}

QByteArray binOf(const QString &path)
{
    const QByteArray bytes = bytesOf(path);
    return bytes.mid(20 + int(qFromLittleEndian<quint32>(bytes.constData() + 12)));
}

QByteArray glb(const QByteArray &json, const QByteArray &bin)
{
    const QByteArray text = padded(json, ' ');
    QByteArray chunks = number(text.size()) + "JSON" + text;
    if (!bin.isNull())
        chunks += number(padded(bin, '\0').size()) + QByteArray("BIN\0", 4) + padded(bin, '\0');
    return "glTF" + number(2) + number(12 + chunks.size()) + chunks;
}

int MeshText::addBytes(const char *type, int componentType, const QByteArray &bytes, int count)
{
    views.push_back({{"buffer", 0}, {"byteOffset", m_bytes.size()}, {"byteLength", bytes.size()}});
    accessors.push_back({{"bufferView", views.size() - 1},
                         {"componentType", componentType},
                         {"count", count},
                         {"type", type}});
    m_bytes += padded(bytes, '\0');
    return int(accessors.size()) - 1;
}

qxJson MeshText::scene() const
{
    const QByteArray uri = "data:application/octet-stream;base64," + m_bytes.toBase64();
    qxJson json = qxJson::parse(R"({"asset": {"version": "2.0"}, "scene": 0,
        "scenes": [{"nodes": [0]}], "nodes": [{"name": "Part", "mesh": 0}],
        "meshes": [{"name": "Shape"}]})");
    json["meshes"][0]["primitives"].push_back(primitive);
    json["buffers"].push_back({{"byteLength", m_bytes.size()}, {"uri", uri.toStdString()}});
    json["bufferViews"] = views;
    json["accessors"] = accessors;
    return json;
}
