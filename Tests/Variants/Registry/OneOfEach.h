#pragma once

#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "TestScene.h"

/// Adds an object of each kind with its variant, and two clips to the set; the set refers to each
/// variant with the state that it does not have yet.
inline void addOneOfEach(TestScene &scene, qxVariantSet &set)
{
    qxVariants::createNodeVariant(scene.addSwitch("Wheels", {"Steel", "Alloy"}).node(), false);
    qxVariants::createMaterialVariant(scene.addSwitchMaterial("Paint", {"Red", "Blue"}).material(),
                                      false);
    qxVariants::createTransformVariant(scene.addPoses("Door", {"Shut", "Open"}).node(), false);
    qxVariants::createLightVariant(scene.addLight("Lamp").node(), false);
    qxVariants::createOverlayVariant(scene.addOverlay("Logo").node(), false);
    set.addNodeVariant("Wheels", "Alloy");
    set.addMaterialVariant("Paint", "Blue");
    set.addTransformVariant("Door", "Open");
    set.addLightVariant("Lamp", "!Disable");
    set.addOverlayVariant("Logo", "!Disable");
    set.addAnimation("Spin");
    set.addAnimation("Blink");
}
