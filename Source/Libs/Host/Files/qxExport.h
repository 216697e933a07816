#pragma once

#include <OpenSG/OSGMaterial.h>

#include <QByteArray>
#include <QList>
#include <QString>

#include <string>
#include <unordered_map>
#include <vector>

/// The materials that geometries show, switch materials resolved, by the ids of their cores. Null
/// for a geometry without a material.
typedef std::unordered_map<osg::UInt32, osg::MaterialPtr> qxShownMaterials;

/// What goes into an exported file.
struct qxExportOptions {
    enum Extent {
        /// What the scene shows now, for any program that reads glTF. Overlays, environments and
        /// all entries of ours in `extras` stay behind.
        Shown,
        /// For a program that knows which nodes stand for what: all nodes and materials at their
        /// places in the scene file, everything visible, nothing of `extras` and cameras. Materials
        /// have the names by which they are found.
        Everything
    };
    /// What primitives wear in a variant of materials.
    struct Variant {
        std::string name; ///< UTF-8
        qxShownMaterials materials;
    };

    Extent extent = Shown;
    bool compress = false; ///< meshes by EXT_meshopt_compression, pictures as WebP
    std::vector<Variant> variants; ///< become KHR_materials_variants
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
        qint64 before = 0;
        qint64 after = 0;
    };

    QByteArray glb;
    QList<Loss> losses; ///< in the order of the file
    Size meshes; ///< vertices and indices
    Size pictures;
};
