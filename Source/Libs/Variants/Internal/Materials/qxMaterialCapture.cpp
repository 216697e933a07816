#include "Internal/Materials/qxMaterialCapture.h"

#include "Internal/Materials/qxSwitchMaterials.h"
#include "Internal/Registry/qxSceneVariants.h"
#include "qxMaterialVariant.h"
#include "qxVariantSet.h"

#include "qxNames.h"

#include <OpenSG/OSGMultiPassMaterial.h>

#include <QSet>

namespace {

/// Goes on into what is seen of a material. Materials may hold each other.
class Capture {
public:
    Capture(qxVariantSet &set, bool notify, const qxMaterialCapture::Wanted &wanted)
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
        if (m_wanted && !m_wanted(choices))
            return;
        qxMaterialVariant *const variant = qxSceneVariants::ofMaterial(choices, m_notify);
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
    const qxMaterialCapture::Wanted &m_wanted;
    QSet<osg::UInt32> m_visited;
};

} // namespace

void qxMaterialCapture::capture(qxVariantSet &set, const osg::MaterialPtr &material, bool notify,
                                const Wanted &wanted)
{
    Capture(set, notify, wanted).visit(osg::MaterialRefPtr(material));
}
