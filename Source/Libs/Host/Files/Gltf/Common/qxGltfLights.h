#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"
#include "OSGUberLight.h"

#include <optional>
#include <string>
#include <vector>

/// A light with the units of KHR_lights_punctual, which are those of osg::UberLight.
struct qxGltfLight {
    osg::UInt32 kind = osg::UberLight::Point;
    std::vector<float> colour; ///< red, green, blue
    float intensity = 1;
    float range = 0; ///< 0 for no limit
    float innerAngle = 0;
    float outerAngle = 0;
    std::optional<std::string> name; ///< that of the core

    static qxGltfLight of(const osg::UberLightPtr &core);
    bool operator==(const qxGltfLight &other) const;
};

/// Throws qxGltfError for lights with values of the wrong type, and for nodes that refer to a
/// missing light.
void qxGltfCheckLights(const qxJson &document);
/// The place of the light of a node in the list of lights, -1 when the node is none.
int qxGltfLightOf(const qxJson &node);
/// The core of light `index`, named as the light; null when it is of an unknown kind.
osg::UberLightPtr qxGltfMakeLight(const qxJson &document, int index);
/// Writes `light` to the node of a file, or removes its light when null. Equal lights share an
/// entry in the list of lights; a new entry keeps the other members of the node's old one.
void qxGltfWriteLight(qxJson &document, qxJson &node, const qxGltfLight *light);
