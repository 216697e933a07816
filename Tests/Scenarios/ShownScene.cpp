#include "ShownScene.h"

#include "qxVariantTable.h"

#include "Materials/qxSurface.h"
#include "OSGOverlayCore.h"
#include "OSGSwitchComponentTransform.h"
#include "OSGUberLight.h"
#include "Scene/OSGTransformStates.h"
#include "TestScene.h"
#include "qxAnimManager.h"
#include "qxMaterials.h"
#include "qxOverlays.h"
#include "qxShownStates.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <map>
#include <sstream>

namespace {

/// Writes the lines.
class Lines {
public:
    std::string text() const { return m_text.str(); }
    void writeMaterials();
    void write(const osg::NodePtr &node, int depth);
    void writeRest();

private:
    template <class Object>
    void writeName(const Object &object);
    void write(const osg::Matrix &matrix);
    void write(const osg::NodeCorePtr &core);
    void write(const osg::MaterialPtr &material);
    void describe(const osg::MaterialPtr &material);

    std::ostringstream m_text;
    std::map<osg::UInt32, std::size_t> m_cores;
    std::map<osg::UInt32, std::size_t> m_materials;
};

template <class Object>
void Lines::writeName(const Object &object)
{
    const osg::Char8 *const name = osg::getName(object);
    m_text << ' ' << object->getTypeName() << (name ? std::string(" '") + name + "'" : " -");
}

void Lines::write(const osg::Matrix &matrix)
{
    m_text << " [";
    for (int i = 0; i < 16; ++i)
        m_text << matrix.getValues()[i] + 0.0f << ' ';
    m_text << ']';
}

/// Each material is described where it comes first, and has a number from then on.
void Lines::write(const osg::MaterialPtr &material)
{
    if (material == osg::NullFC) {
        m_text << " no material";
        return;
    }
    const auto known = m_materials.emplace(material.getFieldContainerId(), m_materials.size());
    m_text << " #" << known.first->second;
    if (known.second)
        describe(material);
}

void Lines::describe(const osg::MaterialPtr &material)
{
    writeName(material);
    const auto choices = osg::SwitchMaterialPtr::dcast(material);
    if (choices != osg::NullFC) {
        m_text << '=' << choices->getChoice() << " (";
        for (const osg::MaterialPtr &each : choices->getMaterials())
            write(each);
        m_text << ')';
        return;
    }
    const auto plain = osg::SimpleMaterialPtr::dcast(material);
    const qxSurface surface = qxSurface::of(material);
    for (const osg::Color3f &colour : {plain->getDiffuse(), plain->getEmission()})
        m_text << ' ' << colour.red() << ' ' << colour.green() << ' ' << colour.blue();
    m_text << ' ' << plain->getTransparency() << ' ' << surface.metallic << ' ' << surface.roughness
           << ' ' << surface.alphaMode << surface.environment;
}

void Lines::writeMaterials()
{
    std::vector<osg::MaterialPtr> pool;
    qxScenegraph::getMaterialPool()->get(pool);
    for (const osg::MaterialPtr &material : pool) {
        write(material);
        m_text << '\n';
    }
}

void Lines::write(const osg::NodeCorePtr &core)
{
    writeName(core);
    const auto number = m_cores.emplace(core.getFieldContainerId(), m_cores.size());
    if (!number.second)
        m_text << " as " << number.first->second;
    const auto transform = osg::TransformPtr::dcast(core);
    if (transform != osg::NullFC)
        write(transform->getMatrix());
    const auto choices = osg::SwitchPtr::dcast(core);
    if (choices != osg::NullFC)
        m_text << " =" << choices->getChoice();
    const auto states = osg::SwitchComponentTransformPtr::dcast(core);
    if (states != osg::NullFC) {
        m_text << " =" << states->getChoice();
        for (const osg::Matrix &state : states->getStates())
            write(state);
    }
    const auto light = osg::UberLightPtr::dcast(core);
    if (light != osg::NullFC)
        m_text << ' ' << light->getOn() << light->getKind() << ' ' << light->getIntensity();
    const auto overlay = osg::OverlayCorePtr::dcast(core);
    if (overlay != osg::NullFC)
        m_text << ' ' << overlay->getLayer();
    const auto part = osg::GeometryPtr::dcast(core);
    if (part != osg::NullFC) {
        m_text << ' ' << part->getPositions()->getSize();
        write(part->getMaterial());
    }
}

void Lines::write(const osg::NodePtr &node, int depth)
{
    if (node == osg::NullFC)
        return;
    m_text << std::string(std::size_t(depth), ' ');
    writeName(node);
    m_text << (node->getTravMask() == 0 ? " hidden" : "");
    write(node->getCore());
    const auto states =
        osg::TransformStatesPtr::dcast(node->findAttachment(osg::TransformStates::getClassType()));
    if (states != osg::NullFC) {
        m_text << " in " << states->getSelected();
        for (osg::UInt32 i = 0; i < states->getPoses().size(); ++i) {
            m_text << " '" << states->getNames()[i] << '\'';
            write(states->getPoses()[i]);
        }
    }
    m_text << '\n';
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i)
        write(node->getChild(i), depth + 1);
}

void Lines::writeRest()
{
    const qxUberCameraPool &cameras = *qxUberCameraPool::the();
    for (int id = 0; id < cameras.count(); ++id) {
        const qxUberCamera &camera = *cameras.get(id);
        m_text << "viewpoint '" << camera.name << "' " << camera.fieldOfView << ' ' << camera.height
               << ' ' << camera.nearPlane << ' ' << camera.farPlane;
        write(camera.toWorld);
        m_text << '\n';
    }
    for (const std::string &clip : qxAnimManager::the()->clips())
        m_text << "clip '" << clip << "'\n";
    const qxShownStates shown;
    for (const qxVariantRow &row : qxVariantTable::all()) {
        const qxShownStates::Shown state = shown.of(row);
        m_text << row.kind << " '" << row.variant->name.toStdString() << "' in '"
               << state.state.toStdString() << '\'' << (state.isHidden ? " hidden\n" : "\n");
    }
}

} // namespace

std::string shownScene()
{
    Lines lines;
    lines.writeMaterials();
    for (const osg::NodePtr &top : {qxScenegraph::getRoot(), qxOverlays::getPoolRoot(),
                                    qxScenegraph::environmentGeometrySwitch()})
        lines.write(top, 0);
    lines.writeRest();
    return lines.text();
}
