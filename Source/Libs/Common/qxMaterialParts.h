#pragma once

#include "qxScenegraph.h"

#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <algorithm>
#include <set>
#include <vector>

/// Materials that are made of others. Several may hold the same one.
class qxMaterialParts {
public:
    /// What a switch or multi-pass material is made of, in order; nothing for others and for null.
    static std::vector<osg::MaterialPtr> of(const osg::MaterialPtr &material)
    {
        const osg::SwitchMaterialPtr choices = osg::SwitchMaterialPtr::dcast(material);
        if (choices != osg::NullFC)
            return choices->getMFMaterials()->getValues();
        const osg::MultiPassMaterialPtr passes = osg::MultiPassMaterialPtr::dcast(material);
        return passes == osg::NullFC ? std::vector<osg::MaterialPtr>()
                                     : passes->getMFMaterials()->getValues();
    }

    /// All materials of the scene with what they are made of, each once, in the order of the pool.
    static std::vector<osg::MaterialPtr> all()
    {
        std::vector<osg::MaterialPtr> open;
        qxScenegraph::getMaterialPool()->get(open);
        std::reverse(open.begin(), open.end());
        std::vector<osg::MaterialPtr> materials;
        std::set<osg::MaterialPtr> known;
        while (!open.empty()) {
            const osg::MaterialPtr next = open.back();
            open.pop_back();
            if (next == osg::NullFC || !known.insert(next).second)
                continue;
            materials.push_back(next);
            const std::vector<osg::MaterialPtr> parts = of(next);
            open.insert(open.end(), parts.rbegin(), parts.rend());
        }
        return materials;
    }

    /// Whether `whole` is `part` or holds it, however far inside.
    static bool contain(const osg::MaterialPtr &whole, const osg::MaterialPtr &part)
    {
        std::vector<osg::MaterialPtr> left = {whole};
        std::set<osg::MaterialPtr> seen = {whole};
        for (; !left.empty() && left.back() != part;) {
            const osg::MaterialPtr material = left.back();
            left.pop_back();
            for (const osg::MaterialPtr &each : of(material)) {
                if (seen.insert(each).second)
                    left.push_back(each);
            }
        }
        return !left.empty();
    }
};
