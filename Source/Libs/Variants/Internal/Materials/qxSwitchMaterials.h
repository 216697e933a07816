#pragma once

#include "qxNodePtr.h"

#include <OpenSG/OSGSwitchMaterial.h>

#include <QString>

#include <vector>

/// Switch materials of the scene, and what they hold. Names follow qxMaterials; an empty name finds
/// nothing.
namespace qxSwitchMaterials {

/// The nodes of the scene that have the material.
std::vector<qxNodePtr> usersOf(const osg::MaterialPtr &material);

/// The same material when it is a switch material, else null.
osg::SwitchMaterialPtr switchOf(const osg::MaterialPtr &material);
/// The chosen material; null when the choice is out of range.
osg::MaterialPtr chosen(const osg::SwitchMaterialPtr &switchMaterial);
/// The first material of that name that it holds, or null.
osg::MaterialPtr heldBy(const osg::SwitchMaterialPtr &switchMaterial, const QString &name);
/// Chooses the material; when it is not held, the choice stays.
void choose(const osg::SwitchMaterialPtr &switchMaterial, const osg::MaterialPtr &material);

/// A new switch material of those materials in the scene's pool; its choice is 0. The host names
/// it: `wanted`, or a variation of it that neither a material nor a material variant has.
osg::SwitchMaterialPtr make(const QString &wanted, const std::vector<osg::MaterialPtr> &materials);

} // namespace qxSwitchMaterials
