#pragma once

#include "Files/qxGltfJson.h"
#include "Files/qxSceneFile.h"
#include "HostFixture.h"

#include <QTemporaryDir>

#include <vector>

/// A test with a folder for scene files and a scene file object.
class SceneFileFixture : public HostFixture {
protected:
    /// Where a file of that name lies in the test's folder.
    QString path(const QString &name) const;
    /// Writes a file into the test's folder, with its sub-folders, and returns its path.
    QString write(const QString &name, const QByteArray &bytes) const;
    QString write(const QString &name, const qxJson &json) const;
    /// Clears the scene and loads the file; fails the test with the reason when that fails.
    void load(const QString &file);
    void loadText(const char *text) { load(write("scene.gltf", QByteArray(text))); }
    /// Saves the scene; fails the test with the reason when that fails.
    void save(const QString &file);
    /// Saves the scene and loads what was saved.
    void saveAndLoad(const QString &name = "saved.gltf");
    /// Why loading fails; empty when it does not.
    QString loadError(const QString &file);

    /// The first node of that name in the scene; none fails the test.
    TestNode find(const char *name) const;

    QTemporaryDir folder;
    qxSceneFile file;
};

QByteArray bytesOf(const QString &path);
/// The JSON of a .gltf or of a .glb.
qxJson jsonOf(const QString &path);
/// The BIN chunk of a .glb with everything behind it.
QByteArray binOf(const QString &path);
/// A .glb with these chunks.
QByteArray glb(const QByteArray &json, const QByteArray &bin = QByteArray());

/// Makes a scene whose one mesh has one primitive, accessor by accessor.
class MeshText {
public:
    /// Adds an accessor over these values and returns its index.
    template <class T>
    int add(const char *type, int componentType, const std::vector<T> &values, int perElement)
    {
        return addBytes(type, componentType,
                        QByteArray(reinterpret_cast<const char *>(values.data()),
                                   int(values.size() * sizeof(T))),
                        int(values.size()) / perElement);
    }
    int addBytes(const char *type, int componentType, const QByteArray &bytes, int count);
    int addPositions(const std::vector<float> &values) { return add("VEC3", 5126, values, 3); }
    /// The finished scene: node 0 "Part" with the mesh "Shape".
    qxJson scene() const;

    qxJson accessors = qxJson::array();
    qxJson views = qxJson::array();
    qxJson primitive = {{"attributes", qxJson::object()}};

private:
    QByteArray m_bytes;
};
