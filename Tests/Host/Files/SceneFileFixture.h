#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/qxSceneFile.h"
#include "HostFixture.h"
#include "TestFiles.h"

#include <OpenSG/OSGGeometry.h>

/// The text of a scene file that has these members behind its "asset".
QByteArray sceneText(const QByteArray &members);

/// A test with a folder for scene files and a scene file object.
class SceneFileFixture : public HostFixture, protected TestFolder {
protected:
    using TestFolder::write;
    QString write(const QString &name, const qxJson &json) const;
    /// Clears the scene and loads the file; fails the test with the reason when that fails.
    void load(const QString &file);
    void load(const qxJson &json) { load(write("scene.gltf", json)); }
    /// The same with a file that has these members.
    void loadText(const QByteArray &members) { load(write("scene.gltf", sceneText(members))); }
    /// Saves the scene, if need be into a new folder; fails the test with the reason when that
    /// fails.
    void save(const QString &file);
    /// Saves the scene and loads what was saved. Expects the same tree, and that saving it again
    /// changes no byte.
    void saveAndLoad(const QString &name = "saved.gltf");
    /// Saves to saved.gltf and expects this there.
    void expectSaved(const qxJson &json);
    /// Why loading fails; empty when it does not.
    QString loadError(const QString &file);

    /// The nodes of the scene, of the overlays and of the environment, each with its type, 'name'
    /// (- for none), choice (& for clones), layer, light or <look>, where it stands unless it is
    /// where its parent is, its pose, whether it is hidden, and what is below it.
    std::string tree() const;
    /// The first node of that name in the scene; none fails the test.
    TestNode find(const char *name) const;
    /// The geometry of that child of a node.
    osg::GeometryPtr part(unsigned int index = 0, const char *node = "Part") const;
    static void setMaterial(const osg::GeometryPtr &geometry, const osg::MaterialPtr &material);

    qxSceneFile file;
};

/// The name of the geometry's material; of a switch material its contents and its choice as well.
std::string lookOf(const osg::GeometryPtr &geometry);
/// The JSON of a .gltf or of a .glb.
qxJson jsonOf(const QString &path);
/// The JSON of that scene in Tests/Data/Scenes.
qxJson sample(const char *name);
/// The BIN chunk of a .glb, from its header on, with everything behind it.
QByteArray binOf(const QString &path);
