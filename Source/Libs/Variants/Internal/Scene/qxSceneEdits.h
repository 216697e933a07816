#pragma once

#include "OSGSwitchComponentTransform.h"
#include "qxNodePtr.h"

#include <OpenSG/OSGMaterialDrawableFields.h>
#include <OpenSG/OSGMaterialGroupFields.h>
#include <OpenSG/OSGMaterialPoolFields.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSwitchFields.h>
#include <OpenSG/OSGSwitchMaterialFields.h>

/// The writes that the module makes to the scene, each in an edit of its own.
///
/// The objects must not be null.
namespace qxSceneEdits {

/// The two traversal masks that the module writes. A node counts as visible with all bits set only.
constexpr osg::UInt32 Visible = 0xFFFFFFFF;
constexpr osg::UInt32 Hidden = 0;

void setTraversalMask(const osg::NodePtr &node, osg::UInt32 mask);

void setChoice(const osg::SwitchPtr &core, osg::Int32 choice);
void setChoice(const osg::SwitchComponentTransformPtr &core, osg::UInt32 choice);
void setChoice(const osg::SwitchMaterialPtr &switchMaterial, osg::UInt32 choice);

/// Appends the material, also when it is there already. Nothing happens when it holds the switch
/// material: OpenSG does not survive materials that hold each other in a ring.
void addMaterial(const osg::SwitchMaterialPtr &switchMaterial, const osg::MaterialPtr &material);
/// Takes out the first occurrence of the material.
void subMaterial(const osg::SwitchMaterialPtr &switchMaterial, const osg::MaterialPtr &material);

void setMaterial(const osg::MaterialGroupPtr &group, const osg::MaterialPtr &material);
/// Releases the old material before it takes the new one: the new one must be held elsewhere when
/// only the old one holds it.
void setMaterial(const osg::MaterialDrawablePtr &drawable, const osg::MaterialPtr &material);

/// Gives the material to a material group or a geometry.
void setMaterial(const osg::NodePtr &node, const osg::MaterialPtr &material);
/// Gives all nodes the material of the first one.
void shareMaterial(const std::vector<qxNodePtr> &nodes);

void addToPool(const osg::MaterialPoolPtr &pool, const osg::MaterialPtr &material);
void subFromPool(const osg::MaterialPoolPtr &pool, const osg::MaterialPtr &material);

} // namespace qxSceneEdits
