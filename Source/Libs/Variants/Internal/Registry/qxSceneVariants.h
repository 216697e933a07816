#pragma once

#include <OpenSG/OSGMaterialFields.h>
#include <OpenSG/OSGNode.h>

class qxLightVariant;
class qxMaterialVariant;
class qxNodeVariant;
class qxOverlayVariant;
class qxTransformVariant;

/// The variant of an object of the scene, an existing or a new one; see qxVariants.
namespace qxSceneVariants {

qxNodeVariant *ofNode(const osg::NodePtr &node, bool notify);
qxMaterialVariant *ofMaterial(const osg::MaterialPtr &material, bool notify);
qxLightVariant *ofLight(const osg::NodePtr &node, bool notify);
qxOverlayVariant *ofOverlay(const osg::NodePtr &node, bool notify);
qxTransformVariant *ofTransforms(const osg::NodePtr &node, bool notify);

} // namespace qxSceneVariants
