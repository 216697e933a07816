#pragma once

#include <OpenSG/OSGSwitchMaterial.h>

#include <QString>

#include <functional>
#include <vector>

class qxVariantSet;

/// Switch materials of the scene, and what they hold. Names follow qxMaterials; an empty name finds
/// nothing.
namespace qxSwitchMaterials {

/// The first material of that name, or null.
osg::MaterialPtr findMaterial(const QString &name);

/// The same material when it is a switch material, else null.
osg::SwitchMaterialPtr switchOf(const osg::MaterialPtr &material);
/// The chosen material; null when the choice is out of range.
osg::MaterialPtr chosen(const osg::SwitchMaterialPtr &switchMaterial);
/// The first material of that name that it holds, or null.
osg::MaterialPtr heldBy(const osg::SwitchMaterialPtr &switchMaterial, const QString &name);
/// Chooses the material; when it is not held, the choice stays.
void choose(const osg::SwitchMaterialPtr &switchMaterial, const osg::MaterialPtr &material);

typedef std::function<bool(const osg::MaterialPtr &)> Wanted;
/// Makes the set choose what the switch materials show that are seen of the material: of it, of its
/// passes, and of what these show in turn. A switch material that is not `wanted` is left out with
/// all that it shows. `notify` announces new material variants.
void capture(qxVariantSet &set, const osg::MaterialPtr &material, bool notify,
             const Wanted &wanted);

/// A new switch material of those materials in the scene's pool; its choice is 0. The host names
/// it: `wanted`, or a variation of it that neither a material nor a material variant has.
osg::SwitchMaterialPtr make(const QString &wanted, const std::vector<osg::MaterialPtr> &materials);

} // namespace qxSwitchMaterials
