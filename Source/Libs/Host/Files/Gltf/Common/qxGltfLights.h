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

/// Throws qxGltfError for lights that have something else than numbers where numbers belong, and
/// for nodes that refer to a light that is not there.
void qxGltfCheckLights(const qxJson &document);
/// The place of the light of a node in the list of lights, -1 when the node is none.
int qxGltfLightOf(const qxJson &node);
/// The core of light `index`, named as the light; null when it is of an unknown kind.
osg::UberLightPtr qxGltfMakeLight(const qxJson &document, int index);
/// Makes the node of a file a light like `light`, or no light when that is null. Lights that look
/// alike share an entry in the list of lights; one that is new there keeps what the node's earlier
/// entry says beyond.
void qxGltfWriteLight(qxJson &document, qxJson &node, const qxGltfLight *light);
