#pragma once

#include "Files/qxSceneVariant.h"

#include <QByteArray>
#include <QMap>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

/// What a scene file holds, for listings.
struct qxSceneFileInfo {
    QString version; ///< of glTF, as the file states it
    QString generator; ///< the program that made the file
    int scenes = 0;
    int nodes = 0; ///< of all scenes
    int meshes = 0;
    long long triangles = 0; ///< of all meshes, each counted once
    int materials = 0;
    int textures = 0;
    int cameras = 0;
    int animations = 0;
    QStringList extensionsUsed;
    QStringList extensionsRequired;
    QStringList extensionsNotUnderstood; ///< used ones whose data are kept, but not shown
    /// Kinds of pictures that are kept, but not shown: how many materials have one.
    QMap<QString, int> hiddenPictures;
};

/// Reads scenes from glTF 2.0 files (.gltf, .glb) into the host and writes them back.
///
/// Saving changes in the file what changed in the scene, and keeps everything else as it was, also
/// what the host does not understand. Docs/SceneFiles.md tells what is read and written.
class qxSceneFile {
public:
    /// A scene that has no file yet.
    qxSceneFile();
    qxSceneFile(const qxSceneFile &) = delete;
    ~qxSceneFile();

    /// What loading goes through.
    enum Step { Reading, Materials, Building, Showing };
    typedef std::function<void(Step)> StepListener;

    /// Reads the scene of `path` and shows it: below the root of the scene, in the pools of
    /// materials, viewpoints and clips. On failure nothing is shown, and the object is as it was.
    /// The listener hears of each step before it is taken. When it has heard of Showing, which does
    /// not fail, the scene must be clear (qxHost::clearScene).
    bool load(
        const QString &path, const StepListener &listener = [](Step) {});
    /// Writes the scene as it is now; the suffix decides between .gltf and .glb. Files that the
    /// scene needs are put beside it. On failure the old files are whole, unless the error says
    /// otherwise. Files of buffers that others have changed stay so, and the scene file takes in
    /// what was loaded.
    bool save(const QString &path);
    /// Whether somebody has changed, since it was loaded or saved here last, the file that a save
    /// there replaces, or files of buffers that stay beside it.
    bool isChangedByOthers(const QString &path) const;

    /// Why the last operation failed, with the path; empty when it did not.
    QString errorString() const;
    /// What the last load or save left out or put right.
    QStringList warnings() const;

    /// The variants document in the scene, UTF-8; empty when it has none.
    QByteArray variantsDocument() const;
    /// Saved with the scene from now on; an empty one is taken out.
    void setVariantsDocument(const QByteArray &document);
    /// Whether what reading and checking such a document takes is left of the memory that the file
    /// may take; else errorString says so.
    bool hasRoomFor(const QByteArray &document);

    /// The variants that the file loaded last states for its materials, in its order. Each of their
    /// switch materials holds the material that the file was made with as its first one.
    std::vector<qxSceneVariant> materialVariants() const;

    /// What the file holds that was loaded last.
    qxSceneFileInfo info() const;

private:
    struct Content;
    /// Runs the work on a file; false when it threw, with the reason as the error.
    template <class Work>
    bool attempt(const QString &path, const Work &work);

    std::unique_ptr<Content> m_content;
    QString m_error;
    QStringList m_warnings;
};
