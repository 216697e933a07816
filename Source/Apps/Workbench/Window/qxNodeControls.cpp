#include "qxNodeControls.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"

#include "qxMaterialParts.h"
#include "qxMaterials.h"
#include "qxNames.h"

#include <OpenSG/OSGMaterialGroup.h>

#include <algorithm>
#include <map>
#include <set>

namespace {

typedef std::vector<qxNodeControls::Control> Controls;

/// Variants by what they drive.
class Index {
public:
    Index()
    {
        qxVariantKinds::visit([this](const qxVariantKind &kind, qxVariant &variant) {
            if (&kind == &qxVariantKinds::material)
                m_materials.push_back(&variant);
            else
                m_nodes.insert({variant.*kind.sceneName, {&kind, &variant}});
        });
    }

    void add(const osg::NodePtr &node, int levels, Controls &controls) const
    {
        const QString name = qxNames::nameOf(node);
        const auto range = m_nodes.equal_range(name);
        if (range.first == range.second || !qxNodeUtils::isFoundByName(node))
            return;
        const qxVariantEdits::Kinds kinds = qxVariantEdits::kindsOf(node);
        for (auto each = range.first; each != range.second; ++each) {
            const auto [kind, variant] = each->second;
            if (std::find(kinds.begin(), kinds.end(), kind) != kinds.end())
                controls.push_back({{kind, variant->name}, name, levels});
        }
    }

    void add(const osg::MaterialPtr &material, int levels, Controls &controls) const
    {
        for (const qxVariant *variant : m_materials) {
            const QString name = variant->*qxVariantKinds::material.sceneName;
            const std::vector<osg::MaterialPtr> driven = qxNames::findMaterials(name);
            const bool isDriven =
                std::any_of(driven.begin(), driven.end(), [&](const osg::MaterialPtr &each) {
                    return qxMaterialParts::contain(material, each)
                        || qxMaterialParts::contain(each, material);
                });
            if (isDriven)
                controls.push_back({{&qxVariantKinds::material, variant->name}, name, levels});
        }
    }

private:
    std::multimap<QString, std::pair<const qxVariantKind *, const qxVariant *>> m_nodes;
    std::vector<const qxVariant *> m_materials;
};

Controls controlsOf(const osg::NodePtr &node, const Index &index)
{
    Controls controls;
    std::set<osg::MaterialPtr> seen;
    int levels = 0;
    for (osg::NodePtr each = node; each != osg::NullFC; each = each->getParent(), ++levels) {
        index.add(each, levels, controls);
        const osg::MaterialPtr material = qxNodeUtils::getMaterial(each);
        if (material != osg::NullFC && seen.insert(material).second)
            index.add(material, levels, controls);
    }
    return controls;
}

} // namespace

Controls qxNodeControls::of(const osg::NodePtr &node)
{
    return controlsOf(node, Index());
}

qxVariantEdits::Variants qxNodeControls::nearestOf(const std::vector<osg::NodePtr> &nodes)
{
    const Index index;
    qxVariantEdits::Variants variants;
    for (const osg::NodePtr &node : nodes) {
        const Controls controls = controlsOf(node, index);
        for (const Control &control : controls) {
            const bool isKnown =
                std::any_of(variants.begin(), variants.end(), [&](const qxVariantName &each) {
                    return each.kind == control.variant.kind && each.name == control.variant.name;
                });
            if (control.levels == controls.front().levels && !isKnown)
                variants.push_back(control.variant);
        }
    }
    return variants;
}

osg::MaterialPtr qxNodeControls::materialOf(const osg::NodePtr &node)
{
    osg::MaterialPtr material = qxNodeUtils::getMaterial(node);
    for (osg::NodePtr each = node; each != osg::NullFC; each = each->getParent()) {
        const auto group = osg::MaterialGroupPtr::dcast(each->getCore());
        if (group != osg::NullFC && group->getMaterial() != osg::NullFC
            && !qxMaterials::getIgnoreMaterialGroup(each))
            material = group->getMaterial();
    }
    return material;
}

QStringList qxNodeControls::objectsFor(const qxVariantKind &kind, const osg::NodePtr &node)
{
    if (&kind == &qxVariantKinds::material) {
        const osg::MaterialPtr material = materialOf(node);
        const QString name = qxNames::nameOf(material);
        return name.isEmpty() ? QStringList() : QStringList(name);
    }
    const qxVariantEdits::Kinds kinds = qxVariantEdits::kindsOf(node);
    const bool isOne = std::find(kinds.begin(), kinds.end(), &kind) != kinds.end();
    return isOne ? QStringList(qxNames::nameOf(node)) : QStringList();
}

qxVariantEdits::Created qxNodeControls::makeVariants(QUndoStack &steps, const qxVariantKind &kind,
                                                     const std::vector<osg::NodePtr> &nodes)
{
    if (&kind != &qxVariantKinds::material)
        return qxVariantEdits::createOf(steps, kind, nodes);
    std::vector<osg::MaterialPtr> materials;
    for (const osg::NodePtr &node : nodes) {
        const osg::MaterialPtr material = materialOf(node);
        if (material != osg::NullFC
            && std::find(materials.begin(), materials.end(), material) == materials.end())
            materials.push_back(material);
    }
    return qxVariantEdits::createOf(steps, materials);
}
