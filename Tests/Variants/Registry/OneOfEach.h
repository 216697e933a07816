#pragma once

#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "TestScene.h"

/// Refers to a variant of each kind, and to two clips.
inline void referToOneOfEach(qxVariantSet &set)
{
    set.addNodeVariant("Wheels", "Alloy");
    set.addMaterialVariant("Paint", "Blue");
    set.addTransformVariant("Door", "Open");
    set.addLightVariant("Lamp", "!Disable");
    set.addOverlayVariant("Logo", "!Disable");
    set.addAnimation("Spin");
    set.addAnimation("Blink");
}

/// The same, and adds an object and a variant of each kind; no object is in that state yet.
inline void addOneOfEach(TestScene &scene, qxVariantSet &set)
{
    qxVariants::createNodeVariant(scene.addSwitch("Wheels", {"Steel", "Alloy"}).node(), false);
    qxVariants::createMaterialVariant(scene.addSwitchMaterial("Paint", {"Red", "Blue"}).material(),
                                      false);
    qxVariants::createTransformVariant(scene.addPoses("Door", {"Shut", "Open"}).node(), false);
    qxVariants::createLightVariant(scene.addLight("Lamp").node(), false);
    qxVariants::createOverlayVariant(scene.addOverlay("Logo").node(), false);
    referToOneOfEach(set);
}

/// Gives the set some of everything, but for its name, group and inclusions.
inline void fillEverything(qxVariantSet &set)
{
    referToOneOfEach(set);
    set.addNodeVariant("Roof", "!Next (Loop)");
    set.comment = "fast & loud";
    set.defaultViewpoint = "Home";
    set.hotkey = "Ctrl+Shift+F5";
    set.sequentialAnimation = true;
    set.script = QString::fromUtf8("if a < b and b > c:\n\tprint(\"ä]]>\")\n");
    set.setPreview(QByteArray("\0\1\2\3", 4));
    set.addViewpoint("Front");
    set.addViewpoint("Back");
    set.addGeometry("Body");
    set.addTargetNodeName("Car");
    set.addMaterialSnapshot("Car/Roof", "Black");
    set.addMaterialSnapshot("Car/Body", "Red");
    set.values["colour"] = "red";
    set.values["Price"] = "12";
    set.analyzer.clipState = 3;
    set.analyzer.clipPlaneColor = {0.123456789f, 0.375f, 1};
    set.analyzer.clipGridColor = {0.125f, 0.0625f, 0.75f};
    set.analyzer.clipContourColor = {0.3125f, 0.4375f, 0.5625f};
    set.analyzer.clipContourWidth = 7;
}
