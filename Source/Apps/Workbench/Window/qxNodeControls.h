#pragma once

#include "Undo/qxVariantEdits.h"

/// Which variants drive a node of the scene, and which could.
namespace qxNodeControls {

/// A variant that drives the node, a node above it, or a material that it is seen with.
struct Control {
    qxVariantName variant;
    QString object; ///< the name of the node or material that it drives
    int levels; ///< how far above the node that one stands; 0 for the node itself
};

/// All of them, the nearest first. Asks every variant once.
std::vector<Control> of(const osg::NodePtr &node);
/// The variants that drive these nodes themselves or their materials; for a node with none, those
/// of the nearest one above it that has some.
qxVariantEdits::Variants nearestOf(const std::vector<osg::NodePtr> &nodes);

/// The material that the surface of a node is seen with: that of the outermost group which does not
/// ignore its own, else that of the node; null for none.
osg::MaterialPtr materialOf(const osg::NodePtr &node);
/// What a variant of the kind made of the node would drive, by name: at most one.
QStringList objectsFor(const qxVariantKind &kind, const osg::NodePtr &node);
/// Makes variants of the kind of the nodes, or of the materials that they are seen with.
qxVariantEdits::Created makeVariants(QUndoStack &steps, const qxVariantKind &kind,
                                     const std::vector<osg::NodePtr> &nodes);

} // namespace qxNodeControls
