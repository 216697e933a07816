#pragma once

#include "Files/Gltf/Common/qxGltfDocument.h"
#include "Files/Gltf/Common/qxTinyGltf.h"
#include "Files/qxMemoryBudget.h"

#include <QStringList>

#include <map>
#include <vector>

/// A checked scene file with its values in types and its data in memory.
struct qxGltfModel {
    qxGltfDocument document;
    tinygltf::Model typed; ///< what shows: buffer views, accessors, meshes, materials, textures,
                           ///< cameras and nodes; the rest stays in the document
    std::vector<QByteArray> buffers; ///< as the file has them; null for those without data
    std::map<int, QByteArray> decodedViews; ///< what compressed buffer views hold
    qxMemoryBudget budget{qxMemoryBudget::limit()}; ///< the memory that is left for decoded content
    QStringList warnings; ///< what was left out or corrected, for the user

    /// Reads and checks a file and everything it needs. Throws qxGltfError.
    static qxGltfModel read(const QString &path);
    /// A file that was read, as it is with `edited` as its JSON: `buffers` are those that it had,
    /// further ones are data URIs. Memory is not limited. Throws qxGltfError.
    static qxGltfModel of(const qxGltfDocument &document, const qxJson &edited,
                          const std::vector<QByteArray> &buffers);

    /// The scene that is shown, null when the file has none.
    const qxJson &scene() const;
    /// The position of that scene, -1 when the file has none.
    int sceneIndex() const;
    /// The root nodes of that scene; without a scene all nodes that have no parent.
    std::vector<int> roots() const;
    /// The JSON of a node.
    const qxJson &node(int index) const;
    /// The bytes of a buffer view, decompressed, as long as the model is there; null when its
    /// buffer has no data.
    QByteArray bytesOfView(int index) const;
    /// Whether the file does without the extension where that cannot be used.
    bool isOptional(const char *extension) const;
    /// Gives back the memory of what was decompressed.
    void forgetDecoded();

private:
    void decode();
};
