#pragma once

#include "qxForecast.h"

#include <OpenSG/OSGMaterial.h>

#include <unordered_map>
#include <unordered_set>
#include <vector>

/// Which materials the geometries of the scene show after what was foreseen. The scene must not
/// change while this lives.
class qxMaterialForecast {
public:
    /// Looks at what can change: the geometries below the scene's root that have switch materials.
    qxMaterialForecast();

    /// By the ids of geometry cores the plain materials that they are to show, of those that show
    /// others now; null for none.
    std::unordered_map<osg::UInt32, osg::MaterialPtr> changes(const qxForecast &forecast) const;
    /// The ids of the switch materials that these geometries have, also inside of others.
    std::unordered_set<osg::UInt32> wornBy(const std::unordered_set<osg::UInt32> &geometries) const;

private:
    struct Worn {
        osg::SwitchMaterialPtr material;
        std::vector<osg::UInt32> geometries;
    };
    std::vector<Worn> m_worn; ///< in scene order
};
