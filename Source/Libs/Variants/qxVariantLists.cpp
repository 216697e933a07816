#include "qxVariantLists.h"

qxNamedList<qxNodeVariant> qxVariantLists::_nodeVariants;
qxNamedList<qxMaterialVariant> qxVariantLists::_materialVariants;
qxNamedList<qxLightVariant> qxVariantLists::_lightVariants;
qxNamedList<qxOverlayVariant> qxVariantLists::_overlayVariants;
qxNamedList<qxTransformVariant> qxVariantLists::_transformVariants;
qxNamedList<qxVariantSet> qxVariantLists::_variantSets;
qxNamedList<qxVariantGroup> qxVariantLists::_variantGroups;
bool qxVariantLists::_recurse = false;
std::set<osg::NodeCorePtr> qxVariantLists::_clonedGeoms;
