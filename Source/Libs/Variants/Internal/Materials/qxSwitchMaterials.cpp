#include "Internal/Materials/qxSwitchMaterials.h"

#include "Internal/Registry/qxNotify.h"
#include "Internal/Scene/qxSceneEdits.h"
#include "qxMaterialVariant.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxNames.h"

#include <OpenSG/OSGMultiPassMaterial.h>

#include <QSet>

#include <algorithm>

namespace {

/// Names a new switch material. A material variant without a material may have a name, too: it
/// would drive the new one.
void name(const osg::SwitchMaterialPtr &created, const QString &wanted)
{
    QString base = wanted;
    QString unique = qxNotify::uniqueMaterialName(base);
    while (qxVariants::findMaterialVariant(unique)) {
        base = qxText::fromUtf8(
            qxNodeUtils::getUniqueName(qxText::toUtf8(unique), {qxText::toUtf8(unique)}));
        unique = qxNotify::uniqueMaterialName(base);
    }
    const bool exact = !unique.isEmpty();
    qxMaterials::setName(created, qxText::toUtf8(exact ? unique : base).c_str(), exact);
}

/// Goes on into what is seen of a material. Listeners hear of new variants and may edit materials;
/// these may hold each other.
class Capture {
public:
    Capture(qxVariantSet &set, bool notify, const qxSwitchMaterials::Wanted &wanted)
        : m_set(set), m_notify(notify), m_wanted(wanted)
    {
    }

    void visit(const osg::MaterialRefPtr &material)
    {
        if (material == osg::NullFC || m_visited.contains(material.get().getFieldContainerId()))
            return;
        m_visited.insert(material.get().getFieldContainerId());
        const osg::SwitchMaterialPtr choices = qxSwitchMaterials::switchOf(material.get());
        const auto passes = osg::MultiPassMaterialPtr::dcast(material.get());
        if (choices != osg::NullFC)
            visitSwitch(choices);
        else if (passes != osg::NullFC)
            visitPasses(passes);
    }

private:
    void visitSwitch(const osg::SwitchMaterialPtr &choices)
    {
        if (!m_wanted(choices))
            return;
        qxMaterialVariant *const variant =
            qxVariants::createMaterialVariant(osg::MaterialPtr(choices), m_notify);
        if (!variant)
            return;
        const osg::MaterialRefPtr shown(qxSwitchMaterials::chosen(choices));
        m_set.add(variant, qxNames::nameOf(shown.get()));
        visit(shown);
    }

    void visitPasses(const osg::MultiPassMaterialPtr &material)
    {
        const osg::MFMaterialPtr &passes = material->getMaterials();
        const std::vector<osg::MaterialRefPtr> kept(passes.begin(), passes.end());
        for (const osg::MaterialRefPtr &pass : kept)
            visit(pass);
    }

    qxVariantSet &m_set;
    const bool m_notify;
    const qxSwitchMaterials::Wanted &m_wanted;
    QSet<osg::UInt32> m_visited;
};

} // namespace

namespace qxSwitchMaterials {

osg::MaterialPtr findMaterial(const QString &name)
{
    return qxMaterials::findMaterial(qxText::toUtf8(name).c_str());
}

osg::SwitchMaterialPtr switchOf(const osg::MaterialPtr &material)
{
    return osg::SwitchMaterialPtr::dcast(material);
}

osg::MaterialPtr chosen(const osg::SwitchMaterialPtr &switchMaterial)
{
    const osg::UInt32 choice = switchMaterial->getChoice();
    return choice < switchMaterial->getMaterials().size() ? switchMaterial->getMaterials(choice)
                                                          : osg::MaterialPtr();
}

osg::MaterialPtr heldBy(const osg::SwitchMaterialPtr &switchMaterial, const QString &name)
{
    const std::string wanted = qxText::toUtf8(name);
    const osg::MFMaterialPtr &held = switchMaterial->getMaterials();
    const auto found = std::find_if(held.begin(), held.end(), [&](const osg::MaterialPtr &each) {
        return !wanted.empty() && qxMaterials::getName(each) == wanted;
    });
    return found == held.end() ? osg::MaterialPtr() : *found;
}

void choose(const osg::SwitchMaterialPtr &switchMaterial, const osg::MaterialPtr &material)
{
    const osg::MFMaterialPtr &held = switchMaterial->getMaterials();
    const auto found = std::find(held.begin(), held.end(), material);
    if (found != held.end())
        qxSceneEdits::setChoice(switchMaterial, osg::UInt32(found - held.begin()));
}

void capture(qxVariantSet &set, const osg::MaterialPtr &material, bool notify, const Wanted &wanted)
{
    Capture(set, notify, wanted).visit(osg::MaterialRefPtr(material));
}

osg::SwitchMaterialPtr make(const QString &wanted, const std::vector<osg::MaterialPtr> &materials)
{
    const osg::SwitchMaterialPtr created = osg::SwitchMaterial::create();
    for (const osg::MaterialPtr &material : materials)
        qxSceneEdits::addMaterial(created, material);
    qxSceneEdits::setChoice(created, 0);
    name(created, wanted);
    qxSceneEdits::addToPool(qxScenegraph::getMaterialPool(), created);
    return created;
}

} // namespace qxSwitchMaterials
