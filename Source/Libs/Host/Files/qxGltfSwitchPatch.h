#pragma once

#include "Files/qxGltfMaterials.h"

#include <OpenSG/OSGSwitchMaterial.h>

#include <string>

struct qxGltfState;

/// A switch material as a scene file lists it. Comparing those of a scene just loaded with those
/// that are there now tells whether a save has to list them.
struct qxGltfSwitchState {
    osg::SwitchMaterialPtr material;
    osg::UInt32 id = 0;
    std::string name;
    std::vector<osg::MaterialPtr> contents;
    osg::UInt32 choice = 0;

    static qxGltfSwitchState of(const osg::SwitchMaterialPtr &material);
    bool operator==(const qxGltfSwitchState &other) const;
};

typedef std::vector<qxGltfSwitchState> qxGltfSwitchStates;

/// Those of the scene's material pool, and behind them those that only geometries have. One that
/// contains nothing shows nothing and is left out.
qxGltfSwitchStates qxGltfSwitchesOfScene(const qxGltfState &state);
