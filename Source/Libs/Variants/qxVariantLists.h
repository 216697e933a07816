#pragma once

#include "qxNamedList.h"

#include <OpenSG/OSGNodeCore.h>

#include <set>

class qxLightVariant;
class qxMaterialVariant;
class qxNodeVariant;
class qxOverlayVariant;
class qxTransformVariant;
class qxVariantGroup;
class qxVariantSet;

/// What the registry holds, for code that needs no operation of it: the part of qxVariants that
/// its own helpers may know.
class qxVariantLists {
public:
    ///@{
    /// In order of creation, which is the order of the document and of the user interface. To look
    /// things up and to go over; the operations of qxVariants add and remove.
    static qxNamedList<qxNodeVariant> _nodeVariants;
    static qxNamedList<qxMaterialVariant> _materialVariants;
    static qxNamedList<qxLightVariant> _lightVariants;
    static qxNamedList<qxOverlayVariant> _overlayVariants;
    static qxNamedList<qxTransformVariant> _transformVariants;
    static qxNamedList<qxVariantSet> _variantSets;
    static qxNamedList<qxVariantGroup> _variantGroups;
    ///@}
    /// Whether showing a node also shows what is below and above it; false at start. A host
    /// may set it.
    static bool _recurse;
    /// The geometries met by the capture that runs: clones count once.
    static std::set<osg::NodeCorePtr> _clonedGeoms;
};
