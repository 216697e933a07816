#pragma once

class qxEmbeddedFiles;
namespace osg {
class NodePtr;
}

#include "Files/qxExport.h"
#include "Files/qxSceneVariant.h"

#include <QByteArray>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// What a scene file holds, for listings.
struct qxSceneFileInfo {
    QString version; ///< of glTF, as the file states it
    QString generator; ///< the program that made the file
    int scenes = 0; ///< all of the file; the host shows one
    int nodes = 0; ///< of all scenes
    int meshes = 0; ///< each counted once, however many nodes show it
    long long triangles = 0; ///< of all meshes, each counted once
    int materials = 0; ///< as the file lists them
    int textures = 0; ///< as the file lists them
    int cameras = 0; ///< as the file lists them
    int animations = 0; ///< as the file lists them
    QStringList extensionsUsed; ///< as the file states them
    QStringList extensionsRequired; ///< those that the file cannot do without
    QStringList extensionsNotUnderstood; ///< used by the file, kept, but not shown
    QStringList extensionsMissing; ///< likewise, of those that it requires
};

/// Where something of the scene stands in its file.
struct qxFilePlace {
    int node = -1; ///< in the file's list of nodes; -1 for what is not from the file
    int part = -1; ///< in the mesh of that node, whose primitives are the parts; -1 for the node
};

/// Reads scenes from glTF 2.0 files (.gltf, .glb) into the host and writes them back.
///
/// Saving changes in the file only what changed in the scene, and keeps everything else, also what
/// the host does not understand. Docs/SceneFiles.md says what is read and written.
class qxSceneFile {
public:
    /// A scene that has no file yet.
    qxSceneFile();
    qxSceneFile(const qxSceneFile &) = delete;
    ~qxSceneFile();

    /// What loading goes through.
    enum Step { Reading, Materials, Building, Showing };
    /// Hears of each step before it is taken; see load.
    typedef std::function<void(Step)> StepListener;

    /// Reads the scene of `path` into the host: below the root of the scene, and into the pools of
    /// materials, viewpoints and clips. On failure nothing is added, and the object is unchanged.
    /// The listener hears of each step before it is taken. When it has heard of Showing, which does
    /// not fail, the scene must be clear (qxHost::clearScene).
    bool load(
        const QString &path, const StepListener &listener = [](Step) {});
    /// Writes the present scene; the suffix decides between .gltf and .glb. Files that the scene
    /// needs are written beside it. On failure the old files are intact, unless the error says
    /// otherwise. Files of buffers that others have changed are not overwritten; the scene file
    /// then includes the data that were loaded.
    bool save(const QString &path);
    /// The same with these files in the place of their marks in the variants document.
    bool save(const QString &path, const qxEmbeddedFiles &files);
    /// Makes a GLB of the present scene for others. What it takes from the file are the data that
    /// were loaded. Why that failed, with the path; then `result` is unchanged.
    QString makeExport(const qxExportOptions &options, qxExport &result) const;
    /// Whether others have changed the file that a save to `path` replaces, or files of its
    /// buffers, since it was last loaded or saved here.
    bool isChangedByOthers(const QString &path) const;

    /// Why the last operation failed, with the path; empty when it did not.
    QString errorString() const;
    /// What the last load or save left out or corrected.
    QStringList warnings() const;

    /// The variants document in the scene, UTF-8; empty when it has none.
    QByteArray variantsDocument() const;
    /// Sets the document to save with the scene; an empty one is removed.
    void setVariantsDocument(const QByteArray &document);
    /// Whether the file's memory budget allows to read and check such a document; if not,
    /// errorString says so.
    bool hasRoomFor(const QByteArray &document);

    /// The material variants of the file loaded last, in its order. The first material of each of
    /// their switch materials is the original one.
    std::vector<qxSceneVariant> materialVariants() const;

    /// The content of the file loaded last.
    qxSceneFileInfo info() const;

    /// Where a node stands in the file loaded last. The nodes that were made above one of the file,
    /// such as for its transform, stand for that one, and a geometry below it for a part. Clips
    /// need no place: qxAnimationPlayer has those of the file in its order.
    qxFilePlace placeOf(const osg::NodePtr &node) const;
    /// Where a material stands in the list of materials of that file: -1 for null and for the one
    /// of parts without a material; nothing for others, such as switch materials and new ones.
    std::optional<int> materialOf(const osg::MaterialPtr &material) const;

private:
    struct Content;
    /// Runs the work on a file; false when it threw, with the reason as the error.
    bool attempt(const QString &path, const std::function<void()> &work);

    std::unique_ptr<Content> m_content;
    QString m_error;
    QStringList m_warnings;
};
