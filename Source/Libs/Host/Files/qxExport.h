#pragma once

#include <OpenSG/OSGMaterial.h>

#include <QByteArray>
#include <QList>
#include <QString>

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

/// What goes into an exported file.
struct qxExportOptions {
    /// How much of the scene.
    enum Extent {
        /// What the scene shows now, for any program that reads glTF. Overlays, environments and
        /// all entries of ours in `extras` stay behind.
        Shown,
        /// For a program that knows which nodes stand for what: all nodes and materials at their
        /// places in the scene file, everything visible, nothing of `extras` and cameras. Materials
        /// have the names by which they are found.
        Everything
    };
    /// A variant of materials.
    struct Variant {
        std::string name; ///< UTF-8
        /// By the ids of geometry cores the materials, no switch materials, that they show in the
        /// variant; all others show what they show now. Null stands for none.
        std::unordered_map<osg::UInt32, osg::MaterialPtr> materials;
    };

    Extent extent = Shown; ///< how much of the scene
    bool compress = false; ///< meshes by EXT_meshopt_compression, pictures as WebP
    std::vector<Variant> variants; ///< become KHR_materials_variants, if any differs
    std::vector<int> viewpoints; ///< by their ids: those that become cameras, in this order
};

/// An exported file, and what came of the things of the scene file.
struct qxExport {
    /// Something that is not there, or not as it was.
    struct Loss {
        QString kind; ///< such as "extension", "picture", "animation"
        QString name; ///< of the thing
        bool isGone = true; ///< else it is there in another form
        QString reason; ///< English
    };
    /// Bytes in the file, and how many they would be uncompressed.
    struct Size {
        qint64 before = 0; ///< uncompressed
        qint64 after = 0; ///< in the file
    };

    QByteArray glb; ///< the file
    QList<Loss> losses; ///< in the order of the file
    std::unordered_set<osg::UInt32> geometries; ///< the ids of the cores of those that are there
    Size meshes; ///< vertices and indices
    Size pictures; ///< of textures, encoded
};
