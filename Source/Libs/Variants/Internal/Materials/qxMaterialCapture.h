#pragma once

#include <OpenSG/OSGMaterialFields.h>

#include <functional>

class qxVariantSet;

/// Takes down what switch materials show.
namespace qxMaterialCapture {

typedef std::function<bool(const osg::MaterialPtr &)> Wanted;
/// Makes the set choose what the switch materials show that are seen of the material: of it, of its
/// passes, and of what these show in turn. A switch material that is not `wanted` is left out with
/// all that it shows; none is without that test. `notify` announces new material variants.
void capture(qxVariantSet &set, const osg::MaterialPtr &material, bool notify,
             const Wanted &wanted = Wanted());

} // namespace qxMaterialCapture
